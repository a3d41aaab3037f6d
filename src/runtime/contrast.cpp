#include "runtime/contrast.h"

#include <algorithm>
#include <cmath>

namespace tessarine
{
namespace
{

constexpr double ReadableContrast = 4.5;

/// The brightness that an eye sees, with the eye's own 0.05 added.
double Brightness(Colour colour)
{
    const Colour plain = TranslateColor(colour);
    return 0.2126 * LightOf(clrRed(plain)) + 0.7152 * LightOf(clrGreen(plain)) +
           0.0722 * LightOf(clrBlue(plain)) + 0.05;
}

} // namespace

double LightOf(int channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Contrast(Colour one, Colour other)
{
    const auto [darker, lighter] = std::minmax({Brightness(one), Brightness(other)});
    return lighter / darker;
}

Colour ReadableOn(Colour ground, Colour wanted)
{
    if (Contrast(ground, wanted) >= ReadableContrast) {
        return TranslateColor(wanted);
    }
    return Contrast(ground, Black) >= Contrast(ground, White) ? Black : White;
}

Colour TextColour(Colour ground, Colour foreColor)
{
    return foreColor < 0 ? ReadableOn(ground, foreColor) : foreColor;
}

} // namespace tessarine
