#include "runtime/units.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tessarine
{

Whole RoundHalfEven(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    constexpr double lowest = std::numeric_limits<Whole>::min();
    constexpr double highest = std::numeric_limits<Whole>::max();
    // The default rounding mode of the machine is to the nearest, halves to the even.
    return static_cast<Whole>(std::nearbyint(std::clamp(value, lowest, highest)));
}

Colour PaletteColour(int n)
{
    static constexpr std::array<Colour, 16> palette = {
        Rgb(0, 0, 0),       Rgb(0, 0, 128),   Rgb(0, 128, 0),   Rgb(0, 128, 128),
        Rgb(128, 0, 0),     Rgb(128, 0, 128), Rgb(128, 128, 0), Rgb(192, 192, 192),
        Rgb(128, 128, 128), Rgb(0, 0, 255),   Rgb(0, 255, 0),   Rgb(0, 255, 255),
        Rgb(255, 0, 0),     Rgb(255, 0, 255), Rgb(255, 255, 0), Rgb(255, 255, 255)};
    return palette.at(static_cast<std::size_t>(n));
}

Colour TranslateColor(Colour colour)
{
    if (colour >= 0) {
        return colour & 0xFFFFFF;
    }
    switch (colour) {
    case WindowBackground:
        return White;
    case ButtonFace:
        return Rgb(240, 240, 240);
    default: // the text colours are black, and so is a reference to nothing
        return Black;
    }
}

std::string NumberText(Whole value)
{
    return value < 0 ? std::to_string(value) : ' ' + std::to_string(value);
}

std::string DecimalText(float value)
{
    std::array<char, 128> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

double NumberAtStart(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return 0;
    }
    text.remove_prefix(first);
    if (text.front() == '+') {
        text.remove_prefix(1);
    }
    // Only digits, a point and an exponent make a number; names such as "inf" do not.
    if (text.find_first_of("0123456789") > text.find_first_not_of("-.")) {
        return 0;
    }
    double value = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    return end.ec == std::errc() ? value : 0;
}

Whole WholeAtStart(std::string_view text)
{
    return RoundHalfEven(NumberAtStart(text));
}

std::string TwoDigits(int value)
{
    std::string text = std::to_string(value);
    return text.size() < 2 ? '0' + text : text;
}

std::string TrimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

} // namespace tessarine
