#include "screen/Badge.h"

#include <QPainter>

namespace trel::desktop {

namespace {

constexpr int kSide = 8;
constexpr int kAbove = 2;

} // namespace

Badge::Badge(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Badge::setRoles(QPalette::ColorRole ground, QPalette::ColorRole text)
{
    m_ground = ground;
    m_text = text;
    update();
}

QSize Badge::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 2 * kSide,
            fontMetrics().height() + 2 * kAbove};
}

void Badge::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(m_ground));
    const QRectF ground = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(ground, ground.height() / 2, ground.height() / 2);
    painter.setPen(palette().color(m_text));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace trel::desktop
