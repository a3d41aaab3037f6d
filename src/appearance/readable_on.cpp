#include "appearance/readable_on.h"

#include <cmath>

namespace tessarine
{
namespace
{

/// The share of a channel in the brightness that an eye sees, from 0 to 1.
double Linear(int channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

} // namespace

Colour ReadableOn(Colour background)
{
    const Colour plain = TranslateColor(background);
    const double brightness = 0.2126 * Linear(clrRed(plain)) + 0.7152 * Linear(clrGreen(plain)) +
                              0.0722 * Linear(clrBlue(plain));
    // Where black and white are equally far from the background, with the eye's own 0.05 added.
    static constexpr double evenBrightness = 0.1791;
    return brightness > evenBrightness ? Black : White;
}

} // namespace tessarine
