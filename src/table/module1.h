// The variables that all of the program shares. One struct, owned by the main form.
#pragma once

#include "kit/dress.h"
#include "kit/sound.h"
#include "runtime/units.h"
#include "table/settings.h"

#include <string>

namespace tessarine
{

inline constexpr const char* GameTitle = "Tessarine";

/// The colours of the scheme come from Dress, what the user chose from Settings. Lengths are in twips.
struct Module1 : Dress, Settings {
    /// Until the settings are read the sound is on.
    Module1() { SoundOn = Yes; }

    Whole MoveSteps = 10; ///< steps of the slide of a card; 0 or less turns the slide off

    Whole TableLeft = 40;
    Whole TableTop = 100;
    Whole ColumnGap = 75;
    Whole FanStep = 375;    ///< scaled
    Whole CardWidth = 405;  ///< scaled
    Whole CardHeight = 375; ///< scaled
    Whole BaseCardWidth = 405;
    Whole LastFormWidth = 0; ///< of the window at the last layout; -1 while a layout changes it

    Colour DarkColor = Rgb(28, 28, 28);
    Colour PanelColor = Rgb(220, 220, 220);

    Whole TwipsX = TwipsPerPixel;
    Whole TwipsY = TwipsPerPixel;

    std::string AppDir; ///< the program's folder, with a separator at its end
    std::string AllColFile;
};

} // namespace tessarine
