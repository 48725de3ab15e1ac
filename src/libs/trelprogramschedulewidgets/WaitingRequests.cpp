#include "WaitingRequests.h"

#include <QAbstractEventDispatcher>
#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QTimerEvent>

namespace trel::mediadispatch {

namespace {

/// The timers of a view start each other, but not for ever.
constexpr int kTimerRounds = 2;

void runDueTimers(const QList<QWidget*>& widgets)
{
    const QAbstractEventDispatcher& dispatcher = *QAbstractEventDispatcher::instance();
    for (QWidget* widget : widgets) {
        for (const auto& timer : dispatcher.registeredTimers(widget)) {
            if (timer.interval == 0) {
                QTimerEvent event(timer.timerId);
                QCoreApplication::sendEvent(widget, &event);
            }
        }
    }
}

// A view whose contents have changed looks after its scroll bars in a call that it queues. A layout
// does the same.
void layOutViews(const QList<QWidget*>& widgets)
{
    for (QWidget* widget : widgets) {
        if (qobject_cast<QAbstractScrollArea*>(widget)) {
            QCoreApplication::removePostedEvents(widget, QEvent::MetaCall);
            QEvent request(QEvent::LayoutRequest);
            QCoreApplication::sendEvent(widget, &request);
        }
    }
}

// From the inside, as a layout that is carried out asks for the one around it.
void layOut(const QWidget& widget)
{
    for (const QObject* child : widget.children()) {
        const auto* const part = qobject_cast<const QWidget*>(child);
        if (part && !part->isHidden()) {
            layOut(*part);
        }
    }
    if (widget.layout()) {
        widget.layout()->activate();
    }
}

/// Keeps paint requests from the widgets in one.
class PaintRequestFilter : public QObject
{
public:
    explicit PaintRequestFilter(const QWidget& widget)
        : m_widget(widget)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A widget counts as its own ancestor.
        return event->type() == QEvent::UpdateLater && watched->isWidgetType() &&
               watched != &m_widget && m_widget.isAncestorOf(static_cast<QWidget*>(watched));
    }

private:
    const QWidget& m_widget;
};

} // namespace

void forgetPolishRequests()
{
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

void forgetLayoutRequest(QWidget& widget)
{
    QCoreApplication::removePostedEvents(&widget, QEvent::LayoutRequest);
}

void finishWaitingWork(QWidget& widget)
{
    // Most of what waits, and the only thing that many of the widgets wait for.
    forgetPolishRequests();
    QList<QWidget*> widgets = widget.findChildren<QWidget*>();
    widgets.append(&widget);
    for (int round = 0; round < kTimerRounds; ++round) {
        runDueTimers(widgets);
    }
    layOutViews(widgets);
    layOut(widget);
    for (QWidget* part : qAsConst(widgets)) {
        forgetLayoutRequest(*part);
    }
}

void forgetPaintRequestsIn(const QWidget& widget)
{
    const PaintRequestFilter filter(widget);
    // Those of others come early, which does no more than mark what is to be painted.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater);
}

} // namespace trel::mediadispatch
