#include "runtime/canvas.h"

#include <utility>

namespace tessarine
{

void Canvas::Clear(Colour background)
{
    background_ = background;
    strokes_.clear();
}

void Canvas::Shade(std::function<Colour(Point)> colourAt)
{
    strokes_.emplace_back(Shading{std::move(colourAt)});
}

void Canvas::DrawLine(Point from, Point to, Colour colour)
{
    strokes_.emplace_back(Line{from, to, colour});
}

void Canvas::Print(Point upperLeft, std::string text, const Font& font, Colour colour)
{
    strokes_.emplace_back(Text{upperLeft, std::move(text), font, colour});
}

void Canvas::Paint(Point upperLeft, const Picture& picture)
{
    strokes_.emplace_back(Drawing{upperLeft, &picture});
}

} // namespace tessarine
