#include "clock/ClockChangePanel.h"

#include "clock/Clock.h"
#include "service/DateText.h"
#include "service/TimeText.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ClockChanges.h"

#include <QEvent>

using namespace trel::mediadispatch;

namespace {

/// More than anybody plans for; tasks may last for thousands of years.
constexpr int kMostChanges = 24;

QString timeOfDay(int second)
{
    constexpr int kSecondsPerDay = 86'400;
    return second == kSecondsPerDay
               ? QStringLiteral("24:00:00")
               : QString::fromStdString(timeToText(QTime::fromMSecsSinceStartOfDay(second * 1000)));
}

} // namespace

ClockChangePanel::ClockChangePanel(QWidget* parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("clockChanges"));
    setWordWrap(true);
    setResizeMode(QListView::Adjust);
    setSelectionMode(QAbstractItemView::NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::workingSetChanged, this, &ClockChangePanel::follow);
    connect(&host, &ScheduleHost::catalogueChanged, this, &ClockChangePanel::follow);
}

QSize ClockChangePanel::sizeHint() const
{
    constexpr int kWidth = 420;
    constexpr int kLines = 6;
    return {kWidth, kLines * fontMetrics().lineSpacing()};
}

void ClockChangePanel::follow()
{
    // What is hidden is worked out when it is shown.
    if (isVisible()) {
        reload();
    }
}

void ClockChangePanel::reload()
{
    clear();
    setAccessibleName(tr("Changes of the clocks"));
    scheduleManage& manager = scheduleManage::getInstance();
    const std::vector<TaskClockChange> changes =
        nextClockChanges(manager.getAllTask(), manager.getPrograms(), Clock::current().zone(),
                         Clock::current().today(), kMostChanges);
    for (const TaskClockChange& change : changes) {
        addChange(change);
    }
    if (changes.empty()) {
        addSentence(tr("No change of the clocks falls on a day of any task."), true);
    }
}

void ClockChangePanel::addSentence(const QString& sentence, bool isFaint)
{
    auto* item = new QListWidgetItem(sentence, this);
    item->setToolTip(sentence);
    if (isFaint) {
        item->setForeground(palette().brush(QPalette::PlaceholderText));
    }
}

void ClockChangePanel::addChange(const TaskClockChange& change)
{
    const QString date = QString::fromStdString(dateToText(change.change.date));
    const bool isLeftOut = change.change.isLeftOut();
    const QString head =
        (isLeftOut ? tr("%1: %2–%3 is left out;") : tr("%1: %2–%3 comes twice;"))
            .arg(date, timeOfDay(change.change.begin), timeOfDay(change.change.end)) +
        QLatin1Char(' ');
    for (const TouchedPlan& plan : change.plans) {
        addSentence(head + effect(change, plan), false);
    }
    if (change.plans.empty()) {
        addSentence(head + tr("it touches no plan of task %1.").arg(change.taskId), true);
    }
}

QString ClockChangePanel::effect(const TaskClockChange& change, const TouchedPlan& plan)
{
    const auto sentence = [&](const QString& text) {
        return text.arg(plan.planId).arg(change.taskId);
    };
    switch (plan.effect) {
    case ClockChangeEffect::Lost:
        return sentence(tr("plan %1 of task %2 does not play."));
    case ClockChangeEffect::BeginsLate:
        return sentence(tr("plan %1 of task %2 starts at %3 in the middle of its list."))
            .arg(timeOfDay(change.change.end));
    case ClockChangeEffect::EndsEarly:
        return sentence(tr("plan %1 of task %2 is cut off at %3."))
            .arg(timeOfDay(change.change.begin));
    case ClockChangeEffect::Skips:
        return sentence(tr("plan %1 of task %2 skips this part of its list."));
    case ClockChangeEffect::PlaysTwice:
        return sentence(tr("plan %1 of task %2 plays twice."));
    case ClockChangeEffect::BeginsTwice:
        return sentence(tr("plan %1 of task %2 starts twice at %3.")).arg(timeOfDay(plan.begin));
    case ClockChangeEffect::EndsTwice:
        return sentence(tr("plan %1 of task %2 ends twice at %3.")).arg(timeOfDay(plan.end));
    case ClockChangeEffect::RepeatsAPart:
        break;
    }
    return sentence(tr("plan %1 of task %2 repeats this part of its list."));
}

void ClockChangePanel::showEvent(QShowEvent* event)
{
    reload();
    QListWidget::showEvent(event);
}

void ClockChangePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange) {
        follow();
    }
    QListWidget::changeEvent(event);
}
