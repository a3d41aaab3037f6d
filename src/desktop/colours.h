// Colours of the form runtime as colours of the toolkit.
#pragma once

#include "runtime/units.h"

#include <QColor>

namespace tessarine
{

/// The colour that a number or a reference to a system colour stands for.
QColor ToQColor(Colour colour);

/// Plain is black where that can be seen; the others are a light and a dark shade of the area.
enum class Edge { Plain, Lit, Shaded };

/// The line between an area and what it lies on, in a colour that stands out from both.
QColor EdgeOf(Colour area, Colour around, Edge edge = Edge::Plain);

} // namespace tessarine
