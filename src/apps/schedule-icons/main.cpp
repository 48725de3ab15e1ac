#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <cstdio>

namespace {

/// Up to this size the drawing for small icons is taken.
constexpr int kSmallest = 24;

bool draw(const QString& drawing, int size, const QString& file)
{
    QSvgRenderer renderer(drawing);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return renderer.isValid() && QDir().mkpath(QFileInfo(file).path()) && image.save(file);
}

} // namespace

/// Draws an icon in every size of a theme, for the build.
int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    if (arguments.size() != 4) {
        QTextStream(stderr) << "Usage: schedule-icons DRAWING SMALL-DRAWING THEME CONTEXT/NAME"
                            << Qt::endl;
        return 2;
    }
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString& drawing = size > kSmallest ? arguments[0] : arguments[1];
        const QString file = QStringLiteral("%1/%2x%2/%3.png")
                                 .arg(arguments[2], QString::number(size), arguments[3]);
        if (!draw(drawing, size, file)) {
            QTextStream(stderr) << file << " cannot be drawn from " << drawing << Qt::endl;
            return 1;
        }
    }
    return 0;
}
