#pragma once

#include <QString>

/// A disk that can be filled up, for this process alone: a small file system of its own in memory
/// where the system lets a process have one, a limit to the size of its files otherwise.
class DiskLimit
{
public:
    /// Puts the disk at a folder, which must be empty.
    explicit DiskLimit(const QString& folder);

    QString kind() const;

    /// From now on nothing more fits.
    void fill();
    void free();

private:
    QString m_folder;
    bool m_isDisk;
};
