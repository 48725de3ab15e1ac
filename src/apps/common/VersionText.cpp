#include "VersionText.h"

#include "trel_commit.h"

#include <QStringList>

namespace trel::hosts {

QString versionText(const char* program)
{
    const QString commit = QStringLiteral(TREL_COMMIT);
    QStringList made;
    if (!commit.isEmpty()) {
        made.append(QStringLiteral("commit ") + commit);
    }
    made.append(QStringLiteral("Qt ") + QLatin1String(qVersion()));
    return QStringLiteral("%1 %2 (%3)")
        .arg(QLatin1String(program), QStringLiteral(TREL_VERSION), made.join(QStringLiteral(", ")));
}

} // namespace trel::hosts
