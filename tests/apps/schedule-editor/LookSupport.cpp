#include "LookSupport.h"

#include "look/Themes.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHash>
#include <QtTest>

#include <cmath>

using namespace trel::desktop;

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

enum State { Normal, Hovered, Pressed, Disabled };

/// Where a control shows its text, clear of its edge and its signs.
QRect textPart(const QWidget* widget)
{
    if (qobject_cast<const QComboBox*>(widget)) {
        return widget->rect().adjusted(4, 4, -18, -4);
    }
    if (qobject_cast<const QAbstractSpinBox*>(widget)) {
        return widget->rect().adjusted(3, 4, -17, -4);
    }
    return widget->rect().adjusted(4, 2, -4, -2);
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

QString faultOf(const QImage& picture, const QRect& part, const QString& what, double least)
{
    const Seen seen = lookAt(picture, part);
    return seen.contrast >= least ? QString()
                                  : QStringLiteral("%1: %2 on %3 is %4\n")
                                        .arg(what, seen.text.name(), seen.ground.name())
                                        .arg(seen.contrast, 0, 'f', 2);
}

QString faultsOf(QWidget* widget, double least)
{
    QString faults;
    const bool wasEnabled = widget->isEnabled();
    auto* button = qobject_cast<QAbstractButton*>(widget);
    for (const State state : {Normal, Hovered, Pressed, Disabled}) {
        widget->setAttribute(Qt::WA_UnderMouse, state == Hovered || state == Pressed);
        widget->setEnabled(state != Disabled && wasEnabled);
        if (button != nullptr) {
            button->setDown(state == Pressed);
        }
        faults += faultOf(pictureOf(widget), textPart(widget),
                          QStringLiteral("%1 \"%2\" in state %3")
                              .arg(widget->objectName(), widget->property("text").toString())
                              .arg(state),
                          least);
    }
    widget->setAttribute(Qt::WA_UnderMouse, false);
    widget->setEnabled(wasEnabled);
    return faults;
}

void addThemes()
{
    QTest::addColumn<QString>("theme");
    const QStringList names = Themes::names();
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}
