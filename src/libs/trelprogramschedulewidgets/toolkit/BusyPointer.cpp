#include "BusyPointer.h"

namespace trel::mediadispatch {

BusyPointer::BusyPointer(QWidget& widget)
    : m_widget(&widget)
    , m_hadOwnPointer(widget.testAttribute(Qt::WA_SetCursor))
    , m_former(widget.cursor())
{
    widget.setCursor(Qt::WaitCursor);
}

BusyPointer::~BusyPointer()
{
    if (!m_widget) {
        return;
    }
    if (m_hadOwnPointer) {
        m_widget->setCursor(m_former);
    } else {
        m_widget->unsetCursor();
    }
}

} // namespace trel::mediadispatch
