#include "week/WeekPanel.h"

#include "BidiText.h"
#include "service/ScheduleRecords.h"
#include "trelwidgets/PlainToolTip.h"
#include "week/CalendarPopup.h"
#include "week/WeekView.h"
#include "week/moves/CopyDayMenu.h"
#include "week/moves/DayDrag.h"
#include "week/moves/WeekMover.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using trel::mediadispatch::kDateFormat;

namespace trel::desktop::week {

namespace {

constexpr double kZoomStep = 1.5;
constexpr int kSignWidth = 28;
/// In less room the controls shrink, and the months are left to the calendar.
constexpr int kRoomy = 680;
constexpr int kLeastWidth = 540;

/// A sign is no name: the words are for those who cannot see it, or do not know it.
void setWords(QWidget* widget, const QString& words)
{
    widget->setToolTip(trel::widgets::plainToolTip(words));
    widget->setAccessibleName(words);
}

} // namespace

WeekPanel::WeekPanel(follow::EditedSchedule& edited, QWidget* parent)
    : QWidget(parent)
    , m_feed(edited, this)
    , m_view(new WeekView(this))
    , m_formerMonth(addButton("weekFormerMonth", QStringLiteral("«")))
    , m_former(addButton("weekFormer", QStringLiteral("‹")))
    , m_today(addButton("weekToday", QString()))
    , m_next(addButton("weekNext", QStringLiteral("›")))
    , m_nextMonth(addButton("weekNextMonth", QStringLiteral("»")))
    , m_title(addButton("weekTitle", QString()))
    , m_source(new QComboBox(this))
    , m_smaller(addButton("weekSmaller", QStringLiteral("−")))
    , m_larger(addButton("weekLarger", QStringLiteral("+")))
    , m_fit(addButton("weekFit", QString()))
{
    m_view->setObjectName(QStringLiteral("weekView"));
    m_source->setObjectName(QStringLiteral("weekSource"));
    m_source->addItem(QString(), static_cast<int>(WeekSource::Edited));
    m_source->addItem(QString(), static_cast<int>(WeekSource::InEffect));
    m_source->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    buildControls();
    connectControls();
    retranslate();
}

QPushButton* WeekPanel::addButton(const char* name, const QString& sign)
{
    auto* button = new QPushButton(sign, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    if (!sign.isEmpty()) {
        button->setFixedWidth(kSignWidth);
    }
    return button;
}

void WeekPanel::buildControls()
{
    auto* controls = new QHBoxLayout;
    controls->setSpacing(4);
    for (QWidget* widget : {m_formerMonth, m_former, m_today, m_next, m_nextMonth}) {
        controls->addWidget(widget);
    }
    controls->addSpacing(8);
    controls->addWidget(m_title);
    controls->addStretch();
    controls->addWidget(m_source);
    controls->addSpacing(8);
    for (QWidget* widget : {m_smaller, m_larger, m_fit}) {
        controls->addWidget(widget);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(controls);
    layout->addWidget(m_view, 1);
    QWidget* former = m_formerMonth;
    for (QWidget* next :
         std::initializer_list<QWidget*>{m_former, m_today, m_next, m_nextMonth, m_title, m_source,
                                         m_smaller, m_larger, m_fit, m_view}) {
        setTabOrder(former, next);
        former = next;
    }
}

void WeekPanel::connectControls()
{
    connect(&m_feed, &WeekFeed::changed, m_view, &WeekView::setPicture);
    connect(m_view, &WeekView::activated, this, &WeekPanel::activate);
    connect(m_view, &WeekView::weekChanged, this, [this] {
        m_feed.setWeek(m_view->firstDay());
        updateTitle();
    });
    m_feed.setWeek(m_view->firstDay());
    connect(m_view, &WeekView::zoomChanged, this, &WeekPanel::updateButtons);
    connect(m_former, &QPushButton::clicked, m_view, [this] { m_view->stepWeeks(-1); });
    connect(m_next, &QPushButton::clicked, m_view, [this] { m_view->stepWeeks(1); });
    connect(m_today, &QPushButton::clicked, m_view, &WeekView::showNow);
    connect(m_formerMonth, &QPushButton::clicked, this, [this] { stepMonths(-1); });
    connect(m_nextMonth, &QPushButton::clicked, this, [this] { stepMonths(1); });
    connect(m_title, &QPushButton::clicked, this, &WeekPanel::showCalendar);
    connect(m_smaller, &QPushButton::clicked, m_view, [this] { m_view->zoom(1 / kZoomStep); });
    connect(m_larger, &QPushButton::clicked, m_view, [this] { m_view->zoom(kZoomStep); });
    connect(m_fit, &QPushButton::clicked, m_view, &WeekView::zoomToFit);
    connect(m_source, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { m_feed.setSource(static_cast<WeekSource>(m_source->currentData().toInt())); });
}

void WeekPanel::setColours(const look::ThemeColours& colours)
{
    m_view->setColours(colours);
    if (m_mover != nullptr) {
        m_mover->setColours(colours);
        m_dayDrag->setColours(colours);
    }
}

void WeekPanel::allowEdits(EditTarget& target)
{
    m_mover = new WeekMover(*m_view, target);
    m_mover->setColours(m_view->colours());
    m_dayDrag = new DayDrag(*m_view, target);
    m_dayDrag->setColours(m_view->colours());
    auto* copies = new CopyDayMenu(*m_view, target);
    const auto follow = [this, copies] {
        const bool isEdited = m_feed.source() == WeekSource::Edited;
        m_mover->setEnabled(isEdited);
        m_dayDrag->setEnabled(isEdited);
        copies->setEnabled(isEdited);
    };
    connect(m_source, QOverload<int>::of(&QComboBox::currentIndexChanged), m_mover, follow);
    follow();
}

void WeekPanel::setLanguage(const QLocale& locale)
{
    setLocale(locale);
    retranslate();
}

void WeekPanel::retranslate()
{
    m_today->setText(tr("Today"));
    m_fit->setText(tr("Whole day"));
    m_source->setItemText(0, tr("As edited"));
    m_source->setItemText(1, tr("In effect"));
    setWords(m_former, tr("Previous week"));
    setWords(m_next, tr("Next week"));
    setWords(m_formerMonth, tr("Previous month"));
    setWords(m_nextMonth, tr("Next month"));
    setWords(m_smaller, tr("Zoom out"));
    setWords(m_larger, tr("Zoom in"));
    setWords(m_source, tr("Schedule shown"));
    m_view->retranslate();
    updateTitle();
    updateButtons();
    keepControlsWhole();
}

/// The controls are whole in every language.
void WeekPanel::keepControlsWhole()
{
    // Checked with Qt 5.15.8: the least size of a box stays that of its first texts.
    m_source->setMinimumWidth(m_source->sizeHint().width());
    const QLayout& controls = *layout()->itemAt(0)->layout();
    const QMargins around = layout()->contentsMargins();
    int width = around.left() + around.right() - controls.spacing();
    int months = 0;
    for (int i = 0; i < controls.count(); ++i) {
        QLayoutItem& item = *controls.itemAt(i);
        const QWidget* const control = item.widget();
        if (control == nullptr) {
            width += item.minimumSize().width();
            continue;
        }
        // A layout that has not been shown yet takes all of them for hidden.
        const int least = control->minimumWidth() > 0 ? control->minimumWidth()
                                                      : control->minimumSizeHint().width();
        const bool isMonth = control == m_formerMonth || control == m_nextMonth;
        (isMonth ? months : width) += least + controls.spacing();
    }
    setMinimumWidth(qMax(kLeastWidth, width));
    m_roomy = qMax(kRoomy, width + months);
    showMonths();
}

void WeekPanel::showMonths()
{
    m_formerMonth->setVisible(width() >= m_roomy);
    m_nextMonth->setVisible(width() >= m_roomy);
}

void WeekPanel::updateTitle()
{
    const QDate first = m_view->firstDay();
    const QString days = leftToRight(QStringLiteral("%1 – %2").arg(
        first.toString(kDateFormat), first.addDays(kDays - 1).toString(kDateFormat)));
    m_title->setText(days);
    m_title->setToolTip(trel::widgets::plainToolTip(tr("Choose a day in a calendar")));
    m_title->setAccessibleName(tr("%1. Choose a day in a calendar", "days of a week").arg(days));
}

/// The middle of the week decides which month it is of.
void WeekPanel::stepMonths(int months)
{
    const QDate middle = m_view->firstDay().addDays(kDays / 2);
    m_view->showWeekOf(middle.addMonths(months));
}

void WeekPanel::showCalendar()
{
    auto* calendar = new CalendarPopup(m_view->firstDay(), this);
    connect(calendar, &CalendarPopup::chosen, m_view, &WeekView::showWeekOf);
    calendar->showBelow(*m_title);
}

void WeekPanel::activate(int taskId, int planRow)
{
    for (const WeekColumn& column : m_view->layoutOfWeek().days) {
        const WeekBlock* block = column.task == taskId ? column.blockOf(planRow) : nullptr;
        if (block != nullptr) {
            emit activated(taskId, block->planId);
            return;
        }
    }
}

void WeekPanel::updateButtons()
{
    m_fit->setEnabled(!m_view->isFit());
    m_smaller->setEnabled(!m_view->isFit());
    m_larger->setEnabled(m_view->hourHeight() < WeekGeometry::kMostHour);
}

void WeekPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_feed.setWatched(true);
}

void WeekPanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_feed.setWatched(false);
}

void WeekPanel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showMonths();
}

void WeekPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        keepControlsWhole();
    }
}

} // namespace trel::desktop::week
