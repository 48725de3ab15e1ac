#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace trel::widgets {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return QSize(0, QLabel::minimumSizeHint().height());
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    // The label's own painting would draw the whole text.
    QFrame::paintEvent(event); // NOLINT(bugprone-parent-virtual-call)
    QPainter painter(this);
    const QRect area = contentsRect();
    style()->drawItemText(
        &painter, area, int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
        isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, area.width()),
        foregroundRole());
}

} // namespace trel::widgets
