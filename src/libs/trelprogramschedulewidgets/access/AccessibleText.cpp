#include "AccessibleText.h"

#include <algorithm>

namespace trel::mediadispatch {

void AccessibleText::selection(int /*selectionIndex*/, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = 0;
}

QString AccessibleText::text(int startOffset, int endOffset) const
{
    const QString whole = shownText();
    const int start = std::clamp(startOffset, 0, whole.size());
    return whole.mid(start, std::max(0, endOffset - start));
}

// One run, which has none.
QString AccessibleText::attributes(int /*offset*/, int* startOffset, int* endOffset) const
{
    *startOffset = 0;
    *endOffset = characterCount();
    return QString();
}

} // namespace trel::mediadispatch
