#include "service/WeekDays.h"

#include "service/ScheduleRecords.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace trel::mediadispatch {

namespace {

// Reads the number at the start of text. A number too large for an int keeps its lowest 32 bits,
// and one too large for 64 bits is cut to the nearest end of those first, on every machine.
int leadingNumber(const char* text)
{
    const long long number = std::strtoll(text, nullptr, 10);
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

} // namespace

bool parseWeeks(const std::string& weeks, std::vector<int>& numbers)
{
    bool isEveryDay = false;
    std::size_t token = 0;
    while (token != std::string::npos) {
        // The comma behind a token ends its number, so the text needs no cutting.
        const int number = leadingNumber(weeks.c_str() + token);
        numbers.push_back(number);
        isEveryDay = isEveryDay || number == EveryDay;
        const std::size_t comma = weeks.find(',', token);
        token = comma == std::string::npos ? comma : comma + 1;
    }
    return isEveryDay;
}

bool weeksOverlap(const std::string& a, const std::string& b)
{
    std::vector<int> numbersOfA;
    if (parseWeeks(a, numbersOfA)) {
        return true;
    }
    std::vector<int> numbersOfB;
    if (parseWeeks(b, numbersOfB)) {
        return true;
    }
    return std::find_first_of(numbersOfA.begin(), numbersOfA.end(), numbersOfB.begin(),
                              numbersOfB.end()) != numbersOfA.end();
}

std::string joinWeeks(const std::vector<int>& numbers)
{
    std::string weeks;
    for (const int number : numbers) {
        if (!weeks.empty()) {
            weeks += ',';
        }
        weeks += std::to_string(number);
    }
    return weeks;
}

} // namespace trel::mediadispatch
