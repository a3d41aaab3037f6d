// The few kinds of shapes that the icons are drawn of. A line of width 1 falls on pixels when it runs
// through the middles of the grid's cells, an area when its sides run on grid lines.
#pragma once

#include "runtime/picture.h"

#include <utility>
#include <vector>

namespace tessarine::icons
{

inline constexpr Colour Ink = Rgb(28, 28, 28);
inline constexpr Colour Paper = White;

/// The box of an ellipse or an arc, or a rectangle.
struct Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

inline Shape Area(Colour fill, std::vector<Point> corners)
{
    return {.kind = Shape::Kind::Polygon, .points = std::move(corners), .fill = fill, .stroke = {}};
}

inline Shape Bar(Colour fill, Box box)
{
    return Area(
        fill,
        {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}});
}

inline Shape Outlined(Colour fill, Colour stroke, std::vector<Point> corners, double width = 1)
{
    return {.kind = Shape::Kind::Polygon,
            .points = std::move(corners),
            .fill = fill,
            .stroke = stroke,
            .strokeWidth = width};
}

inline Shape Disc(Colour fill, Box box)
{
    return {.kind = Shape::Kind::Ellipse,
            .points = {{box.left, box.top}, {box.right, box.bottom}},
            .fill = fill,
            .stroke = {}};
}

inline Shape OutlinedDisc(Colour fill, Colour stroke, Box box, double width = 1)
{
    Shape shape = Disc(fill, box);
    shape.stroke = stroke;
    shape.strokeWidth = width;
    return shape;
}

/// From `start`, `span` degrees on, counter-clockwise; 0 is at three o'clock.
inline Shape Bend(Colour stroke, double width, Box box, double start, double span)
{
    return {.kind = Shape::Kind::Arc,
            .points = {{box.left, box.top}, {box.right, box.bottom}},
            .fill = {},
            .stroke = stroke,
            .strokeWidth = width,
            .startAngle = start,
            .spanAngle = span};
}

} // namespace tessarine::icons
