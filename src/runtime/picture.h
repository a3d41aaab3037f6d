// Pictures as drawings: shapes on a grid, so that an icon stays sharp at any size.
#pragma once

#include "runtime/units.h"

#include <optional>
#include <vector>

namespace tessarine
{

/// One stroke or area of a picture. Points are in the units of the picture's grid; the pixel at the
/// upper left corner runs from (0, 0) to (1, 1).
struct Shape {
    enum class Kind { Polygon, Polyline, Ellipse, Arc };

    Kind kind = Kind::Polygon;
    /// The corners; for an ellipse or an arc the upper left and the lower right corner of its box.
    std::vector<Point> points;
    std::optional<Colour> fill;
    std::optional<Colour> stroke;
    double strokeWidth = 1; ///< in grid units
    /// Of an arc, in degrees: 0 at three o'clock, counter-clockwise.
    double startAngle = 0;
    double spanAngle = 0;
};

/// A square drawing with a transparent ground.
struct Picture {
    /// Cells of the grid along one side; also the size in logical pixels at which it is shown.
    int pixels = 16;
    std::vector<Shape> shapes;

    /// The side in hundredths of a millimetre, as a whole number.
    Whole HundredthsOfMillimetre() const { return RoundHalfEven(pixels * 2540.0 / 96.0); }
};

} // namespace tessarine
