#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace trel::mediadispatch {

/// Tells when it is time to look whether another program has changed a store that is open here:
/// soon after the system tells that its files were written, and once a second at most besides, for
/// file systems that tell nothing and for commits that take long.
class StoreFollower : public QObject
{
    Q_OBJECT

public:
    explicit StoreFollower(const QString& store);

signals:
    void due();

private:
    void watch();
    void look();

    QStringList m_paths;
    QFileSystemWatcher m_files;
    QTimer m_soon;  ///< After a writing, which comes in several pieces.
    QTimer m_round; ///< Since the last look.
};

} // namespace trel::mediadispatch
