#include "DocumentPicture.h"

#include <QHash>
#include <QImage>

#include <algorithm>
#include <array>
#include <vector>

namespace trel::pictures {

namespace {

constexpr std::size_t kMostColors = 256;
/// Twice the 96 dots to the inch that a point stands for.
constexpr int kDotsPerMeter = 7559;

struct Shade
{
    QRgb color = 0;
    int dots = 0;
};

using Channel = int (*)(QRgb);
constexpr std::array<Channel, 3> kChannels = {qRed, qGreen, qBlue};

/// Colors that will be one.
struct Box
{
    std::vector<Shade> shades;
    Channel widest = qRed;
    int range = 0;
    qint64 dots = 0;

    void measure()
    {
        range = -1;
        for (const Channel channel : kChannels) {
            const auto [least, most] = std::minmax_element(
                shades.begin(), shades.end(), [channel](const Shade& a, const Shade& b) {
                    return channel(a.color) < channel(b.color);
                });
            const int found = channel(most->color) - channel(least->color);
            if (found > range) {
                range = found;
                widest = channel;
            }
        }
        dots = 0;
        for (const Shade& shade : shades) {
            dots += shade.dots;
        }
    }

    /// What is both wide and often seen is parted first.
    double weight() const { return range * static_cast<double>(dots); }

    /// Keeps the lower half of the dots and gives the upper one away.
    Box split()
    {
        std::sort(shades.begin(), shades.end(), [this](const Shade& a, const Shade& b) {
            return widest(a.color) < widest(b.color);
        });
        qint64 passed = 0;
        auto middle = shades.begin();
        while (middle != shades.end() - 1 && (passed == 0 || passed + middle->dots <= dots / 2)) {
            passed += middle->dots;
            ++middle;
        }
        Box upper;
        upper.shades.assign(middle, shades.end());
        shades.erase(middle, shades.end());
        measure();
        upper.measure();
        return upper;
    }

    /// The color that is seen most often, so that grounds stay what they are.
    QRgb color() const
    {
        return std::max_element(shades.begin(), shades.end(),
                                [](const Shade& a, const Shade& b) { return a.dots < b.dots; })
            ->color;
    }
};

std::vector<Box> boxesOf(const QImage& picture)
{
    QHash<QRgb, int> dots;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++dots[picture.pixel(x, y)];
        }
    }
    std::vector<Box> boxes(1);
    for (auto shade = dots.cbegin(); shade != dots.cend(); ++shade) {
        boxes.front().shades.push_back({shade.key(), shade.value()});
    }
    boxes.front().measure();
    while (boxes.size() < kMostColors) {
        const auto heaviest =
            std::max_element(boxes.begin(), boxes.end(),
                             [](const Box& a, const Box& b) { return a.weight() < b.weight(); });
        if (heaviest->range == 0) {
            break;
        }
        Box upper = heaviest->split();
        boxes.push_back(std::move(upper));
    }
    return boxes;
}

QImage reduced(const QImage& picture)
{
    QHash<QRgb, int> places;
    QVector<QRgb> colors;
    for (const Box& box : boxesOf(picture)) {
        for (const Shade& shade : box.shades) {
            places.insert(shade.color, colors.size());
        }
        colors.append(box.color());
    }
    QImage small(picture.size(), QImage::Format_Indexed8);
    small.setColorTable(colors);
    for (int y = 0; y < picture.height(); ++y) {
        uchar* const line = small.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            line[x] = static_cast<uchar>(places.value(picture.pixel(x, y)));
        }
    }
    return small;
}

} // namespace

bool writeDocumentPicture(const QString& from, const QString& to)
{
    const QImage picture = QImage(from).convertToFormat(QImage::Format_RGB32);
    if (picture.isNull()) {
        return false;
    }
    QImage small = reduced(picture);
    small.setDotsPerMeterX(kDotsPerMeter);
    small.setDotsPerMeterY(kDotsPerMeter);
    constexpr int kSmallest = 0;
    return small.save(to, "PNG", kSmallest);
}

} // namespace trel::pictures
