#include "clock/ClockChangePanel.h"

#include "clock/Clock.h"
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
    setAccessibleName(tr("Clock changes"));
    scheduleManage& manager = scheduleManage::getInstance();
    const std::vector<TaskClockChange> changes =
        nextClockChanges(manager.getAllTask(), manager.getPrograms(), Clock::current().zone(),
                         Clock::current().today(), kMostChanges);
    for (const TaskClockChange& change : changes) {
        addChange(change);
    }
    if (changes.empty()) {
        addSentence(tr("No clock change falls within the validity of any task."), true);
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
    const auto sentence = [&](const QString& text) {
        return text.arg(locale().toString(change.change.date, QLocale::ShortFormat),
                        timeOfDay(change.change.begin), timeOfDay(change.change.end));
    };
    for (const TouchedPlan& plan : change.plans) {
        addSentence(effect(sentence(wordsFor(plan.effect)), change, plan), false);
    }
    if (change.plans.empty()) {
        addSentence(sentence(change.change.isLeftOut()
                                 ? tr("%1: %2–%3 is skipped; no plan of task %4 is affected.")
                                 : tr("%1: %2–%3 occurs twice; no plan of task %4 is affected."))
                        .arg(change.taskId),
                    true);
    }
}

QString ClockChangePanel::wordsFor(ClockChangeEffect effect)
{
    switch (effect) {
    case ClockChangeEffect::Lost:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 does not play.");
    case ClockChangeEffect::BeginsLate:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 starts at %6 in the middle of its "
                  "list.");
    case ClockChangeEffect::EndsEarly:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 is cut off at %6.");
    case ClockChangeEffect::Skips:
        return tr("%1: %2–%3 is skipped; plan %4 of task %5 skips this part of its list.");
    case ClockChangeEffect::PlaysTwice:
        return tr("%1: %2–%3 occurs twice; plan %4 of task %5 plays twice.");
    case ClockChangeEffect::BeginsTwice:
        return tr("%1: %2–%3 occurs twice; plan %4 of task %5 starts twice at %6.");
    case ClockChangeEffect::EndsTwice:
        return tr("%1: %2–%3 occurs twice; plan %4 of task %5 ends twice at %6.");
    case ClockChangeEffect::RepeatsAPart:
        break;
    }
    return tr("%1: %2–%3 occurs twice; plan %4 of task %5 repeats this part of its list.");
}

QString ClockChangePanel::effect(const QString& words, const TaskClockChange& change,
                                 const TouchedPlan& plan)
{
    const QString sentence = words.arg(plan.planId).arg(change.taskId);
    switch (plan.effect) {
    case ClockChangeEffect::BeginsLate:
        return sentence.arg(timeOfDay(change.change.end));
    case ClockChangeEffect::EndsEarly:
        return sentence.arg(timeOfDay(change.change.begin));
    case ClockChangeEffect::BeginsTwice:
        return sentence.arg(timeOfDay(plan.begin));
    case ClockChangeEffect::EndsTwice:
        return sentence.arg(timeOfDay(plan.end));
    case ClockChangeEffect::Lost:
    case ClockChangeEffect::Skips:
    case ClockChangeEffect::PlaysTwice:
    case ClockChangeEffect::RepeatsAPart:
        break;
    }
    return sentence;
}

void ClockChangePanel::showEvent(QShowEvent* event)
{
    reload();
    QListWidget::showEvent(event);
}

void ClockChangePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange ||
        event->type() == QEvent::PaletteChange) {
        follow();
    }
    QListWidget::changeEvent(event);
}
