#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThread>
#include <QTimer>

#include <memory>

namespace trel::mediadispatch {

class ServerLook;

/// Tells when it is time to look whether another program has changed a store that is open here:
/// soon after the system tells that its files were written, and once a second at most besides, for
/// file systems that tell nothing and for commits that take long. Of a store on a server, a thread
/// of its own looks once a second, and it is time when that has found something else than before:
/// a server that cannot be reached keeps nobody waiting.
class StoreFollower : public QObject
{
    Q_OBJECT

public:
    explicit StoreFollower(const QString& store);
    ~StoreFollower() override;

    /// What was there was not taken over: the next look tells of it once more.
    void lookAgain();

signals:
    void due();

private:
    void followFile();
    void followServer(const QString& store);
    void watch();
    void look();

    QStringList m_paths;
    QFileSystemWatcher m_files;
    QTimer m_soon;  ///< After a writing, which comes in several pieces.
    QTimer m_round; ///< Since the last look.
    QThread m_thread;
    std::unique_ptr<ServerLook> m_server; ///< Works in the thread; null for a file.
};

} // namespace trel::mediadispatch
