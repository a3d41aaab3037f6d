#include "desktop/colours.h"

#include "runtime/contrast.h"

namespace tessarine
{

QColor ToQColor(Colour colour)
{
    const Colour resolved = TranslateColor(colour);
    return {clrRed(resolved), clrGreen(resolved), clrBlue(resolved)};
}

QColor EdgeOf(Colour area)
{
    static constexpr double visibleEdge = 1.6;
    if (Contrast(area, Black) >= visibleEdge) {
        return Qt::black;
    }
    const auto lighter = [](int part) { return part + (255 - part) * 2 / 5; };
    const QColor shown = ToQColor(area);
    return {lighter(shown.red()), lighter(shown.green()), lighter(shown.blue())};
}

} // namespace tessarine
