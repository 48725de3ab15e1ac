#include "week/CalendarPopup.h"

#include <QCalendarWidget>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace trel::desktop::week {

CalendarPopup::CalendarPopup(const QDate& day, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_calendar(new QCalendarWidget(this))
{
    setObjectName(QStringLiteral("calendarPopup"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Calendar"));
    m_calendar->setLocale(parent->locale());
    m_calendar->setFirstDayOfWeek(parent->locale().firstDayOfWeek());
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setSelectedDate(day);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_calendar);
    const auto choose = [this](const QDate& chosenDay) {
        emit chosen(chosenDay);
        close();
    };
    connect(m_calendar, &QCalendarWidget::clicked, this, choose);
    connect(m_calendar, &QCalendarWidget::activated, this, choose);
    setFocusProxy(m_calendar);
}

void CalendarPopup::showBelow(const QWidget& widget)
{
    adjustSize();
    const bool isMirrored = widget.layoutDirection() == Qt::RightToLeft;
    QPoint corner = widget.mapToGlobal(QPoint(0, widget.height()));
    if (isMirrored) {
        corner.rx() += widget.width() - width();
    }
    const QRect room = widget.screen()->availableGeometry();
    corner.setX(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())));
    corner.setY(std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    move(corner);
    show();
    m_calendar->setFocus();
}

/// A date that is typed half way is dropped first: the toolkit's calendar frees what it holds of it
/// only when the typing ends, and Escape ends it.
void CalendarPopup::closeEvent(QCloseEvent* event)
{
    if (auto* days = m_calendar->findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview"))) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(days, &escape);
    }
    QFrame::closeEvent(event);
}

} // namespace trel::desktop::week
