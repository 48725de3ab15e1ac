#include "DatabaseArgument.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

namespace trel::desktop {

bool isDatabaseFile(const QString& path)
{
    // With the zero at its end.
    static const QByteArray head("SQLite format 3", 16);
    // A pipe would be waited for.
    if (!QFileInfo(path).isFile()) {
        return false;
    }
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(head.size()) == head;
}

} // namespace trel::desktop
