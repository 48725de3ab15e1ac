#include "ThemeImages.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace trel::desktop::look {

namespace {

/// What a drawing calls the colour that a theme gives it.
const char kThemeColour[] = "currentColor";

QByteArray drawing(const QString& name, const QColor& colour)
{
    QFile file(QStringLiteral(":/qss/img/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    return file.readAll().replace(kThemeColour, colour.name().toLatin1());
}

/// Pixels of the device to one unit of the painter, also where a widget is drawn into a picture.
qreal deviceScale(const QPainter& painter)
{
    return qMax(1.0, painter.deviceTransform().m11());
}

QPixmap render(QSvgRenderer& renderer, const QSize& size, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    return pixmap;
}

/// An invalid size asks for the drawing's own; it never gets larger than the room.
QPixmap image(const QString& name, const QColor& colour, const QSize& size, const QSize& room,
              qreal ratio)
{
    const QString key = QStringLiteral("trel-image %1 %2 %3x%4 %5x%6 %7")
                            .arg(name, colour.name())
                            .arg(size.width())
                            .arg(size.height())
                            .arg(room.width())
                            .arg(room.height())
                            .arg(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        QSvgRenderer renderer(drawing(name, colour));
        QSize wanted = size.isValid() ? size : renderer.defaultSize();
        if (wanted.width() > room.width() || wanted.height() > room.height()) {
            wanted.scale(room, Qt::KeepAspectRatio);
        }
        pixmap = render(renderer, wanted, ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

class ImageEngine : public QIconEngine
{
public:
    ImageEngine(const QString& name, const QColor& colour)
        : m_name(name)
        , m_colour(colour)
    {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        painter->drawPixmap(
            rect, image(m_name, m_colour, rect.size(), rect.size(), deviceScale(*painter)));
    }

    // The size is in pixels of the device already.
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        return image(m_name, m_colour, size, size, 1.0);
    }

    QIconEngine* clone() const override { return new ImageEngine(*this); }

private:
    QString m_name;
    QColor m_colour;
};

} // namespace

void paintImage(QPainter& painter, const QRect& rect, const QString& name, const QColor& colour)
{
    const QPixmap pixmap = image(name, colour, QSize(), rect.size(), deviceScale(painter));
    QRect target(QPoint(), pixmap.size() / pixmap.devicePixelRatioF());
    target.moveCenter(rect.center());
    painter.drawPixmap(target.topLeft(), pixmap);
}

QIcon imageIcon(const QString& name, const QColor& colour)
{
    return QIcon(new ImageEngine(name, colour));
}

} // namespace trel::desktop::look
