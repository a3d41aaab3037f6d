// A drawing surface that keeps what is drawn on it until it is cleared.
#pragma once

#include "runtime/font.h"
#include "runtime/picture.h"
#include "runtime/units.h"

#include <string>
#include <variant>
#include <vector>

namespace tessarine
{

/// What is drawn, in the order of drawing; a later stroke covers an earlier one. All positions are in
/// twips from the upper left corner.
class Canvas
{
public:
    /// A line of the thinnest width, one pixel of the screen. Level or upright.
    struct Line {
        Point from;
        Point to;
        Colour colour = Black;
    };
    struct Box {
        Point upperLeft;
        Point lowerRight;
        Colour colour = Black;
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
    using Stroke = std::variant<Line, Box, Text, Drawing>;

    void Clear(Colour background);
    void DrawLine(Point from, Point to, Colour colour);
    void FillBox(Point upperLeft, Point lowerRight, Colour colour);
    void Print(Point upperLeft, std::string text, const Font& font, Colour colour);
    /// Draws the picture at its own size. It must outlive what is drawn.
    void Paint(Point upperLeft, const Picture& picture);

    Colour Background() const { return background_; }
    const std::vector<Stroke>& Strokes() const { return strokes_; }

    /// The colour that shows in the screen pixel at a point: the last line or box drawn there, or the
    /// background. `pixel` is the side of a screen pixel in twips. Texts and pictures do not count.
    Colour ColourAt(Point point, Twips pixel) const;

private:
    Colour background_ = ButtonFace;
    std::vector<Stroke> strokes_;
};

} // namespace tessarine
