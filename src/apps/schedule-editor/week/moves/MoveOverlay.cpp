#include "week/moves/MoveOverlay.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace trel::desktop::week {

namespace {

constexpr int kTextSpace = 6;
constexpr int kPointerSpace = 18;
constexpr int kEdge = 4;
constexpr int kLine = 2;
constexpr int kGhostOpacity = 150;
constexpr double kRadius = 2.5;
constexpr int kMostWidth = 320;

void drawFrame(QPainter& painter, const QRect& rect, const QColor& colour, Qt::PenStyle style)
{
    painter.setPen(QPen(colour, kLine, style));
    painter.drawRoundedRect(QRectF(rect).adjusted(1, 1, -1, -1), kRadius, kRadius);
}

} // namespace

MoveOverlay::MoveOverlay(QWidget* picture)
    : QWidget(picture)
    , m_colours(look::darkColours())
{
    setObjectName(QStringLiteral("weekMove"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void MoveOverlay::setColours(const look::ThemeColours& colours)
{
    m_colours = colours;
    update();
}

void MoveOverlay::show(const MovePicture& picture)
{
    m_picture = picture;
    setGeometry(parentWidget()->rect());
    raise();
    setVisible(!picture.text.isEmpty() || !picture.ghosts.empty());
    update();
}

void MoveOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QRect& ghost : m_picture.ghosts) {
        QColor ground = m_picture.isRefused ? m_colours.weekHidden : m_colours.weekBlock;
        ground.setAlpha(kGhostOpacity);
        painter.setBrush(ground);
        drawFrame(painter, ghost, m_picture.isRefused ? m_colours.weekHiddenText : m_colours.focus,
                  m_picture.isRefused ? Qt::DotLine : Qt::SolidLine);
    }
    painter.setBrush(Qt::NoBrush);
    for (const QRect& other : m_picture.collisions) {
        drawFrame(painter, other, m_colours.weekCollision, Qt::SolidLine);
    }
    paintText(painter);
}

void MoveOverlay::paintText(QPainter& painter) const
{
    if (m_picture.text.isEmpty()) {
        return;
    }
    constexpr int kFlags = Qt::TextWordWrap;
    const int most = std::min(kMostWidth, width() - 2 * kTextSpace - kEdge);
    QRect text =
        painter.fontMetrics().boundingRect(QRect(0, 0, most, height()), kFlags, m_picture.text);
    QRect box(0, 0, text.width() + 2 * kTextSpace + kEdge, text.height() + 2 * kTextSpace);
    // Beside the pointer, and never outside.
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    box.moveTopLeft(
        m_picture.place +
        QPoint(isMirrored ? -kPointerSpace - box.width() : kPointerSpace, kPointerSpace));
    box.moveLeft(std::clamp(box.left(), 0, std::max(0, width() - box.width())));
    box.moveTop(std::clamp(box.top(), 0, std::max(0, height() - box.height())));
    painter.setPen(m_colours.line);
    painter.setBrush(m_colours.floating);
    painter.drawRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5));
    const bool isBad = m_picture.isRefused || !m_picture.collisions.empty();
    QRect edge = box.adjusted(1, 1, -1, -1);
    edge.setWidth(kEdge);
    painter.fillRect(QStyle::visualRect(layoutDirection(), box, edge),
                     isBad ? m_colours.weekCollision : m_colours.focus);
    painter.setPen(m_colours.text);
    painter.drawText(
        QStyle::visualRect(layoutDirection(), box,
                           box.adjusted(kEdge + kTextSpace, kTextSpace, -kTextSpace, -kTextSpace)),
        kFlags, m_picture.text);
}

} // namespace trel::desktop::week
