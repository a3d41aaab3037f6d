// Text that can be read on any colour of a scheme or a card.
#pragma once

#include "runtime/units.h"

namespace tessarine
{

/// Black or white, whichever stands out more from a background. Better than 4.5 to 1 on every one.
Colour ReadableOn(Colour background);

} // namespace tessarine
