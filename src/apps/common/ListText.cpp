#include "common/ListText.h"

namespace trel::hosts {

QString ListText::joined(const QStringList& parts)
{
    return parts.join(tr(", ", "between the parts of a list"));
}

} // namespace trel::hosts
