// How a push button looks, the program's own and every other on its forms and boxes alike.
#pragma once

#include "runtime/canvas.h"
#include "runtime/control.h"

#include <functional>
#include <string>
#include <string_view>

namespace tessarine
{

/// A raised box with a caption in its middle, a picture over it, or nothing.
struct ButtonLook {
    Size size; ///< in twips
    Colour face = ButtonFace;
    Colour text = Black;
    std::string caption;
    tessarine::Font font;
    const Picture* picture = nullptr; ///< outlives the canvas
    /// Held down: caption and picture keep clear of a border, which is not part of the drawing.
    bool isDown = false;
};

/// The size of a text in twips.
using TextMeasure = std::function<Size(const Font&, std::string_view)>;

/// Draws it over whatever the canvas held.
void DrawBox(Canvas& canvas, const ButtonLook& look, const TextMeasure& measure);

} // namespace tessarine
