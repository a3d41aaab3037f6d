// Twips as logical pixels and as pixels of the device.
#pragma once

#include "runtime/control.h"

#include <QRect>
#include <QSize>

#include <algorithm>
#include <cmath>

namespace tessarine
{

/// The nearest whole pixel, half a pixel to the right or down. Held within what a screen can have.
inline int NearestPixel(double pixels)
{
    constexpr double limit = 1'000'000;
    return static_cast<int>(std::floor(std::clamp(pixels, -limit, limit) + 0.5));
}

/// The rectangle whose four edges are rounded each by itself, so that what touches goes on touching.
/// `scale` is pixels per twip.
inline QRect RoundedRect(Twips left, Twips top, Twips width, Twips height, double scale)
{
    const int x = NearestPixel(left * scale);
    const int y = NearestPixel(top * scale);
    return {x, y, std::max(0, NearestPixel((left + width) * scale) - x),
            std::max(0, NearestPixel((top + height) * scale) - y)};
}

inline constexpr double PixelsPerTwip = 1.0 / TwipsPerPixel;

/// Where a control stands on its container, in logical pixels.
inline QRect PixelRect(const Control& control)
{
    return RoundedRect(control.Left(), control.Top(), control.Width(), control.Height(), PixelsPerTwip);
}

inline QSize ToPixels(Size size)
{
    return {std::max(1, NearestPixel(size.width * PixelsPerTwip)),
            std::max(1, NearestPixel(size.height * PixelsPerTwip))};
}

inline Size ToTwips(QSize size)
{
    return {static_cast<Twips>(size.width()) * TwipsPerPixel,
            static_cast<Twips>(size.height()) * TwipsPerPixel};
}

} // namespace tessarine
