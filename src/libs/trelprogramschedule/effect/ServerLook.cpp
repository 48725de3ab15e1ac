#include "ServerLook.h"

#include "store/StoreAttempt.h"
#include "store/StoreEngines.h"
#include "store/StoreRevisions.h"

#include <chrono>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr std::chrono::seconds kRound{1};
/// A server that is slower than this has no news.
constexpr std::chrono::seconds kPatience{5};

bool isSame(const StoreRevision& a, const StoreRevision& b)
{
    return a.schedule == b.schedule && a.catalogue == b.catalogue && a.effect == b.effect &&
           a.names == b.names;
}

} // namespace

ServerLook::ServerLook(QString store)
    : m_store(std::move(store))
    , m_round(new QTimer(this))
{
    // The next one is a second after the end of the last, however long that took.
    m_round->setSingleShot(true);
    m_round->setInterval(kRound);
    connect(m_round, &QTimer::timeout, this, &ServerLook::look);
}

ServerLook::~ServerLook() = default;

void ServerLook::begin()
{
    m_round->start();
}

void ServerLook::end()
{
    m_round->stop();
    m_connection.reset();
}

void ServerLook::look()
{
    StoreRevision revision;
    QString identity;
    const StoreResult result = attempt(m_store, [&] {
        if (!m_connection) {
            m_connection = readerFor(m_store, kPatience);
        }
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
        revision = revisionOf(*m_connection);
        identity = m_connection->identity();
        transaction.commit();
    });
    m_round->start();
    if (!result) {
        // Whatever was done meanwhile is to be looked at then.
        m_hasState = false;
        return;
    }
    const bool isNews = !m_hasState || !isSame(revision, m_revision) || identity != m_identity;
    m_hasState = true;
    m_revision = revision;
    m_identity = identity;
    if (isNews) {
        emit changed();
    }
}

} // namespace trel::mediadispatch
