#include "desktop/colours.h"

#include "runtime/contrast.h"

namespace tessarine
{
namespace
{

/// A good half of the way from one to the other.
Colour Mixed(Colour one, Colour other)
{
    const Colour from = TranslateColor(one);
    const auto part = [](int near, int far) { return near + (far - near) * 11 / 20; };
    return Rgb(part(clrRed(from), clrRed(other)), part(clrGreen(from), clrGreen(other)),
               part(clrBlue(from), clrBlue(other)));
}

} // namespace

QColor ToQColor(Colour colour)
{
    const Colour resolved = TranslateColor(colour);
    return {clrRed(resolved), clrGreen(resolved), clrBlue(resolved)};
}

QColor EdgeOf(Colour area, Colour around, Edge edge)
{
    static constexpr double visible = 1.6;
    static constexpr Colour between = Rgb(102, 102, 102);
    const auto standsOut = [=](Colour line) {
        return Contrast(line, area) >= visible && Contrast(line, around) >= visible;
    };
    // Beside any two colours one of these three can be seen.
    const bool isLit = edge == Edge::Lit;
    const Colour shade = edge == Edge::Plain ? Black : Mixed(area, isLit ? White : Black);
    for (const Colour line : {shade, isLit ? White : Black, between}) {
        if (standsOut(line)) {
            return ToQColor(line);
        }
    }
    return ToQColor(isLit ? Black : White);
}

} // namespace tessarine
