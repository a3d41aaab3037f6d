// How well an eye tells two colours apart, worked out by the published formula and by nothing of ours.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

namespace tessarine
{

struct SeenColour {
    int red;
    int green;
    int blue;

    /// Its light: red, green and blue from 0 to 1.
    std::array<double, 3> Light() const
    {
        const auto linear = [](int value) {
            const double part = value / 255.0;
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return {linear(red), linear(green), linear(blue)};
    }
    /// The brightness that an eye sees, from 0 to 1.
    double Luminance() const
    {
        const auto [r, g, b] = Light();
        return 0.2126 * r + 0.7152 * g + 0.0722 * b;
    }
};

/// A colour as the program counts it: red in the lowest byte.
inline SeenColour Seen(int colour)
{
    return {colour & 255, colour >> 8 & 255, colour >> 16 & 255};
}

/// 1 for equal brightness, 21 for black on white.
inline double SeenContrast(SeenColour one, SeenColour other)
{
    const auto [darker, lighter] = std::minmax({one.Luminance(), other.Luminance()});
    return (lighter + 0.05) / (darker + 0.05);
}

/// What text needs to be read.
inline constexpr double ReadableContrast = 4.5;

} // namespace tessarine
