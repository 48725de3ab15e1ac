#include "OtherNames.h"

#include "common/DisplayText.h"

#include <algorithm>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// As many as are told one by one.
constexpr std::size_t kMostTold = 8;

} // namespace

QStringList otherNamesTexts(const std::vector<OtherName>& names)
{
    QStringList texts;
    for (std::size_t i = 0; i < std::min(names.size(), kMostTold); ++i) {
        texts.append(QStringLiteral("Program %1 is %2 in this schedule, and %3 in the catalog: what"
                                    " plays is the latter.")
                         .arg(QString::number(names[i].progIndex), inQuotes(names[i].inEntries),
                              inQuotes(names[i].inCatalogue)));
    }
    if (names.size() > kMostTold) {
        texts.append(QStringLiteral("So it is with %1 more.")
                         .arg(counted(static_cast<qint64>(names.size() - kMostTold),
                                      QStringLiteral("program"))));
    }
    return texts;
}

} // namespace trel::console
