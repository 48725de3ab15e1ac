#include "trelwidgets/ComboBox.h"

#include <QWheelEvent>

namespace trel::widgets {

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
{}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace trel::widgets
