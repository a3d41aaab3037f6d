// Units of the form runtime: twips, whole numbers, colours and the text form of numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine
{

/// A length in twips, 1440 to the inch. Positions may carry a fraction; what is stored for good is
/// rounded to a whole number first.
using Twips = double;

/// The whole number of the program: 32 bits, signed.
using Whole = std::int32_t;

/// A colour: blue x 65536 + green x 256 + red, each 0 to 255. A negative number is a reference to a
/// system colour, which TranslateColor resolves.
using Colour = std::int32_t;

/// One logical pixel, whatever the scale of the screen.
inline constexpr Whole TwipsPerPixel = 15;
/// Points to twips, for font sizes.
inline constexpr Twips TwipsPerPoint = 20;

struct Point {
    Twips x = 0;
    Twips y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    Twips width = 0;
    Twips height = 0;
    bool operator==(const Size&) const = default;
};

/// The nearest whole number, an exact half to the even neighbour. What does not fit in a Whole is
/// held at its ends; what is not a number gives 0.
Whole RoundHalfEven(double value);

constexpr Colour Rgb(int red, int green, int blue)
{
    return blue * 65536 + green * 256 + red;
}
constexpr int clrRed(Colour colour)
{
    return colour % 256;
}
constexpr int clrGreen(Colour colour)
{
    return colour / 256 % 256;
}
constexpr int clrBlue(Colour colour)
{
    return colour / 65536 % 256;
}

inline constexpr Colour White = Rgb(255, 255, 255);
inline constexpr Colour Black = 0;

/// One of the 16 classic colours, n from 0 to 15.
Colour PaletteColour(int n);

constexpr Colour SystemColour(int index)
{
    return static_cast<Colour>(0x80000000U + static_cast<std::uint32_t>(index));
}
inline constexpr Colour WindowBackground = SystemColour(5);
inline constexpr Colour WindowText = SystemColour(8);
inline constexpr Colour ButtonFace = SystemColour(15);
inline constexpr Colour ButtonText = SystemColour(18);

/// The colour that a number or a reference to a system colour stands for; 0, black, for a reference
/// to none.
Colour TranslateColor(Colour colour);

/// Decimal text with a leading blank where a minus sign would stand: " 7", "-7".
std::string NumberText(Whole value);

/// The shortest decimal text that reads back as the same single-precision number, no exponent.
std::string DecimalText(float value);

/// The number at the start of a text, leading blanks skipped; 0 where none stands there.
double NumberAtStart(std::string_view text);

/// NumberAtStart as a whole number, rounded and held within the range of Whole.
Whole WholeAtStart(std::string_view text);

/// Two decimal digits with a leading zero: "07".
std::string TwoDigits(int value);

/// Blanks off both ends.
std::string TrimBlanks(std::string_view text);

} // namespace tessarine
