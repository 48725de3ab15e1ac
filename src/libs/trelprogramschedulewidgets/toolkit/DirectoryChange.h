#pragma once

#include <QStringList>

namespace trel::mediadispatch {

/// What came to a directory and what went, between two readings of its entries.
struct DirectoryChange
{
    QStringList added;
    QStringList removed;
};

/// Compares two readings of a directory. The order within either list is that of a hash set, so
/// it differs from run to run. Takes time linear in the entries.
DirectoryChange directoryChange(const QStringList& former, const QStringList& fresh);

} // namespace trel::mediadispatch
