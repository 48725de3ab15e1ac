#pragma once

#include <QByteArray>
#include <QFile>

/// Whether this process has the libraries for media files loaded.
inline bool hasMediaLibraries()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    maps.open(QIODevice::ReadOnly);
    const QByteArray content = maps.readAll();
    // Without its own toolkit in it, the list would say nothing.
    Q_ASSERT(content.contains("libQt5Core"));
    return content.contains("/libav") || content.contains("/libsw");
}
