#include "week/WeekFeed.h"

#include "clock/Clock.h"
#include "follow/EditedSchedule.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <algorithm>
#include <optional>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

bool isSame(const ScreenInsertion& a, const ScreenInsertion& b)
{
    return a.taskId == b.taskId && a.planId == b.planId && a.begins == b.begins &&
           a.ends == b.ends && a.plan == b.plan;
}

bool isSame(const ScreenInsertions& a, const ScreenInsertions& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const ScreenInsertion& one, const ScreenInsertion& other) {
                          return isSame(one, other);
                      });
}

} // namespace

WeekFeed::WeekFeed(follow::EditedSchedule& edited, QObject* parent)
    : QObject(parent)
    , m_edited(edited)
    , m_pictures(std::make_shared<WeekWork>())
{
    ScheduleHost& host = ScheduleHost::instance();
    // While it is watched, the edited schedule tells what has changed in it.
    const auto noteEdit = [this] {
        if (m_source == WeekSource::Edited && !m_isWatched) {
            markStale();
        }
    };
    connect(&host, &ScheduleHost::workingSetChanged, this, noteEdit);
    connect(&host, &ScheduleHost::catalogueChanged, this, noteEdit);
    connect(&host, &ScheduleHost::catalogueChanged, this, [this] {
        if (m_source == WeekSource::InEffect) {
            markStale();
        }
    });
    connect(&host.dispatch(), &ScreenDispatch::changed, this, [this] {
        if (m_source == WeekSource::InEffect) {
            checkInEffect();
        }
    });
}

WeekFeed::~WeekFeed() = default;

void WeekFeed::setSource(WeekSource source)
{
    if (m_source != source) {
        m_source = source;
        watchEdits();
        markStale();
    }
}

void WeekFeed::setWeek(const QDate& first)
{
    m_week = first;
    if (m_isOnItsWay) {
        follow::ScheduleEdits none;
        none.size = m_size;
        order(none);
    }
}

void WeekFeed::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    watchEdits();
    if (m_isWatched && m_isStale) {
        orderAll();
    }
}

void WeekFeed::watchEdits()
{
    disconnect(m_following);
    if (m_isWatched && m_source == WeekSource::Edited) {
        m_following = connect(&m_edited, &follow::EditedSchedule::edited, this, &WeekFeed::order);
    }
}

void WeekFeed::markStale()
{
    m_isStale = true;
    if (m_isWatched) {
        orderAll();
    }
}

void WeekFeed::checkInEffect()
{
    const ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    if (!isSame(dispatch.insertions(), m_insertions) || dispatch.tasks() != m_tasksInEffect) {
        markStale();
    }
}

void WeekFeed::orderAll()
{
    m_isStale = false;
    order(everything());
}

follow::ScheduleEdits WeekFeed::everything()
{
    if (m_source == WeekSource::Edited) {
        m_tasksInEffect.clear();
        m_insertions.clear();
        return m_edited.everything();
    }
    const ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    m_tasksInEffect = dispatch.tasks();
    m_insertions = dispatch.insertions();
    follow::ScheduleEdits all;
    all.isWhole = true;
    all.catalogue = ScheduleHost::instance().catalogue();
    for (const auto& [id, task] : m_tasksInEffect) {
        all.tasks.emplace_hint(all.tasks.end(), id, std::make_shared<const PlayTask>(task));
        all.size += 1 + task.plans.size();
    }
    return all;
}

void WeekFeed::order(const follow::ScheduleEdits& edits)
{
    m_pictures->order(edits, {m_week, Clock::current().zone(), m_insertions});
    m_isOnItsWay = true;
    m_size = edits.size;
    const auto work = [this, pictures = m_pictures](const follow::Cancellation& cancellation) {
        const std::optional<WeekPicture> picture = pictures->make(cancellation);
        return follow::NewestWork::Outcome([this, picture] {
            m_isOnItsWay = false;
            emit changed(*picture);
        });
    };
    if (edits.isShort() && !m_work.isBusy()) {
        m_work.carryOut(work);
    } else {
        m_work.start(work);
    }
}

} // namespace trel::desktop::week
