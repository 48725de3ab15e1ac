#include "help/EntryText.h"

#include <QAction>
#include <QVariant>

namespace trel::desktop {

namespace {

constexpr char kName[] = "entryName";

} // namespace

QString withoutLetter(QString text)
{
    const int bracket = text.indexOf(QLatin1String("(&"));
    if (bracket > 0) {
        text.remove(bracket, text.indexOf(QLatin1Char(')'), bracket) - bracket + 1);
    }
    return text.remove(QLatin1Char('&')).trimmed();
}

QString entryName(const QAction& action)
{
    const QString name = action.property(kName).toString();
    return withoutLetter(name.isEmpty() ? action.text() : name);
}

void setEntryName(QAction& action, const QString& name)
{
    action.setProperty(kName, name);
}

} // namespace trel::desktop
