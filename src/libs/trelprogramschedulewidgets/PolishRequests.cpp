#include "PolishRequests.h"

#include <QCoreApplication>
#include <QEvent>

namespace trel::mediadispatch {

void forgetPolishRequests()
{
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

} // namespace trel::mediadispatch
