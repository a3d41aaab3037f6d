// Colours of the form runtime as colours of the toolkit.
#pragma once

#include "runtime/units.h"

#include <QColor>

namespace tessarine
{

/// The colour that a number or a reference to a system colour stands for.
QColor ToQColor(Colour colour);

/// A thin edge around an area: black, or a lighter shade of an area that is nearly black itself.
QColor EdgeOf(Colour area);

} // namespace tessarine
