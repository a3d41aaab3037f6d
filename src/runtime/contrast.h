// How well two colours can be told apart, and which text can be read on which ground.
#pragma once

#include "runtime/units.h"

namespace tessarine
{

/// The light of a channel of a colour, from 0 to 255, as a share of the most, from 0 to 1.
double LightOf(int channel);

/// From 1, the same brightness, to 21, black on white. References to system colours are resolved.
double Contrast(Colour one, Colour other);

/// The wanted colour, or black or white where it could not be read on this ground. Text in it has a
/// contrast of 4.5 to 1 or better on every ground.
Colour ReadableOn(Colour ground, Colour wanted = Black);

/// What a text is written in. A plain colour is meant as it is; a reference to a system colour leaves
/// the choice to the platform, which takes one that can be read.
Colour TextColour(Colour ground, Colour foreColor);

} // namespace tessarine
