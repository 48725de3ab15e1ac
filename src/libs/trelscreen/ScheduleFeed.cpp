#include "ScheduleFeed.h"

#include "clock/Clock.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <chrono>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::screen {

namespace {

/// How soon a store that has come back is noticed, and another time zone of the machine.
constexpr std::chrono::seconds kRound{1};

bool isSame(const StoreResult& one, const StoreResult& other)
{
    return one.problem == other.problem && one.cause.code == other.cause.code &&
           one.cause.arguments == other.cause.arguments;
}

} // namespace

ScheduleFeed::ScheduleFeed(QString store)
    : m_store(std::move(store))
    , m_round(this)
    , m_publishing(this)
{
    m_publishing.setSingleShot(true);
    connect(&m_publishing, &QTimer::timeout, this, &ScheduleFeed::publish);
    connect(&m_round, &QTimer::timeout, this, &ScheduleFeed::look);
}

void ScheduleFeed::start()
{
    m_host = &ScheduleHost::instance();
    connect(m_host, &ScheduleHost::effectChanged, this, &ScheduleFeed::publishSoon);
    connect(m_host, &ScheduleHost::catalogueChanged, this, &ScheduleFeed::publishSoon);
    connect(m_host, &ScheduleHost::changedElsewhere, this, &ScheduleFeed::takeOver);
    m_host->watchFiles();
    m_host->followStore();
    look();
    publish();
    m_round.start(kRound);
}

void ScheduleFeed::stop()
{
    m_round.stop();
    m_publishing.stop();
    if (ScheduleHost* host = std::exchange(m_host, nullptr)) {
        disconnect(host, nullptr, this, nullptr);
        host->followStore(false);
        host->watchFiles(false);
        host->close();
    }
}

void ScheduleFeed::look()
{
    if (!m_host->isOpen()) {
        const StoreResult opened = m_host->open(m_store, ScheduleHost::OpenMode::ReadOnly);
        note(opened);
        if (opened) {
            publishSoon();
        }
    }
    if (Clock::current().zone() != m_zone) {
        publishSoon();
    }
}

void ScheduleFeed::takeOver()
{
    note(m_host->reload());
}

void ScheduleFeed::note(const StoreResult& result)
{
    if (result) {
        if (std::exchange(m_loss, std::nullopt)) {
            emit found();
        }
    } else if (!m_loss || !isSame(*m_loss, result)) {
        m_loss = result;
        emit lost(result);
    }
}

/// One record for all that has changed within a turn of the event loop.
void ScheduleFeed::publishSoon()
{
    m_publishing.start(0);
}

void ScheduleFeed::publish()
{
    m_publishing.stop();
    const QTimeZone zone = Clock::current().zone();
    ScreenSchedule next;
    next.catalogue = m_host->catalogue();
    next.start = m_host->started();
    next.insertions = m_host->dispatch().insertions();
    if (m_told.timeline && next.catalogue == m_told.catalogue && next.start == m_told.start &&
        zone == m_zone) {
        next.timeline = m_told.timeline;
        next.tasks = m_told.tasks;
    } else {
        next.tasks = std::make_shared<const std::map<int, PlayTask>>(m_host->dispatch().tasks());
        next.timeline = std::make_shared<const ScreenTimeline>(*next.tasks, *next.catalogue, zone);
    }
    next.zone = zone;
    m_zone = zone;
    m_told = std::move(next);
    emit changed(m_told);
}

} // namespace trel::screen
