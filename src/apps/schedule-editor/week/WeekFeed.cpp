#include "week/WeekFeed.h"

#include "clock/Clock.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <algorithm>

using namespace trel::mediadispatch;

namespace week {

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

WeekFeed::WeekFeed(QObject* parent)
    : QObject(parent)
{
    ScheduleHost& host = ScheduleHost::instance();
    const auto stale = [this] { markStale(); };
    connect(&host, &ScheduleHost::catalogueChanged, this, stale);
    connect(&host, &ScheduleHost::workingSetChanged, this, [this] {
        if (m_source == WeekSource::Edited) {
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
        markStale();
    }
}

void WeekFeed::setWatched(bool isWatched)
{
    m_isWatched = isWatched;
    if (m_isWatched && m_isStale) {
        fetch();
    }
}

void WeekFeed::markStale()
{
    m_isStale = true;
    if (m_isWatched) {
        fetch();
    }
}

void WeekFeed::checkInEffect()
{
    const ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    if (!isSame(dispatch.insertions(), m_insertions) || dispatch.tasks() != m_tasksInEffect) {
        markStale();
    }
}

WeekSchedule::Tasks WeekFeed::tasks() const
{
    return m_source == WeekSource::Edited ? scheduleManage::getInstance().getAllTask()
                                          : ScheduleHost::instance().dispatch().tasks();
}

ScreenInsertions WeekFeed::insertions() const
{
    return m_source == WeekSource::Edited ? ScreenInsertions()
                                          : ScheduleHost::instance().dispatch().insertions();
}

void WeekFeed::fetch()
{
    m_isStale = false;
    const auto schedule =
        std::make_shared<const WeekSchedule>(tasks(), scheduleManage::getInstance().getPrograms(),
                                             insertions(), Clock::current().zone());
    m_insertions = insertions();
    m_tasksInEffect = m_source == WeekSource::InEffect ? schedule->tasks() : WeekSchedule::Tasks();
    emit changed(schedule);
}

} // namespace week
