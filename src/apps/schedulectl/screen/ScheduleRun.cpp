#include "ScheduleRun.h"

#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleReport.h"
#include "service/scheduleManage.h"
#include "text/Console.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QJsonDocument>

#include <chrono>
#include <tuple>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// How long another program is left alone that is about to commit.
constexpr std::chrono::milliseconds kCommitPause{50};
/// How long a file is left alone that cannot be read.
constexpr std::chrono::seconds kLossPause{2};
/// How often a file is read that cannot be written: it may tell too early of what is written into
/// it, and not at all of what a server holds.
constexpr std::chrono::seconds kReadingPause{2};

/// What a line tells; the position in the program goes on without an event.
auto toldOf(const ScreenState& state)
{
    return std::tie(state.picture, state.reason, state.taskId, state.planId, state.planRow,
                    state.entry, state.progIndex, state.play, state.run, state.since, state.until,
                    state.spanUntil);
}

} // namespace

ScheduleRun::ScheduleRun(const Database& database, bool json, Console& console)
    : m_database(database)
    , m_json(json)
    , m_console(console)
    , m_watch(database.path())
{
    connect(&m_signals, &hosts::StopSignals::stopped, &m_loop, &QEventLoop::quit);
    connect(&m_watch, &StoreWatch::written, this, &ScheduleRun::takeOver);
    m_nextLook.setSingleShot(true);
    connect(&m_nextLook, &QTimer::timeout, this, &ScheduleRun::takeOver);
    connect(&database.host().dispatch(), &ScreenDispatch::changed, this, &ScheduleRun::write);
    connect(&database.host(), &ScheduleHost::effectChanged, this, &ScheduleRun::tellOfEffect);
}

ExitStatus ScheduleRun::run()
{
    if (!m_database.isWritable()) {
        m_nextLook.start(kReadingPause);
    } else if (!m_watch.isWatching()) {
        m_console.tell(QStringLiteral("The system does not tell of changes of files; what other "
                                      "programs save will not be taken over."));
    }
    m_database.host().watchFiles();
    // What was saved or started before the watch began is not missed.
    m_database.tasks();
    m_started = m_database.host().started();
    playSaved();
    write(m_database.host().dispatch().state());
    if (m_console.arrives()) {
        m_loop.exec();
    }
    return m_console.arrives() ? Done : Refused;
}

void ScheduleRun::takeOver()
{
    ScheduleHost& host = m_database.host();
    if (host.isBeingWritten()) {
        m_nextLook.start(kCommitPause);
        return;
    }
    m_programs.reset();
    bool isAnother = false;
    const auto connection =
        connect(&host, &ScheduleHost::storedSetChanged, this, [&isAnother] { isAnother = true; });
    StoreResult result = host.reload();
    if (result && m_watch.renew()) {
        result = host.reload();
    }
    disconnect(connection);
    if (result) {
        tellOfReturn();
    } else {
        tellOfLoss(result);
        m_nextLook.start(kLossPause);
    }
    if (result && !m_database.isWritable()) {
        m_nextLook.start(kReadingPause);
    }
    if (isAnother) {
        m_console.tell(QStringLiteral("Another program has saved the schedule; %1.")
                           .arg(host.started()
                                    ? QStringLiteral("what is in effect goes on")
                                    : sizeText(m_database.tasks()) + QStringLiteral(" play now")));
        playSaved();
    }
}

void ScheduleRun::tellOfLoss(const StoreResult& result)
{
    const QString loss = englishText(result);
    if (loss != m_loss) {
        m_console.tell(loss +
                       QStringLiteral(" What was read before goes on; the file is tried again "
                                      "every two seconds."));
    }
    m_loss = loss;
}

void ScheduleRun::tellOfEffect()
{
    const auto started = m_database.host().started();
    if (started == m_started) {
        return;
    }
    m_started = started;
    m_console.tell(started ? QStringLiteral("Another program has put a schedule into effect; %1.")
                                 .arg(sizeText(m_database.host().dispatch().tasks()))
                           : QStringLiteral("Another program has ended what was in effect."));
}

void ScheduleRun::tellOfReturn()
{
    if (!m_loss.isEmpty()) {
        m_console.tell(QStringLiteral("%1 is read again.").arg(printable(m_database.path())));
    }
    m_loss.clear();
}

/// Where nothing is in effect.
void ScheduleRun::playSaved()
{
    m_database.host().rehearse();
}

void ScheduleRun::write(const ScreenState& state)
{
    if (m_last && toldOf(*m_last) == toldOf(state)) {
        return;
    }
    if (!m_programs) {
        m_programs = scheduleManage::getInstance().getPrograms();
    }
    const Instant moment = momentOf(state);
    m_last = state;
    const MomentFormat local(Clock::current().zone());
    const ScreenReport words({m_database.host().dispatch().tasks(), *m_programs, local});
    if (m_json) {
        QJsonObject object = words.json(state);
        object.insert(QStringLiteral("moment"), words.jsonMoment(moment));
        object.insert(QStringLiteral("why"), words.reasonText(state));
        m_console.writeJson(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
    } else {
        m_console.writeLine(QStringLiteral("%1  %2 until %3. %4")
                                .arg(local.text(moment), words.pictureText(state),
                                     words.untilText(state.until, moment),
                                     words.reasonText(state)));
    }
    if (!m_console.flush()) {
        m_loop.quit();
    }
}

/// The moment of the event itself, where this is told on time, and not the moment of telling.
Instant ScheduleRun::momentOf(const ScreenState& state) const
{
    constexpr Instant onTime = 1000; // milliseconds
    const Instant now = Clock::current().msecsSinceEpoch();
    const bool isEvent = m_last && state.since <= now && state.since > now - onTime;
    return isEvent ? state.since : now;
}

} // namespace trel::console
