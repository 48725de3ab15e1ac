#pragma once

#include <QDate>
#include <QFrame>

class QCalendarWidget;

namespace trel::desktop::week {

/// A calendar that opens over the window to choose one day, and goes when one is chosen, by a click
/// or Enter, or with Escape.
class CalendarPopup : public QFrame
{
    Q_OBJECT

public:
    /// Begins with a day, in the locale of the parent, which owns it. It destroys itself when it is
    /// closed.
    CalendarPopup(const QDate& day, QWidget* parent);

    /// Opens under a widget, or where the screen has room for it.
    void showBelow(const QWidget& widget);

signals:
    void chosen(const QDate& day);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QCalendarWidget* m_calendar;
};

} // namespace trel::desktop::week
