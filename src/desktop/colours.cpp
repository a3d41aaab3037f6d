#include "desktop/colours.h"

#include <algorithm>
#include <cmath>

namespace tessarine
{
namespace
{

constexpr double ReadableContrast = 4.5;
constexpr double VisibleEdge = 1.6;

double Luminance(const QColor& colour)
{
    const auto linear = [](float part) {
        const double value = part;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

QColor ToQColor(Colour colour)
{
    const Colour resolved = TranslateColor(colour);
    return {clrRed(resolved), clrGreen(resolved), clrBlue(resolved)};
}

double Contrast(const QColor& one, const QColor& other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor ReadableOn(const QColor& ground, const QColor& wanted)
{
    if (Contrast(ground, wanted) >= ReadableContrast) {
        return wanted;
    }
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(ground, black) >= Contrast(ground, white) ? black : white;
}

QColor EdgeOf(const QColor& area)
{
    const QColor black(Qt::black);
    if (Contrast(area, black) >= VisibleEdge) {
        return black;
    }
    const auto lighter = [](int part) { return part + (255 - part) * 2 / 5; };
    return {lighter(area.red()), lighter(area.green()), lighter(area.blue())};
}

} // namespace tessarine
