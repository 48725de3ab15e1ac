#include "CutLabel.h"

#include "trelwidgets/CutTip.h"

#include <QPainter>
#include <QStyle>

namespace trel::mediadispatch {

CutLabel::CutLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

// As the toolkit has it: with a frame, such as a style sheet gives, a text stands off it.
QRect CutLabel::roomForText() const
{
    const QRect inner = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    const int frameIndent =
        frameWidth() > 0 ? fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin() : 0;
    const int atTheStart = qMax(0, indent() < 0 ? frameIndent : indent());
    return QStyle::visualRect(layoutDirection(), inner, inner.adjusted(atTheStart, 0, 0, 0));
}

bool CutLabel::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > roomForText().width();
}

bool CutLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && isCut()) {
        widgets::showCutTip(*static_cast<QHelpEvent*>(event), *this, text());
        return true;
    }
    return QLabel::event(event);
}

void CutLabel::paintEvent(QPaintEvent* event)
{
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = roomForText();
    style()->drawItemText(
        &painter, room, int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
        isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
        foregroundRole());
}

} // namespace trel::mediadispatch
