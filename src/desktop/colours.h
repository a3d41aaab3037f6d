// Colours of the form runtime as colours of the toolkit, and how well they can be told apart.
#pragma once

#include "runtime/units.h"

#include <QColor>

namespace tessarine
{

/// The colour that a number or a reference to a system colour stands for.
QColor ToQColor(Colour colour);

/// From 1, the same, to 21, black on white.
double Contrast(const QColor& one, const QColor& other);

/// The wanted text colour, or black or white where it could not be read on this ground.
QColor ReadableOn(const QColor& ground, const QColor& wanted);

/// A thin edge around an area: black, or a lighter shade of an area that is nearly black itself.
QColor EdgeOf(const QColor& area);

} // namespace tessarine
