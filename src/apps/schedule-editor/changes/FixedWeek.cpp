#include "changes/FixedWeek.h"

#include "clock/Clock.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "week/WeekView.h"
#include "week/WeekWork.h"

using namespace trel::mediadispatch;

namespace trel::desktop::changes {

FixedWeek::FixedWeek(week::WeekView& view, const std::map<int, PlayTask>& tasks)
    : QObject(&view)
    , m_view(view)
    , m_pictures(std::make_shared<week::WeekWork>())
{
    follow::ScheduleEdits all;
    all.isWhole = true;
    all.catalogue = ScheduleHost::instance().catalogue();
    for (const auto& [id, task] : tasks) {
        all.tasks.emplace_hint(all.tasks.end(), id, std::make_shared<const PlayTask>(task));
        all.size += 1 + task.plans.size();
    }
    m_isShort = all.isShort();
    order(all);
    connect(&view, &week::WeekView::weekChanged, this, [this] { order({}); });
}

FixedWeek::~FixedWeek() = default;

void FixedWeek::order(const follow::ScheduleEdits& edits)
{
    m_pictures->order(edits, {m_view.firstDay(), Clock::current().zone(), {}});
    const auto work = [this, pictures = m_pictures](const follow::Cancellation& cancellation) {
        const std::optional<week::WeekPicture> picture = pictures->make(cancellation);
        return follow::NewestWork::Outcome([this, picture] {
            if (picture) {
                m_view.setPicture(*picture);
            }
        });
    };
    if (m_isShort && !m_work.isBusy()) {
        m_work.carryOut(work);
    } else {
        m_work.start(work);
    }
}

} // namespace trel::desktop::changes
