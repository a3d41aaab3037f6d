#include "runtime/canvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessarine
{
namespace
{

/// Whether the pixels from that of `first` to that of `last` take in the pixel of `point`.
bool Covers(Twips first, Twips last, Twips point, Twips pixel)
{
    const double at = std::floor(point / pixel);
    return at >= std::floor(std::min(first, last) / pixel) &&
           at <= std::floor(std::max(first, last) / pixel);
}

} // namespace

void Canvas::Clear(Colour background)
{
    background_ = background;
    strokes_.clear();
}

void Canvas::DrawLine(Point from, Point to, Colour colour)
{
    strokes_.emplace_back(Line{from, to, colour});
}

void Canvas::FillBox(Point upperLeft, Point lowerRight, Colour colour)
{
    strokes_.emplace_back(Box{upperLeft, lowerRight, colour});
}

void Canvas::Print(Point upperLeft, std::string text, const Font& font, Colour colour)
{
    strokes_.emplace_back(Text{upperLeft, std::move(text), font, colour});
}

void Canvas::Paint(Point upperLeft, const Picture& picture)
{
    strokes_.emplace_back(Drawing{upperLeft, &picture});
}

Colour Canvas::ColourAt(Point point, Twips pixel) const
{
    for (auto stroke = strokes_.rbegin(); stroke != strokes_.rend(); ++stroke) {
        if (const auto* line = std::get_if<Line>(&*stroke)) {
            if (Covers(line->from.x, line->to.x, point.x, pixel) &&
                Covers(line->from.y, line->to.y, point.y, pixel)) {
                return TranslateColor(line->colour);
            }
        } else if (const auto* box = std::get_if<Box>(&*stroke)) {
            // A box ends before the pixel of its lower right corner, as it is painted.
            if (point.x >= box->upperLeft.x && point.x < box->lowerRight.x &&
                point.y >= box->upperLeft.y && point.y < box->lowerRight.y) {
                return TranslateColor(box->colour);
            }
        }
    }
    return TranslateColor(background_);
}

} // namespace tessarine
