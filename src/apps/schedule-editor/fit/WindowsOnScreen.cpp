#include "fit/WindowsOnScreen.h"

#include "fit/ScreenRoom.h"
#include "fit/ScrolledContent.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>

namespace trel::desktop::fit {

namespace {

bool fits(const QSize& size, const QSize& room)
{
    return size.width() <= room.width() && size.height() <= room.height();
}

/// What is in the middle keeps its place in the order of Tab.
void scrollMiddle(QMainWindow& window)
{
    QWidget* const middle = window.centralWidget();
    if (middle == nullptr || qobject_cast<const ScrolledContent*>(middle) != nullptr) {
        return;
    }
    // The window would delete a middle that it still has when it gets another one.
    auto* const area = new ScrolledContent(*middle, &window);
    window.setCentralWidget(area);
    area->show();
    // It may become smaller only once its layout knows that it can.
    window.layout()->activate();
}

} // namespace

WindowsOnScreen::WindowsOnScreen(QCoreApplication& application)
    : QObject(&application)
{
    application.installEventFilter(this);
}

bool WindowsOnScreen::eventFilter(QObject* watched, QEvent* event)
{
    // Of every event of every object this one is asked first.
    if (event->type() == QEvent::Show && watched->isWidgetType() && !event->spontaneous()) {
        auto& widget = *static_cast<QWidget*>(watched);
        if (widget.isWindow()) {
            auto* const main = qobject_cast<QMainWindow*>(&widget);
            if (main != nullptr && !fits(main->minimumSizeHint(), roomFor(*main))) {
                scrollMiddle(*main);
            }
            keepWithinRoom(widget);
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace trel::desktop::fit
