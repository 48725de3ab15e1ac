#include "screen/ScreenFollower.h"

#include "clock/Clock.h"
#include "clock/ClockAlarm.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/dispatch/SoughtPlay.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

constexpr qint64 kSecond = 1000;
constexpr std::size_t kComing = 3;
constexpr qint64 kComingTime = 8 * 24 * 3600 * kSecond;
/// Each costs a question; lists that alternate between few programs for long come to an end.
constexpr int kMostComingSteps = 100;

const ScreenInsertion* findAt(const ScreenInsertions& insertions, Instant moment)
{
    const auto found =
        std::find_if(insertions.begin(), insertions.end(),
                     [moment](const ScreenInsertion& i) { return i.hasScreenAt(moment); });
    return found == insertions.end() ? nullptr : &*found;
}

} // namespace

ScreenFollower::ScreenFollower(ScreenDispatch& dispatch, QObject* parent)
    : QObject(parent)
    , m_dispatch(dispatch)
{
    const auto follow = [this] {
        update();
        emit changed();
    };
    connect(&dispatch, &ScreenDispatch::changed, this, follow);
    // A program may have got another name, or its file come.
    connect(&ScheduleHost::instance(), &ScheduleHost::catalogueChanged, this, follow);
    update();
}

ScreenFollower::~ScreenFollower() = default;

void ScreenFollower::addViewer(QWidget& viewer)
{
    viewer.installEventFilter(this);
    connect(&viewer, &QObject::destroyed, this, [this](QObject* gone) { setVisible(gone, false); });
    setVisible(&viewer, viewer.isVisible());
}

bool ScreenFollower::isRunning() const
{
    return m_dispatch.isRunning();
}

void ScreenFollower::update()
{
    m_at = Clock::current().msecsSinceEpoch();
    const QTimeZone zone = local(m_at).timeZone();
    if (!m_clock || m_clock->zone() != zone) {
        m_clock = std::make_unique<MomentFormat>(zone);
    }
    m_now = sceneOf(m_dispatch.state(), m_at);
    m_next.reset();
    const Instant until = m_now.state.until;
    if (isRunning() && until != kNever) {
        m_next = sceneOf(m_dispatch.timeline().at(until, m_dispatch.insertions()), until);
    }
    findComing();
}

void ScreenFollower::findComing()
{
    m_coming.clear();
    if (!isRunning()) {
        return;
    }
    const Instant end = m_at + kComingTime;
    std::set<int> known{m_now.state.progIndex};
    int former = m_now.state.progIndex;
    Instant from = m_now.state.until;
    std::size_t again = 0; // Plays in a row of programs that are known.
    for (int step = 0; step < kMostComingSteps && m_coming.size() < kComing && from < end; ++step) {
        const std::optional<ScreenState> play = m_dispatch.timeline().nextPlay(
            from, end, m_dispatch.insertions(), SoughtPlay{former, true});
        if (!play) {
            return;
        }
        ScreenScene scene = sceneOf(*play, play->since);
        former = play->progIndex;
        const bool isNew = known.insert(former).second;
        again = isNew ? 0 : again + 1;
        // Once round its list, a plan has shown all that it has.
        const bool isThrough = again > scene.plan.programs.size();
        from = std::max(from + 1, isThrough ? play->spanUntil : play->until);
        again = isThrough ? 0 : again;
        if (isNew) {
            m_coming.push_back(std::move(scene));
        }
    }
}

ScreenScene ScreenFollower::sceneOf(const ScreenState& state, Instant moment) const
{
    ScreenScene scene;
    scene.state = state;
    scene.program.isNull = true;
    if (state.progIndex >= 0) {
        scene.program = scheduleManage::getInstance().getProgramItemByIndex(state.progIndex);
    }
    const ScreenInsertion* inserted =
        state.isInserted() ? findAt(m_dispatch.insertions(), moment) : nullptr;
    const auto task = m_dispatch.tasks().find(state.taskId);
    if (inserted != nullptr) {
        scene.plan = inserted->plan;
    } else if (task != m_dispatch.tasks().end() && state.planRow >= 0 &&
               state.planRow < static_cast<int>(task->second.plans.size())) {
        scene.plan = task->second.plans[static_cast<std::size_t>(state.planRow)];
    }
    return scene;
}

qint64 ScreenFollower::position() const
{
    const ScreenState& state = m_now.state;
    if (!state.isPlaying()) {
        return state.position;
    }
    const Instant now = Clock::current().msecsSinceEpoch();
    return std::max<qint64>(0, state.position + std::min(now, state.until) - m_at);
}

std::optional<qint64> ScreenFollower::timeTo(Instant moment) const
{
    if (moment == kNever) {
        return {};
    }
    return std::max<qint64>(0, moment - Clock::current().msecsSinceEpoch());
}

QDate ScreenFollower::today() const
{
    return local(Clock::current().msecsSinceEpoch()).date();
}

QDateTime ScreenFollower::local(Instant moment) const
{
    return m_dispatch.timeline().local(moment);
}

QString ScreenFollower::timeText(Instant moment) const
{
    return local(moment).toString(kTimeFormat) + m_clock->offsetMark(moment);
}

std::optional<ScreenInsertion> ScreenFollower::insertionAt(Instant moment) const
{
    const ScreenInsertion* found = findAt(m_dispatch.insertions(), moment);
    return found == nullptr ? std::nullopt : std::optional<ScreenInsertion>(*found);
}

bool ScreenFollower::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        setVisible(watched, event->type() == QEvent::Show);
    }
    return QObject::eventFilter(watched, event);
}

void ScreenFollower::setVisible(QObject* viewer, bool isVisible)
{
    if (isVisible) {
        m_visible.insert(viewer);
    } else {
        m_visible.erase(viewer);
    }
    if (m_visible.empty()) {
        m_alarm.reset();
    } else if (!m_alarm) {
        m_alarm = Clock::current().makeAlarm([this] { tick(); });
        setAlarm();
    }
}

void ScreenFollower::setAlarm()
{
    const Instant now = Clock::current().msecsSinceEpoch();
    m_alarm->set(now - now % kSecond + kSecond);
}

void ScreenFollower::tick()
{
    setAlarm();
    emit ticked();
}

} // namespace trel::desktop
