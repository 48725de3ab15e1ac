#include "trelwidgets/ComboBox.h"

#include <QWheelEvent>

namespace trel::widgets {

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
{
    // The toolkit gives a box the focus for the wheel alone, and takes it from another one.
    setFocusPolicy(Qt::StrongFocus);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace trel::widgets
