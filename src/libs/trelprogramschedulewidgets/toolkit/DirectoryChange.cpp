#include "DirectoryChange.h"

#include <QSet>

namespace trel::mediadispatch {

DirectoryChange directoryChange(const QStringList& former, const QStringList& fresh)
{
    if (former == fresh)
        return {};
    const QSet<QString> before(former.cbegin(), former.cend());
    const QSet<QString> now(fresh.cbegin(), fresh.cend());
    return {(now - before).values(), (before - now).values()};
}

} // namespace trel::mediadispatch
