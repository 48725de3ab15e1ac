#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QString>
#include <QStringList>

/// Everything in a folder, to the byte, for telling whether something has left a trace there.
class FolderSnapshot
{
public:
    explicit FolderSnapshot(const QString& path)
    {
        const QDir folder(path);
        const QStringList names =
            folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        for (const QString& name : names) {
            QFile file(folder.filePath(name));
            m_files.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
        }
    }

    /// How a later state differs, a line a file; empty when it does not.
    QStringList differences(const FolderSnapshot& later) const
    {
        QStringList lines;
        for (auto file = m_files.begin(); file != m_files.end(); ++file) {
            if (!later.m_files.contains(file.key())) {
                lines.append(file.key() + QStringLiteral(" has gone"));
            } else if (later.m_files.value(file.key()) != file.value()) {
                lines.append(file.key() + QStringLiteral(" has changed"));
            }
        }
        for (auto file = later.m_files.begin(); file != later.m_files.end(); ++file) {
            if (!m_files.contains(file.key())) {
                lines.append(file.key() + QStringLiteral(" has come"));
            }
        }
        return lines;
    }

private:
    QMap<QString, QByteArray> m_files;
};
