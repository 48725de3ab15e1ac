#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>

/// The processes that any thread of this one has started and not collected yet, by their ids.
inline QStringList childProcesses()
{
    QStringList found;
    const QDir threads(QStringLiteral("/proc/self/task"));
    const QStringList ids = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& id : ids) {
        QFile children(threads.filePath(id + QStringLiteral("/children")));
        if (children.open(QIODevice::ReadOnly)) {
            found +=
                QString::fromLatin1(children.readAll()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        }
    }
    return found;
}
