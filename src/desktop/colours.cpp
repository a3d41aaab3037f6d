#include "desktop/colours.h"

#include "runtime/contrast.h"

namespace tessarine
{
namespace
{

/// So many hundredths of the way from one to the other.
Colour Mixed(Colour one, Colour other, int share)
{
    const Colour from = TranslateColor(one);
    const auto part = [share](int near, int far) { return near + (far - near) * share / 100; };
    return Rgb(part(clrRed(from), clrRed(other)), part(clrGreen(from), clrGreen(other)),
               part(clrBlue(from), clrBlue(other)));
}

} // namespace

QColor ToQColor(Colour colour)
{
    const Colour resolved = TranslateColor(colour);
    return {clrRed(resolved), clrGreen(resolved), clrBlue(resolved)};
}

Colour ToColour(const QColor& colour)
{
    return Rgb(colour.red(), colour.green(), colour.blue());
}

QColor LineOn(Colour ground)
{
    constexpr int softer = 78;
    return ToQColor(Mixed(ground, ReadableOn(ground), softer));
}

QPalette PaletteOf(Colour ground, Colour text, Colour face)
{
    QPalette palette(ToQColor(face), ToQColor(ground));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text}) {
        palette.setColor(role, ToQColor(text));
    }
    palette.setColor(QPalette::ButtonText, ToQColor(ReadableOn(face)));
    const QColor faint = ToQColor(Mixed(ground, text, 50));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, ToQColor(ground));
    const QColor chosen = LineOn(ground);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, ToQColor(ReadableOn(ToColour(chosen))));
    return palette;
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
    const Colour shade = edge == Edge::Plain ? Black : Mixed(area, isLit ? White : Black, 55);
    for (const Colour line : {shade, isLit ? White : Black, between}) {
        if (standsOut(line)) {
            return ToQColor(line);
        }
    }
    return ToQColor(isLit ? Black : White);
}

} // namespace tessarine
