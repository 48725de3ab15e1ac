#pragma once

#include <QtTest>

#include <QWidget>
#include <QWindow>

/// A mouse over one shown window, whose events take the road of the window system. Places are
/// pixels on the screen, so they hold while a drag moves the window.
class Mouse
{
public:
    explicit Mouse(QWidget* window)
        : m_window(window->windowHandle())
    {}

    void press(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        m_place = place;
        QTest::mousePress(m_window, button, {}, local());
    }

    void release(Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(m_window, button, {}, local());
    }

    void moveBy(const QPoint& way) { moveTo(m_place + way); }

    void moveTo(const QPoint& place)
    {
        m_place = place;
        QTest::mouseMove(m_window, local());
    }

    void click(const QPoint& place)
    {
        press(place);
        release();
    }

    void doubleClick(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        doubleClickAndHold(place, button);
        release(button);
    }

    /// The second press of the double click lasts until release().
    void doubleClickAndHold(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        press(place, button);
        // QTest::mouseRelease would move its clock past the time of a double click.
        qt_handleMouseEvent(m_window, local(), m_place, Qt::NoButton, button,
                            QEvent::MouseButtonRelease, {}, ++QTest::lastMouseTimestamp);
        press(place, button);
    }

private:
    QPoint local() const { return m_window->mapFromGlobal(m_place); }

    QWindow* m_window;
    QPoint m_place;
};
