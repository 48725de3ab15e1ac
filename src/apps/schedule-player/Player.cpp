#include "Player.h"

#include "PlayerStatusWriter.h"
#include "asrun/AsRunKeeper.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelscreen/MirrorFeed.h"
#include "trelscreen/ScheduleFeed.h"

#include <QCoreApplication>
#include <QSysInfo>

#include <chrono>
#include <cstdlib>

using namespace std::chrono_literals;
using namespace trel::mediadispatch;
using namespace trel::screen;

namespace trel::player {

namespace {

/// How often a player is heard of at least, and at most.
constexpr auto kRound = 10s;
constexpr auto kChange = 1s;
/// How long the thread may take to end. The whole program has a second.
constexpr auto kFarewell = 250ms;

QString thisPlayer()
{
    return QStringLiteral("%1 %2@%3")
        .arg(QCoreApplication::applicationName(),
             QString::number(QCoreApplication::applicationPid()), QSysInfo::machineHostName());
}

QString troubleText(MediaTrouble trouble)
{
    switch (trouble) {
    case MediaTrouble::None:
        break;
    case MediaTrouble::NotThere:
        return QStringLiteral("it is not there yet");
    case MediaTrouble::Broken:
        return QStringLiteral("the way there is cut, and what came is kept");
    case MediaTrouble::OtherContent:
        return QStringLiteral("it holds something else than it should");
    case MediaTrouble::NoRoom:
        return QStringLiteral("there is no room for it");
    case MediaTrouble::NotWritable:
        return QStringLiteral("the disk does not take it");
    }
    return {};
}

/// For the manager of services: "plays “News”".
QString shortText(const PlayerStatus& status)
{
    const QString name = hosts::inQuotes(hosts::printable(status.program));
    if (status.isStandIn) {
        return status.keepsLastPicture ? QStringLiteral("stands still in %1").arg(name)
                                       : QStringLiteral("cannot show %1").arg(name);
    }
    switch (status.shown.picture) {
    case ScreenPicture::Black:
        break;
    case ScreenPicture::Playing:
        return QStringLiteral("plays %1").arg(name);
    case ScreenPicture::Frozen:
        return QStringLiteral("last frame of %1").arg(name);
    }
    return QStringLiteral("black screen");
}

} // namespace

Player::Player(const AsRunPlace& place, Stage& stage, Deck& first, Deck& second,
               const MirrorSettings& mirror)
    : m_store(place.store)
    , m_address(mirror.address)
    , m_screen(place.screen)
    , m_started(Clock::current().msecsSinceEpoch())
    , m_asRun(place)
    , m_conductor(stage, first, second, m_events)
    , m_statusWriter(std::make_unique<PlayerStatusWriter>(m_store))
{
    qRegisterMetaType<PlayerStatus>();
    makeFeed(mirror);
    m_feed->moveToThread(&m_thread);
    m_statusWriter->moveToThread(&m_thread);
    connect(&m_log, &PlayerLog::line, this,
            [this](const QString& line) { m_logWriter.write(line); });
    connect(this, &Player::statusDue, m_statusWriter.get(), &PlayerStatusWriter::write);
    connect(m_statusWriter.get(), &PlayerStatusWriter::failed, this, [this](const QString& reason) {
        m_log.tell(
            QStringLiteral("\"schedulectl screens\" does not hear of this player: %1").arg(reason));
    });
    connect(&m_asRun, &AsRunRecording::told, this,
            [this](const QString& line) { m_log.tell(line); });
    m_asRun.follow(m_conductor);
    tellOfStore();
    connect(m_feed.get(), &ScreenFeed::changed, this, [this](const ScreenSchedule& schedule) {
        m_asRun.take(schedule);
        m_conductor.setSchedule(schedule);
        follow();
    });
    connect(&m_thread, &QThread::started, m_feed.get(), &ScreenFeed::start);

    m_change.setSingleShot(true);
    m_change.setInterval(kChange);
    connect(&m_change, &QTimer::timeout, this, &Player::tellStatus);
    connect(&m_round, &QTimer::timeout, this, &Player::tellStatus);
    connect(&m_conductor, &Conductor::changed, this, [this] {
        if (m_isReady && !m_change.isActive()) {
            m_change.start();
        }
    });
    m_thread.start();
}

Player::~Player()
{
    m_manager.tellStopping();
    m_log.tell(QStringLiteral("ends"));
    const auto leave = [this] {
        m_statusWriter->remove(m_screen);
        m_feed->stop();
        m_thread.quit();
    };
    QMetaObject::invokeMethod(m_feed.get(), leave, Qt::QueuedConnection);
    m_asRun.leave();
    const auto farewell = std::chrono::milliseconds(kFarewell).count();
    const bool isRecorded = m_asRun.waitForEnd(farewell);
    if (!m_thread.wait(farewell) || !isRecorded) {
        // One hangs in a disk. The store is only read, and records that are not in the spool would
        // not get there.
        m_logWriter.finish();
        std::_Exit(EXIT_SUCCESS);
    }
}

void Player::makeFeed(const MirrorSettings& mirror)
{
    if (m_address.isEmpty()) {
        m_feed = std::make_unique<ScheduleFeed>(m_store);
        return;
    }
    auto feed = std::make_unique<MirrorFeed>(mirror, m_store);
    connect(feed.get(), &MirrorFeed::mediaFailed, this, &Player::tellOfMedia);
    m_feed = std::move(feed);
}

void Player::tellOfMedia(const QString& program, MediaTrouble trouble, const QString& words)
{
    const QString more = words.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(words);
    m_log.tell(QStringLiteral("cannot fetch the file of %1: %2%3; it is tried again")
                   .arg(hosts::inQuotes(hosts::printable(program)), troubleText(trouble),
                        hosts::printable(more)));
}

void Player::Events::note(const ScreenEvent& event)
{
    m_log.note(event);
    m_asRun.log().note(event);
}

void Player::tellOfStore()
{
    m_log.tell(QStringLiteral("screen %1 follows %2")
                   .arg(hosts::inQuotes(hosts::printable(m_screen)), hosts::printable(followed())));
    if (!m_address.isEmpty()) {
        m_log.tell(QStringLiteral("plays from the mirror in %1").arg(hosts::printable(m_store)));
    }
    connect(m_feed.get(), &ScreenFeed::lost, this, [this](const StoreResult& reason) {
        m_log.tell(hosts::printable(englishText(reason)) +
                   (m_address.isEmpty()
                        ? QStringLiteral(" What was read before goes on; the file is tried again "
                                         "every second.")
                        : QStringLiteral(" What the mirror held before goes on; the server is "
                                         "asked again every few seconds.")));
    });
    connect(m_feed.get(), &ScreenFeed::found, this, [this] {
        m_log.tell(QStringLiteral("%1 is read again").arg(hosts::printable(followed())));
    });
}

/// The first schedule, or the certainty that there is none, is what the player was started for.
void Player::follow()
{
    if (!m_isReady) {
        m_isReady = true;
        m_manager.tellReady();
        tellStatus();
    }
}

void Player::tellStatus()
{
    const PlayerStatus now = status();
    m_manager.tellStatus(shortText(now));
    emit statusDue(now);
    m_round.start(kRound);
}

PlayerStatus Player::status() const
{
    const ScreenStatus shown = m_conductor.status();
    PlayerStatus status;
    status.screen = m_screen;
    status.player = thisPlayer();
    status.started = m_started;
    status.heard = Clock::current().msecsSinceEpoch();
    status.shown = shown.play.state;
    status.program = shown.play.isBlack() ? QString() : shown.play.name;
    status.isStandIn = !shown.isOnTimeline;
    status.keepsLastPicture = shown.keepsLastPicture;
    status.switches = tally().switches();
    status.medianLateness = static_cast<double>(tally().lateness(50));
    status.worstLateness = static_cast<double>(tally().worstLateness());
    status.faults = tally().faults();
    status.lastFault = m_log.lastFault();
    status.lastFaultAt = m_log.lastFaultAt();
    return status;
}

} // namespace trel::player
