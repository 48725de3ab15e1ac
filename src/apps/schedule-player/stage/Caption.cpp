#include "stage/Caption.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace trel::player {

namespace {

/// Parts of the picture's height.
constexpr int kLetters = 14;
constexpr int kFoot = 12;
constexpr int kEdge = 160;
/// Parts of its width.
constexpr int kMargin = 20;

} // namespace

void drawCaption(QImage& picture, const QString& caption)
{
    const QString line = caption.simplified();
    if (line.isEmpty() || picture.isNull()) {
        return;
    }
    QFont font;
    font.setPixelSize(std::max(picture.height() / kLetters, 8));
    const QFontMetrics metrics(font);
    const int room = picture.width() - 2 * (picture.width() / kMargin);
    const QString text = metrics.elidedText(line, Qt::ElideRight, room);
    const int left = (picture.width() - metrics.horizontalAdvance(text)) / 2;
    const int foot = picture.height() - picture.height() / kFoot;
    QPainterPath letters;
    letters.addText(left, foot, font, text);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const int edge = std::max(picture.height() / kEdge, 1);
    painter.strokePath(letters,
                       QPen(Qt::black, 2 * edge, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(letters, Qt::white);
}

} // namespace trel::player
