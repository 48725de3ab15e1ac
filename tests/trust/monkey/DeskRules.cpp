#include "DeskRules.h"

#include "Desk.h"
#include "MultiComboBox.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "service/DateText.h"
#include "service/TimeText.h"
#include "support/PlanTaskWidgetInspector.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelwidgets/ComboBox.h"
#include "trelwidgets/Dialog.h"
#include "trelwidgets/TipDialog.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDateEdit>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QScreen>
#include <QSpinBox>
#include <QWindow>

#include <algorithm>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using trel::widgets::TipDialog;

namespace rules {

namespace {

/// So much of a head has to be on the screen that it can be taken hold of.
constexpr int kHead = 20;

QWidgetList shownWindows()
{
    QWidgetList shown;
    const QWidgetList all = QApplication::topLevelWidgets();
    std::copy_if(all.begin(), all.end(), std::back_inserter(shown), [](const QWidget* window) {
        return window->isVisible() && window->windowType() != Qt::ToolTip &&
               window->windowType() != Qt::Desktop;
    });
    return shown;
}

QString described(const QWidget& widget)
{
    return QStringLiteral("%1 '%2' \"%3\"")
        .arg(QLatin1String(widget.metaObject()->className()), widget.objectName(),
             widget.windowTitle());
}

QString textOf(const QWidget& prompt)
{
    const auto* const label = prompt.findChild<QLabel*>(QStringLiteral("dialogTipLabel"));
    return label ? label->text() : described(prompt);
}

/// A plan as the file of a schedule has it, without the mark that every display works out afresh.
QString json(PlayTask task)
{
    for (PlayPlan& plan : task.plans) {
        plan.isConflict = false;
    }
    return QString::fromUtf8(scheduleToJson({{task.id, task}}));
}

QString differing(const char* what, const QString& shown, const QString& held)
{
    return shown == held ? QString()
                         : QStringLiteral("%1 shows %2 instead of %3; ")
                               .arg(QLatin1String(what), shown, held);
}

/// What the text of a box stands for, which keeps its words when the language changes.
QString shownDays(MultiComboBox& box)
{
    if (box.toolTip().isEmpty()) {
        // A choice of nothing stands for every day, and shows nothing until the card is built
        // again.
        return QStringLiteral("0");
    }
    box.restoreCheckMarks();
    QStringList days;
    for (int day = 0; day < box.count(); ++day) {
        if (box.itemData(day, Qt::CheckStateRole).toBool()) {
            days.append(QString::number(day));
        }
    }
    return days.join(QLatin1Char(','));
}

QString brokenByRow(const PlanTaskWidgetInspector& card, int row, const PlayPlan& plan)
{
    const auto number = [](int value) { return QString::number(value); };
    const auto text = [](const std::string& value) { return QString::fromStdString(value); };
    // Without a length of each program no runs can be counted; a plan that was made elsewhere is
    // shown so until it is edited.
    const int mode = card.mode(row).isEnabled() ? plan.mode : int(TimeMode);
    return differing("mode", number(card.mode(row).currentIndex()), number(mode)) +
           differing("start", text(timeToText(card.startTime(row).time())), text(plan.startTime)) +
           differing("end", text(timeToText(card.endTime(row).time())), text(plan.endTime)) +
           differing("times", number(card.times(row).value()),
                     number(std::clamp(plan.times, card.times(row).minimum(),
                                       card.times(row).maximum()))) +
           (card.weeks(row).view()->isVisible()
                ? QString()
                : differing(qPrintable(QStringLiteral("days (%1)").arg(card.weeks(row).toolTip())),
                            shownDays(card.weeks(row)),
                            plan.weeks.empty() ? QStringLiteral("0") : text(plan.weeks))) +
           differing("end action", number(card.endAction(row).currentIndex()),
                     number(plan.endAction));
}

QString shownDay(const PlanTaskWidget& card, const char* name)
{
    return QString::fromStdString(
        dateToText(card.findChild<QDateEdit*>(QLatin1String(name))->date()));
}

QString brokenByCard(PlanTaskWidget& widget, const PlayTask& held)
{
    const PlanTaskWidgetInspector card(widget);
    if (json(card.task()) != json(held)) {
        return QStringLiteral("holds\n%1\ninstead of\n%2").arg(json(card.task()), json(held));
    }
    QString broken = differing("first day", shownDay(widget, "dateEditVaildStartTime"),
                               QString::fromStdString(held.startDate)) +
                     differing("last day", shownDay(widget, "dateEditVaildEndTime"),
                               QString::fromStdString(held.endDate));
    if (widget.isFolded()) {
        return broken;
    }
    broken += card.disagreement();
    for (int row = 0; broken.isEmpty() && row < card.rowCount(); ++row) {
        const QString byRow = brokenByRow(card, row, held.plans.at(static_cast<std::size_t>(row)));
        if (!byRow.isEmpty()) {
            broken += QStringLiteral("row %1: ").arg(row) + byRow;
        }
    }
    return broken;
}

} // namespace

QString brokenByPrompts()
{
    const QWidgetList shown = shownWindows();
    QList<const QWidget*> prompts;
    for (const QWidget* const window : shown) {
        if (!qobject_cast<const TipDialog*>(window)) {
            continue;
        }
        prompts.append(window);
        const bool hasOthers = std::any_of(shown.begin(), shown.end(), [](const QWidget* other) {
            return !qobject_cast<const TipDialog*>(other) && other->windowType() == Qt::Window;
        });
        if (hasOthers && !window->windowHandle()->transientParent()) {
            return QStringLiteral("a prompt belongs to no window: ") + textOf(*window);
        }
    }
    if (prompts.size() > 1) {
        return QStringLiteral("%1 prompts at once: \"%2\" and \"%3\"")
            .arg(prompts.size())
            .arg(textOf(*prompts.at(0)), textOf(*prompts.at(1)));
    }
    return {};
}

QString brokenByPlaces()
{
    const QWidgetList shown = shownWindows();
    for (const QWidget* const window : shown) {
        const QRect area = window->screen()->availableGeometry();
        const QRect place = window->frameGeometry();
        const QRect head(place.topLeft(), QSize(place.width(), kHead));
        // What the toolkit places itself may reach beyond the screen, as the window may that it
        // belongs to.
        const bool isOurs = qobject_cast<const trel::widgets::Dialog*>(window) ||
                            qobject_cast<const TipDialog*>(window);
        const bool fits = place.width() <= area.width() && place.height() <= area.height();
        if (qobject_cast<const QDockWidget*>(window)) {
            continue;
        }
        if (isOurs && fits ? !area.contains(place) : !area.intersects(head)) {
            return QStringLiteral("off the screen at %1,%2 %3x%4: %5")
                .arg(place.x())
                .arg(place.y())
                .arg(place.width())
                .arg(place.height())
                .arg(described(*window));
        }
    }
    return {};
}

QString brokenByFocus()
{
    if (QApplication::activePopupWidget() || shownWindows().isEmpty()) {
        return {};
    }
    const QWidget* const active = QApplication::activeWindow();
    if (!active) {
        return QStringLiteral("no window is active");
    }
    const auto children = active->findChildren<QWidget*>();
    const bool takesFocus = std::any_of(children.begin(), children.end(), [](const QWidget* child) {
        return child->isVisible() && (child->focusPolicy() & Qt::TabFocus) != 0;
    });
    if (takesFocus && !QApplication::focusWidget()) {
        return QStringLiteral("nothing has the focus in ") + described(*active);
    }
    return {};
}

QString brokenByCards(Desk& desk)
{
    if (!desk.editor().isVisible()) {
        return {};
    }
    const auto& working = ScheduleHost::instance().workingSet();
    const QList<PlanTaskWidget*> cards = desk.editor().findChild<PlanList*>()->cards();
    if (cards.size() != static_cast<int>(working.size())) {
        return QStringLiteral("%1 cards of %2 tasks").arg(cards.size()).arg(working.size());
    }
    auto task = working.begin();
    for (PlanTaskWidget* const card : cards) {
        const QString broken = brokenByCard(*card, task->second);
        if (!broken.isEmpty()) {
            return QStringLiteral("the card of task %1: %2").arg(task->first).arg(broken);
        }
        ++task;
    }
    return {};
}

QString brokenByRemains()
{
    const QWidgetList shown = shownWindows();
    return shown.isEmpty() ? QString()
                           : QStringLiteral("left behind: ") + described(*shown.first());
}

} // namespace rules
