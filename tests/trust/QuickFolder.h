#pragma once

#include <QString>
#include <QTemporaryDir>

/// A folder for as long as the object lives, without a disk behind it where there is such a place.
/// Takes away the folders of processes that were ended before they could do so.
class QuickFolder
{
public:
    QuickFolder();

    QString path() const { return m_folder.path(); }
    QString filePath(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};
