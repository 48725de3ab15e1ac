#include "help/EntryText.h"

namespace trel::desktop {

QString withoutLetter(QString text)
{
    const int bracket = text.indexOf(QLatin1String("(&"));
    if (bracket > 0) {
        text.remove(bracket, text.indexOf(QLatin1Char(')'), bracket) - bracket + 1);
    }
    return text.remove(QLatin1Char('&')).trimmed();
}

} // namespace trel::desktop
