#include "ScheduleRun.h"

#include "Console.h"
#include "ScheduleReport.h"
#include "service/Clock.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <QJsonDocument>

#include <chrono>
#include <tuple>

using namespace trel::mediadispatch;

namespace {

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
    connect(&m_signals, &StopSignals::stopped, &m_loop, &QEventLoop::quit);
    connect(&m_watch, &StoreWatch::written, this, &ScheduleRun::takeOver);
    connect(&database.host().dispatch(), &ScreenDispatch::changed, this, &ScheduleRun::write);
}

ExitStatus ScheduleRun::run()
{
    if (!m_watch.isWatching()) {
        m_console.tell(QStringLiteral("The system does not tell of changes of files; what other "
                                      "programs save will not be taken over."));
    }
    m_database.host().watchFiles();
    // What was saved before the watch began is not missed.
    m_database.tasks();
    putIntoEffect();
    write(m_database.host().dispatch().state());
    if (m_console.arrives()) {
        m_loop.exec();
    }
    return m_console.arrives() ? Done : Refused;
}

void ScheduleRun::takeOver()
{
    m_programs.reset();
    bool isAnother = false;
    const auto connection = connect(&m_database.host(), &ScheduleHost::storedSetChanged, this,
                                    [&isAnother] { isAnother = true; });
    const StoreResult result = m_database.host().reload();
    disconnect(connection);
    if (!result) {
        constexpr std::chrono::seconds pause{2};
        if (!m_isTold) {
            m_console.tell(result.message);
        }
        m_isTold = true;
        QTimer::singleShot(pause, this, &ScheduleRun::takeOver);
        return;
    }
    m_isTold = false;
    if (isAnother) {
        m_console.tell(QStringLiteral("Another program has saved the schedule; %1 in effect.")
                           .arg(sizeText(m_database.tasks())));
        putIntoEffect();
    }
}

void ScheduleRun::putIntoEffect()
{
    scheduleManage::getInstance().slotOpen();
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
    const LocalClock local(Clock::current().zone());
    const ScreenWords words({m_database.host().dispatch().tasks(), *m_programs, local});
    if (m_json) {
        QJsonObject object = words.json(state);
        object.insert(QStringLiteral("moment"), words.jsonMoment(moment));
        object.insert(QStringLiteral("why"), words.reasonText(state));
        m_console.write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
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
