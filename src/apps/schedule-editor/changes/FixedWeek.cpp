#include "changes/FixedWeek.h"

#include "clock/Clock.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "week/WeekView.h"
#include "week/WeekWork.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace trel::mediadispatch;

namespace trel::desktop::changes {

FixedWeek::FixedWeek(const QString& name, const look::ThemeColours& colours, QWidget* parent)
    : QWidget(parent)
    , m_name(new QLabel(name, this))
    , m_view(new week::WeekView(this))
    , m_pictures(std::make_shared<week::WeekWork>())
{
    m_name->setTextFormat(Qt::PlainText);
    m_view->setAccessibleName(name);
    m_view->setColours(colours);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_name);
    layout->addWidget(m_view, 1);
    connect(m_view, &week::WeekView::weekChanged, this, [this] {
        if (m_hasTasks) {
            order({});
        }
    });
}

FixedWeek::~FixedWeek() = default;

void FixedWeek::setTasks(const std::map<int, PlayTask>& tasks)
{
    follow::ScheduleEdits all;
    all.isWhole = true;
    all.catalogue = ScheduleHost::instance().catalogue();
    for (const auto& [id, task] : tasks) {
        all.tasks.emplace_hint(all.tasks.end(), id, std::make_shared<const PlayTask>(task));
        all.size += 1 + task.plans.size();
    }
    m_isShort = all.isShort();
    m_hasTasks = true;
    order(all);
}

void FixedWeek::order(const follow::ScheduleEdits& edits)
{
    m_pictures->order(edits, {m_view->firstDay(), Clock::current().zone(), {}});
    const auto work = [this, pictures = m_pictures](const follow::Cancellation& cancellation) {
        const std::optional<week::WeekPicture> picture = pictures->make(cancellation);
        return follow::NewestWork::Outcome([this, picture] {
            if (picture) {
                m_view->setPicture(*picture);
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
