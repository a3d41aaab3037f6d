// Colour schemes worked out from one background.
#pragma once

#include "kit/dress.h"
#include "runtime/units.h"

namespace tessarine
{

/// Slots of a scheme that are stored: 0 to 12.
inline constexpr std::size_t StoredSlots = 13;

/// The contrast of a scheme as it is made when nobody asks for another, in hundredths.
inline constexpr Whole PlainContrast = 100;

/// Fills the slots 0 to 12 from a background, a plain colour, and a contrast in hundredths. A negative
/// contrast makes the buttons lighter than the background.
void MakeScheme(Dress& dress, Colour colour, Whole contrast);

/// A scheme that needs no file: what the table wears until a stored one has been read.
void FillBuiltInScheme(Dress& dress);

} // namespace tessarine
