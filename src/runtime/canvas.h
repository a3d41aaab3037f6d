// A drawing surface that keeps what is drawn on it until it is cleared.
#pragma once

#include "runtime/font.h"
#include "runtime/picture.h"
#include "runtime/units.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace tessarine
{

/// What is drawn, in the order of drawing; a later stroke covers an earlier one. All positions are in
/// twips from the upper left corner of the control.
class Canvas
{
public:
    /// A line of the thinnest width, one pixel of the screen. Level or upright.
    struct Line {
        Point from;
        Point to;
        Colour colour = Black;
    };
    /// The colour of each point. A pixel of the screen shows that of its upper left corner, which is
    /// also where a press on this pixel is.
    struct Shading {
        std::function<Colour(Point)> colourAt;
    };
    struct Text {
        Point upperLeft;
        std::string text;
        Font font;
        Colour colour = Black;
    };
    struct Drawing {
        Point upperLeft;
        const Picture* picture = nullptr; ///< outlives the canvas
    };
    using Stroke = std::variant<Shading, Line, Text, Drawing>;

    void Clear(Colour background);
    void DrawLine(Point from, Point to, Colour colour);
    void Shade(std::function<Colour(Point)> colourAt);
    void Print(Point upperLeft, std::string text, const Font& font, Colour colour);
    /// Draws the picture at its own size. It must outlive what is drawn.
    void Paint(Point upperLeft, const Picture& picture);

    Colour Background() const { return background_; }
    const std::vector<Stroke>& Strokes() const { return strokes_; }

private:
    Colour background_ = ButtonFace;
    std::vector<Stroke> strokes_;
};

} // namespace tessarine
