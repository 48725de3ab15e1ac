#include "stage/ScreenShape.h"

#include <QPainter>
#include <QTransform>

namespace trel::player {

QSize roomBeforeTurning(const QSize& size, int degrees)
{
    return degrees % 180 == 0 ? size : size.transposed();
}

QImage turnedClockwise(const QImage& picture, int degrees)
{
    return degrees == 0 ? picture : picture.transformed(QTransform().rotate(degrees));
}

QImage fittedOnBlack(const QImage& picture, const QSize& room)
{
    if (picture.size() == room && !picture.hasAlphaChannel()) {
        return picture;
    }
    if (room.isEmpty()) {
        return {};
    }
    QImage fitted(room, QImage::Format_RGB32);
    fitted.fill(Qt::black);
    if (!picture.isNull()) {
        const QSize size = picture.size().scaled(room, Qt::KeepAspectRatio);
        QRect place(QPoint(), size);
        place.moveCenter(fitted.rect().center());
        QPainter painter(&fitted);
        // The painter's own way of making things smaller leaves dots out.
        painter.drawImage(place.topLeft(), size == picture.size()
                                               ? picture
                                               : picture.scaled(size, Qt::IgnoreAspectRatio,
                                                                Qt::SmoothTransformation));
    }
    return fitted;
}

} // namespace trel::player
