#include "PlanTaskForm.h"

#include "EditorKeys.h"
#include "ScheduleText.h"
#include "service/DateText.h"
#include "service/ScheduleRecords.h"
#include "toolkit/StyleAgain.h"
#include "trelwidgets/PlainToolTip.h"

#include <QEnterEvent>
#include <QStringBuilder>
#include <QToolTip>
#include <QVBoxLayout>

namespace trel::mediadispatch {

namespace {

constexpr int kCardWidth = 1100;

void showToolTip(const QEvent& event, const QString& text, QPushButton* button)
{
    QToolTip::showText(static_cast<const QEnterEvent&>(event).globalPos(),
                       widgets::plainToolTip(text), button);
}

/// Lets a widget reach over the side margins of its layout, to the edges of the card.
class FullWidthItem : public QWidgetItem
{
public:
    FullWidthItem(QWidget* widget, const QLayout& layout)
        : QWidgetItem(widget)
        , m_layout(layout)
    {}

    void setGeometry(const QRect& rect) override
    {
        const QMargins margins = m_layout.contentsMargins();
        QWidgetItem::setGeometry(rect.adjusted(-margins.left(), 0, margins.right(), 0));
    }

private:
    const QLayout& m_layout;
};

} // namespace

void PlanTaskForm::setUp(QWidget& card)
{
    card.setFixedWidth(kCardWidth);
    card.setAttribute(Qt::WA_StyledBackground);
    card.setProperty("style", QStringLiteral("BG1"));
    setupUi(&card);
    // Between the margins there is no room for the last columns of the table.
    verticalLayout->removeWidget(tableView);
    verticalLayout->addItem(new FullWidthItem(tableView, *verticalLayout));
    arrow->setProperty("labelImage", QStringLiteral("down"));
}

void PlanTaskForm::showDates(const PlayTask& task)
{
    dateEditVaildStartTime->setDate(dateFromText(task.startDate));
    dateEditVaildEndTime->setDate(dateFromText(task.endDate));
}

void PlanTaskForm::showFolded(bool isFolded)
{
    arrow->setProperty("labelImage", isFolded ? QStringLiteral("right") : QStringLiteral("down"));
    // A style sheet looks at a property again only when the style is set again.
    setStyleAgain(*arrow);
    widget->setVisible(!isFolded);
}

void PlanTaskForm::followDirection(const QWidget& card)
{
    title->setLayoutDirection(card.layoutDirection());
}

void PlanTaskForm::translate(const PlayTask& task)
{
    title->setText(
        QStringLiteral("%1%2    ").arg(scheduleText("zhPlayTaskStr"), QString::number(task.id)));
    labelvalidTime->setText(scheduleText("zhEffectiveStr") + scheduleText("zhFromStr"));
    labelTo->setText(scheduleText("zhToStr"));
    nameControls();
}

/// For screen readers: what has no text of its own, or has it in a label beside.
void PlanTaskForm::nameControls()
{
    const QString task = title->text().trimmed() + QLatin1Char(' ');
    pbtCreatCopy->setAccessibleName(task % scheduleText("zhCreateCopy"));
    pushButtonDelete->setAccessibleName(task % scheduleText("szDeleteStr"));
    pushButtonAdd->setAccessibleName(task % scheduleText("zhSelectProgramsStr"));
    dateEditVaildStartTime->setAccessibleName(task % labelvalidTime->text());
    dateEditVaildEndTime->setAccessibleName(task % labelTo->text());
    tableView->setAccessibleName(title->text().trimmed());

    title->setAccessibleDescription(keyText(EditorKey::Fold));
    pbtCreatCopy->setAccessibleDescription(keyText(EditorKey::CopyTask));
    pushButtonDelete->setAccessibleDescription(keyText(EditorKey::DeleteTask));
    pushButtonAdd->setToolTip(withKey(scheduleText("zhSelectProgramsStr"), EditorKey::AddPlan));
}

void PlanTaskForm::showToolTipOnEnter(const QObject* watched, const QEvent& event)
{
    if (event.type() != QEvent::Enter) {
        return;
    }
    if (watched == pbtCreatCopy) {
        showToolTip(event, scheduleText("zhCreateCopy"), pbtCreatCopy);
    } else if (watched == pushButtonDelete) {
        showToolTip(event, scheduleText("szDeleteStr"), pushButtonDelete);
    }
}

} // namespace trel::mediadispatch
