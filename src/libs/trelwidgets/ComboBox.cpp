#include "trelwidgets/ComboBox.h"

#include "CutTip.h"

#include <QStylePainter>
#include <QWheelEvent>

namespace trel::widgets {

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
{
    // The toolkit gives a box the focus for the wheel alone, and takes it from another one.
    setFocusPolicy(Qt::StrongFocus);
}

int ComboBox::roomForText() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    // Styles leave a pixel free at both sides.
    return style()
               ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
               .width() -
           2;
}

bool ComboBox::isCut() const
{
    return !isEditable() && fontMetrics().horizontalAdvance(currentText()) > roomForText();
}

bool ComboBox::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isCut()) {
        showCutTip(*static_cast<QHelpEvent*>(event), *this, currentText());
        return true;
    }
    return QComboBox::event(event);
}

void ComboBox::paintEvent(QPaintEvent* event)
{
    if (!isCut()) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = fontMetrics().elidedText(currentText(), Qt::ElideRight, roomForText());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace trel::widgets
