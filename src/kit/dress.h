// The colours that forms and buttons wear: the working copy of the scheme in use.
#pragma once

#include "runtime/units.h"

#include <array>
#include <cstddef>

namespace tessarine
{

inline constexpr std::size_t SchemeSlots = 17;
/// Slot of the background of the table and of all forms.
inline constexpr std::size_t BackgroundSlot = 2;
/// Slot of buttons, bases and face-down cards.
inline constexpr std::size_t ButtonSlot = 4;

struct Dress {
    /// Slots 0 to 12 are the scheme; the rest are never touched.
    std::array<Colour, SchemeSlots> SchemeColors{};
    std::size_t ButtonColorIndex = ButtonSlot;

    Colour Background() const { return SchemeColors[BackgroundSlot]; }
    Colour Button() const { return SchemeColors[ButtonColorIndex]; }
};

} // namespace tessarine
