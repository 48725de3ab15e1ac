#include "service/FixedText.h"

#include <algorithm>

namespace trel::mediadispatch {

bool hasForm(const std::string& text, std::string_view pattern)
{
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                      [](char found, char asked) {
                          return asked == '0' ? found >= '0' && found <= '9' : found == asked;
                      });
}

int digitsAt(const std::string& text, std::size_t place, std::size_t count)
{
    int number = 0;
    for (std::size_t i = place; i < place + count; ++i) {
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

} // namespace trel::mediadispatch
