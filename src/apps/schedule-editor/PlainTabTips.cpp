#include "PlainTabTips.h"

#include "trelwidgets/PlainToolTip.h"

#include <QChildEvent>
#include <QHelpEvent>
#include <QMainWindow>
#include <QTabBar>

namespace trel::desktop {

PlainTabTips::PlainTabTips(QMainWindow& window)
    : QObject(&window)
{
    window.installEventFilter(this);
}

bool PlainTabTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        // The window makes its tab bars itself, whenever panels are stacked.
        if (auto* bar = qobject_cast<QTabBar*>(static_cast<QChildEvent*>(event)->child())) {
            bar->installEventFilter(this);
        }
    } else if (event->type() == QEvent::ToolTip) {
        // Set late: each change of a title sets the tip again.
        if (auto* bar = qobject_cast<QTabBar*>(watched)) {
            const int tab = bar->tabAt(static_cast<QHelpEvent*>(event)->pos());
            bar->setTabToolTip(tab, widgets::plainToolTip(bar->tabText(tab)));
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace trel::desktop
