#include "Hand.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QUrl>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>

namespace hand {

namespace {

constexpr int kHundred = 100;

void sendMouse(QWidget& widget, QPoint place, Qt::MouseButtons buttons, Qt::MouseButton button,
               QEvent::Type type, Qt::KeyboardModifiers modifiers)
{
    QWindow* const window = widget.window()->windowHandle();
    if (!window) {
        return;
    }
    static int timestamp = 0;
    // Two clicks do not become one double click.
    timestamp += QApplication::doubleClickInterval() * 2;
    const QPoint inWindow = widget.mapTo(widget.window(), place);
    qt_handleMouseEvent(window, inWindow, window->mapToGlobal(inWindow), buttons, button, type,
                        modifiers, timestamp);
}

} // namespace

QPoint visiblePlace(const QWidget& widget, int across, int down)
{
    const QRect seen = widget.visibleRegion().boundingRect();
    if (seen.isEmpty()) {
        return {};
    }
    return {seen.left() + seen.width() * across / kHundred,
            seen.top() + seen.height() * down / kHundred};
}

void press(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> alive(&widget);
    move(widget, place, Qt::NoButton);
    if (!alive) {
        return;
    }
    sendMouse(widget, place, button, button, QEvent::MouseButtonPress, modifiers);
}

void release(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, place, Qt::NoButton, button, QEvent::MouseButtonRelease, modifiers);
}

void move(QWidget& widget, QPoint place, Qt::MouseButtons buttons)
{
    sendMouse(widget, place, buttons, Qt::NoButton, QEvent::MouseMove, Qt::NoModifier);
}

void turnWheel(QWidget& widget, QPoint place, int delta)
{
    QWindow* const window = widget.window()->windowHandle();
    if (!window) {
        return;
    }
    const QPoint inWindow = widget.mapTo(widget.window(), place);
    QCoreApplication::postEvent(window, new QWheelEvent(inWindow, window->mapToGlobal(inWindow), {},
                                                        {0, delta}, Qt::NoButton, Qt::NoModifier,
                                                        Qt::NoScrollPhase, false));
}

void pressKey(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QWindow* const window = QGuiApplication::focusWindow();
    if (!window) {
        return;
    }
    constexpr int timestamp = 0;
    // Short cuts come first; what they do may take the window away.
    if (!qt_sendShortcutOverrideEvent(window, timestamp, key, modifiers, text)) {
        if (QWindow* const now = QGuiApplication::focusWindow()) {
            qt_handleKeyEvent(now, QEvent::KeyPress, key, modifiers, text);
        }
    }
    if (QWindow* const now = QGuiApplication::focusWindow()) {
        qt_handleKeyEvent(now, QEvent::KeyRelease, key, modifiers, text);
    }
}

void type(const QString& text)
{
    for (const QChar letter : text) {
        pressKey(letter.toUpper().unicode(), Qt::NoModifier, letter);
    }
}

void dropTypedDate()
{
    const QWidget* const popup = QApplication::activePopupWidget();
    // Where keys go: a calendar that has closed keeps them until another window becomes active.
    const QObject* const place = popup ? popup->focusWidget() : QGuiApplication::focusObject();
    if (place && place->objectName() == QLatin1String("qt_calendar_calendarview")) {
        pressKey(Qt::Key_Escape, Qt::NoModifier);
    }
}

void drop(QWidget& widget, QPoint place, const QStringList& files)
{
    QWindow* const window = widget.window()->windowHandle();
    if (!window) {
        return;
    }
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) {
        urls.append(QUrl::fromLocalFile(file));
    }
    data.setUrls(urls);
    const QPoint inWindow = widget.mapTo(widget.window(), place);
    QDragEnterEvent enter(inWindow, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &enter);
    QDragMoveEvent over(inWindow, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &over);
    if (over.isAccepted()) {
        QDropEvent letGo(inWindow, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &letGo);
    } else {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(window, &leave);
    }
}

} // namespace hand
