#include "LookFollower.h"

#include <QEvent>

namespace trel::widgets {

namespace {

/// Asks for what a widget takes from what it lies in, and from the application, once more.
void resolve(QWidget& widget)
{
    widget.setPalette(widget.testAttribute(Qt::WA_SetPalette) ? widget.palette() : QPalette());
    widget.setFont(widget.testAttribute(Qt::WA_SetFont) ? widget.font() : QFont());
}

} // namespace

LookFollower::LookFollower(QWidget& window)
    : m_window(window)
    , m_parts(resolve)
{}

void LookFollower::follow(const QEvent& change)
{
    switch (change.type()) {
    case QEvent::ApplicationPaletteChange:
    case QEvent::PaletteChange:
    case QEvent::ApplicationFontChange:
    case QEvent::FontChange:
        break;
    default:
        return;
    }
    m_parts.forget();
    for (QWidget* const part : partsOf(m_window)) {
        if (m_window.isVisible()) {
            m_parts.doInSight(*part, part->rect());
        } else {
            m_parts.putOff(*part);
        }
    }
}

} // namespace trel::widgets
