#pragma once

#include <QDir>
#include <QFileInfo>
#include <QStringList>

/// The languages that have a file of texts.
inline QStringList languages()
{
    QStringList names;
    const QStringList files =
        QDir(QStringLiteral(LANGUAGE_SOURCE_DIR)).entryList({QStringLiteral("*.ts")});
    for (const QString& file : files) {
        names.append(QFileInfo(file).completeBaseName());
    }
    return names;
}
