#include "look/ProgramColours.h"

#include "look/ThemeColours.h"

#include <algorithm>
#include <cmath>

namespace trel::desktop::look {

namespace {

/// The golden section of the circle: however many hues stand on it, the next is far from the last.
constexpr double kHueStep = 0.381966;
/// What keeps hues apart that come close to each other after a while.
constexpr double kSaturations[] = {0.45, 0.30, 0.58};
constexpr int kSaturationCount = 3;

/// A little more than has to be, for the rounding of the colours.
constexpr double kTextContrast = 4.8;
constexpr double kLineContrast = 3.2;
constexpr double kLightnessStep = 0.01;

constexpr double kDarkGround = 0.36;
constexpr double kLightGround = 0.80;
constexpr double kDarkLine = 0.64;
constexpr double kLightLine = 0.46;

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

struct Tone
{
    double hue = 0;
    double saturation = 0;

    QColor at(double lightness) const { return QColor::fromHslF(hue, saturation, lightness); }

    /// The first lightness from a start on that stands out from another colour. Hues differ in how
    /// light they are at the same lightness.
    QColor standingOut(double lightness, double step, const QColor& from, double least) const
    {
        double now = lightness;
        while (contrast(at(now), from) < least && now + step > 0.0 && now + step < 1.0) {
            now += step;
        }
        return at(now);
    }
};

Tone toneOf(int progIndex)
{
    double whole = 0;
    return {std::modf(progIndex * kHueStep, &whole), kSaturations[progIndex % kSaturationCount]};
}

} // namespace

ProgramColours programColours(int progIndex, const ThemeColours& theme)
{
    if (progIndex < 0) {
        return {theme.weekBlock, theme.weekBlockText, theme.weekBlockLine};
    }
    const Tone tone = toneOf(progIndex);
    const bool isDark = theme.window.lightnessF() < 0.5;
    const double away = isDark ? -kLightnessStep : kLightnessStep;
    return {tone.standingOut(isDark ? kDarkGround : kLightGround, away, theme.weekBlockText,
                             kTextContrast),
            theme.weekBlockText,
            tone.standingOut(isDark ? kDarkLine : kLightLine, -away, theme.window, kLineContrast)};
}

} // namespace trel::desktop::look
