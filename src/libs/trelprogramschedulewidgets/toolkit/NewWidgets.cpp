#include "NewWidgets.h"

#include <QAbstractEventDispatcher>
#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QTimerEvent>

namespace trel::mediadispatch {

namespace {

#ifdef TREL_NO_TOOLKIT_SHORTCUTS
constexpr bool kAreBuiltIn = false;
#else
constexpr bool kAreBuiltIn = true;
#endif

bool g_areOn = kAreBuiltIn;

/// The timers of a view start each other, but not for ever.
constexpr int kTimerRounds = 2;

QList<QWidget*> withDescendants(QWidget& widget)
{
    QList<QWidget*> widgets = widget.findChildren<QWidget*>();
    widgets.append(&widget);
    return widgets;
}

void polish(QWidget& widget, const QList<QWidget*>& widgets)
{
    widget.ensurePolished();
    for (QWidget* part : widgets) {
        // One that has been added by hand, or that has been polished on its own, is asked as well.
        part->ensurePolished();
        QCoreApplication::removePostedEvents(part, QEvent::PolishRequest);
    }
}

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

// A view whose contents have changed looks after its scroll bars in a call that it queues; being
// laid out does the same. No other code can have queued a call: the view is not known outside yet.
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

/// Stands in for the requests by which the widgets in one ask to be painted when they are shown,
/// until the event loop has been through them.
class OneForAll : public QObject
{
public:
    explicit OneForAll(QWidget& whole)
        : QObject(&whole)
    {
        for (QWidget* const part : whole.findChildren<QWidget*>()) {
            if (part->isVisible() && !part->isWindow()) {
                part->installEventFilter(this);
            }
        }
        // Comes behind their requests, which wait already, and in front of all later ones.
        QMetaObject::invokeMethod(this, &OneForAll::end, Qt::QueuedConnection);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (m_hasEnded || event->type() != QEvent::UpdateLater) {
            return false;
        }
        watched->removeEventFilter(this);
        return true;
    }

private:
    void end()
    {
        m_hasEnded = true;
        deleteLater();
    }

    bool m_hasEnded = false;
};

} // namespace

bool areShortcutsOn()
{
    return g_areOn;
}

void setShortcutsOn(bool on)
{
    g_areOn = on && kAreBuiltIn;
}

void settleNewWidget(QWidget& widget)
{
    if (!g_areOn) {
        return;
    }
    const QList<QWidget*> widgets = withDescendants(widget);
    polish(widget, widgets);
    for (int round = 0; round < kTimerRounds; ++round) {
        runDueTimers(widgets);
    }
    layOutViews(widgets);
    layOut(widget);
    for (QWidget* part : widgets) {
        // They have been laid out; what is hidden for itself is laid out before it is shown.
        QCoreApplication::removePostedEvents(part, QEvent::LayoutRequest);
    }
}

void polishNewWidget(QWidget& widget)
{
    if (g_areOn) {
        polish(widget, withDescendants(widget));
    }
}

void takeBackLayoutRequest(QWidget& widget)
{
    if (g_areOn) {
        QCoreApplication::removePostedEvents(&widget, QEvent::LayoutRequest);
    }
}

void paintAsAWhole(QWidget& widget)
{
    if (g_areOn) {
        new OneForAll(widget);
    }
}

} // namespace trel::mediadispatch
