#include "appearance/make_scheme.h"

#include <algorithm>
#include <array>

namespace tessarine
{
namespace
{

constexpr int DarkestShift = 1;
constexpr int LightestShift = 244;

/// Adds the same to red, green and blue, held within what still shows as a shade.
Colour Shifted(Colour colour, Whole shift)
{
    const auto held = [shift](int channel) {
        return std::clamp(channel + shift, DarkestShift, LightestShift);
    };
    return Rgb(held(clrRed(colour)), held(clrGreen(colour)), held(clrBlue(colour)));
}

} // namespace

void MakeScheme(Dress& dress, Colour colour, Whole contrast)
{
    auto& slots = dress.SchemeColors;
    slots[BackgroundSlot] = colour;
    slots[0] = Rgb(1, 1, 1);
    slots[1] = Rgb(240, 240, 240);

    static constexpr std::size_t firstShifted = 3;
    static constexpr std::array<int, 6> shiftsAtPlainContrast = {-128, -32, -64, 128, 32, 64};
    for (std::size_t i = 0; i < shiftsAtPlainContrast.size(); ++i) {
        const double shift = static_cast<double>(contrast) * shiftsAtPlainContrast[i] / PlainContrast;
        slots[firstShifted + i] = Shifted(colour, RoundHalfEven(shift));
    }

    static constexpr std::size_t firstFixed = 9;
    static constexpr std::array<int, 4> paletteColours = {4, 12, 2, 10};
    for (std::size_t i = 0; i < paletteColours.size(); ++i) {
        slots[firstFixed + i] = PaletteColour(paletteColours[i]);
    }
}

void FillBuiltInScheme(Dress& dress)
{
    MakeScheme(dress, Rgb(164, 190, 176), PlainContrast);
}

} // namespace tessarine
