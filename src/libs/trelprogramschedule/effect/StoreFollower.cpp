#include "StoreFollower.h"

#include "ServerLook.h"
#include "store/StorePlace.h"

#include <QFile>
#include <QMetaObject>

#include <chrono>

namespace trel::mediadispatch {

namespace {

/// How long the pieces of a writing are gathered.
constexpr std::chrono::milliseconds kGathering{50};
constexpr std::chrono::seconds kRound{1};

} // namespace

StoreFollower::StoreFollower(const QString& store)
{
    if (StorePlace::isAddress(store)) {
        followServer(store);
    } else {
        m_paths = QStringList{store, store + QStringLiteral("-wal")};
        followFile();
    }
}

StoreFollower::~StoreFollower()
{
    if (m_server) {
        QMetaObject::invokeMethod(m_server.get(), [this] {
            m_server->end();
            m_thread.quit();
        });
        m_thread.wait();
    }
}

void StoreFollower::followServer(const QString& store)
{
    m_server = std::make_unique<ServerLook>(store);
    m_server->moveToThread(&m_thread);
    connect(m_server.get(), &ServerLook::changed, this, &StoreFollower::due);
    m_thread.setObjectName(QStringLiteral("server"));
    m_thread.start(QThread::LowPriority);
    QMetaObject::invokeMethod(m_server.get(), [look = m_server.get()] { look->begin(); });
}

void StoreFollower::lookAgain()
{
    // A file is looked at with each round.
    if (m_server) {
        QMetaObject::invokeMethod(m_server.get(),
                                  [look = m_server.get()] { look->expectNothing(); });
    }
}

void StoreFollower::followFile()
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(kGathering);
    connect(&m_soon, &QTimer::timeout, this, &StoreFollower::look);
    m_round.setTimerType(Qt::PreciseTimer);
    connect(&m_round, &QTimer::timeout, this, &StoreFollower::look);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, [this] {
        if (!m_soon.isActive()) {
            m_soon.start();
        }
    });
    watch();
    m_round.start(kRound);
}

/// The log may not be there at first, and either file may be replaced.
void StoreFollower::watch()
{
    const QStringList watched = m_files.files();
    for (const QString& path : m_paths) {
        if (!watched.contains(path) && QFile::exists(path)) {
            m_files.addPath(path);
        }
    }
}

void StoreFollower::look()
{
    watch();
    m_round.start();
    emit due();
}

} // namespace trel::mediadispatch
