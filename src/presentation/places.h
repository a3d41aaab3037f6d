// Where things stand on the main window, in twips, and how the window's size and the table's hang
// together.
#pragma once

#include "runtime/units.h"

namespace tessarine::places
{

/// The client area as designed.
inline constexpr Size DesignArea{6600, 7710};

// The command row: square buttons, edge to edge.
inline constexpr Twips RowLeft = 30;
inline constexpr Twips RowTop = 30;
inline constexpr Twips RowButton = 360;
inline constexpr Twips RowRight = RowLeft + 10 * RowButton;

// The table surface and the scores panel on it.
inline constexpr Twips SurfaceLeft = 30;
inline constexpr Twips SurfaceTop = 450;
inline constexpr Twips ScoresLeft = 450;
inline constexpr Twips ScoresTop = 690;
inline constexpr Twips ScoresWidth = 3795;
inline constexpr Twips ScoresHeight = 2985;

/// From the right edge of the last column to that of the surface.
inline constexpr Twips SurfaceMargin = 100;
/// What the window is wider than the surface, frame included.
inline constexpr Twips WindowMargin = 175;
/// What the window is higher than the surface and all above it, frame included.
inline constexpr Twips BelowSurface = 550;

/// The card width that a table can have, 8 to 1,000 pixels.
inline constexpr Whole SmallestCard = 8 * TwipsPerPixel;
inline constexpr Whole LargestCard = 1000 * TwipsPerPixel;

} // namespace tessarine::places
