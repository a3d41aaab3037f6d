// Colours of the form runtime as colours of the toolkit.
#pragma once

#include "runtime/units.h"

#include <QColor>
#include <QPalette>

namespace tessarine
{

/// The colour that a number or a reference to a system colour stands for.
QColor ToQColor(Colour colour);
Colour ToColour(const QColor& colour);

/// Plain is black where that can be seen; the others are a light and a dark shade of the area.
enum class Edge { Plain, Lit, Shaded };

/// The line between an area and what it lies on, in a colour that stands out from both.
QColor EdgeOf(Colour area, Colour around, Edge edge = Edge::Plain);

/// A line drawn on one colour, such as the frame of a group or of a list: it stands out from any by 3 to
/// 1 and is softer than text.
QColor LineOn(Colour ground);

/// The colours of one of the toolkit's widgets, or of a box of its widgets: its ground, the text there,
/// and the faces of its buttons.
QPalette PaletteOf(Colour ground, Colour text, Colour face);

} // namespace tessarine
