#include "runtime/button_look.h"

namespace tessarine
{
namespace
{

/// How far the dark edges stand in from the right and the lower side.
constexpr Twips EdgeInset = 20;
/// How far a picture stands left of and above the middle.
constexpr Twips PictureShift = 24;
/// Twips that a hundredth of a millimetre counts for, in whole steps.
constexpr double TwipsPerHundredth = 0.5;

void DrawEdges(Canvas& canvas, Size size)
{
    const Twips right = size.width - EdgeInset;
    const Twips bottom = size.height - EdgeInset;
    canvas.DrawLine({0, 0}, {0, size.height}, White);
    canvas.DrawLine({0, 0}, {size.width, 0}, White);
    canvas.DrawLine({right, EdgeInset}, {right, bottom}, Black);
    canvas.DrawLine({EdgeInset, bottom}, {right, bottom}, Black);
}

/// In the middle, by the height of one capital, whatever the caption: captions of a row share one line.
void DrawCaption(Canvas& canvas, const ButtonLook& look, Twips innerHeight, const TextMeasure& measure)
{
    if (look.caption.empty()) {
        return;
    }
    const Whole width = RoundHalfEven(measure(look.font, look.caption).width);
    const Whole height = RoundHalfEven(measure(look.font, "W").height);
    canvas.Print({(look.size.width - width) / 2, (innerHeight - height) / 2}, look.caption, look.font,
                 look.text);
}

} // namespace

void DrawBox(Canvas& canvas, const ButtonLook& look, const TextMeasure& measure)
{
    const Twips border = look.isDown ? 2 * TwipsPerPixel : 0;
    const Size inner{look.size.width - border, look.size.height - border};
    canvas.Clear(look.face);
    DrawCaption(canvas, look, inner.height, measure);
    DrawEdges(canvas, look.size);
    if (look.picture != nullptr) {
        const Twips side = look.picture->HundredthsOfMillimetre() * TwipsPerHundredth;
        canvas.Paint({(inner.width - side) / 2 - PictureShift, (inner.height - side) / 2 - PictureShift},
                     *look.picture);
    }
}

} // namespace tessarine
