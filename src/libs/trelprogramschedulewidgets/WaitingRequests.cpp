#include "WaitingRequests.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace trel::mediadispatch {

void forgetPolishRequests()
{
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

void forgetLayoutRequest(QWidget& widget)
{
    QCoreApplication::removePostedEvents(&widget, QEvent::LayoutRequest);
}

} // namespace trel::mediadispatch
