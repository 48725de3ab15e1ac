#include "BarePainting.h"

#include "Sign.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

namespace trel::widgets {

namespace {

/// A ring of focus and what runs for the widget on screen are no image.
void makeBare(QStyleOption& option)
{
    option.state &= ~(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange);
    option.styleObject = nullptr;
}

} // namespace

bool paintsPictureOnButton(const QWidget& button, QStyleOptionButton option)
{
    makeBare(option);
    option.text.clear();
    option.icon = QIcon();
    return paintsPicture(button.size(), [&](QPainter& painter) {
        button.style()->drawControl(QStyle::CE_PushButton, &option, &painter, &button);
    });
}

bool paintsPictureOnLabel(const QWidget& label, QStyleOptionFrame option)
{
    makeBare(option);
    return paintsPicture(label.size(), [&](QPainter& painter) {
        // As the toolkit paints it: the ground, in which a style sheet has its images, and the
        // frame.
        if (label.testAttribute(Qt::WA_StyledBackground)) {
            QStyleOption ground;
            ground.initFrom(&label);
            makeBare(ground);
            label.style()->drawPrimitive(QStyle::PE_Widget, &ground, &painter, &label);
        }
        label.style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, &label);
    });
}

} // namespace trel::widgets
