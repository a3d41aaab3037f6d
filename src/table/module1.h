// The variables that all of the program shares. One struct, owned by the main form.
#pragma once

#include "kit/dress.h"
#include "kit/sound.h"
#include "runtime/units.h"

#include <array>
#include <string>

namespace tessarine
{

inline constexpr const char* GameTitle = "Tessarine";
inline constexpr int Suits = 5;

/// The colours and font of the scheme come from Dress. Lengths are in twips.
struct Module1 : Dress {
    Whole MoveSteps = 10; ///< steps of the slide of a card; 0 or less turns the slide off
    Whole SoundOn = Yes;
    Whole CfgSpare = 1; ///< carried from file to file, used by nothing

    Whole TableLeft = 40;
    Whole TableTop = 100;
    Whole ColumnGap = 75;
    Whole FanStep = 375;    ///< scaled
    Whole CardWidth = 405;  ///< scaled
    Whole CardHeight = 375; ///< scaled
    Whole BaseCardWidth = 405;
    float CardScale = 1;     ///< size ratio that the configuration stores
    Whole LastFormWidth = 0; ///< of the window at the last layout; -1 while a layout changes it

    std::array<Colour, Suits> SuitColor{}; ///< by suit number - 1
    Colour CardTextColor = White;
    std::string CardFont = "arial";

    std::string SchemeFile; ///< name of the active scheme, with its ".col"
    Colour DarkColor = Rgb(28, 28, 28);
    Colour PanelColor = Rgb(220, 220, 220);

    Whole TwipsX = TwipsPerPixel;
    Whole TwipsY = TwipsPerPixel;
    Whole DragCursorX = 0; ///< logical pixels
    Whole DragCursorY = 0;

    std::string AppDir; ///< the program's folder, with a separator at its end
    std::string AllColFile;
};

} // namespace tessarine
