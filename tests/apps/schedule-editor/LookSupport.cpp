#include "LookSupport.h"

#include <QHash>

#include <cmath>

namespace {

double luminance(const QColor& colour)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QHash<QRgb, int> countColours(const QImage& picture, const QRect& part)
{
    QHash<QRgb, int> counts;
    const QRect inside = part & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        for (int x = inside.left(); x <= inside.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return counts;
}

} // namespace

double contrast(const QColor& first, const QColor& second)
{
    const double a = luminance(first) + 0.05;
    const double b = luminance(second) + 0.05;
    return a > b ? a / b : b / a;
}

Seen lookAt(const QImage& picture, const QRect& part)
{
    const QHash<QRgb, int> counts = countColours(picture, part);
    Seen seen;
    int most = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (count.value() > most) {
            most = count.value();
            seen.ground = QColor(count.key());
        }
    }
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        const double value = contrast(QColor(count.key()), seen.ground);
        if (value > seen.contrast) {
            seen.contrast = value;
            seen.text = QColor(count.key());
        }
    }
    return seen;
}

double shareOf(const QImage& picture, const QColor& colour)
{
    const QHash<QRgb, int> counts = countColours(picture, picture.rect());
    return double(counts.value(colour.rgb())) / (double(picture.width()) * picture.height());
}

QImage pictureOf(QWidget* widget)
{
    QWidget* window = widget->window();
    const QRect part(widget->mapTo(window, QPoint()), widget->size());
    return window->grab(part).toImage().convertToFormat(QImage::Format_RGB32);
}
