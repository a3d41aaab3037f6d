// The drawings of the program: the icons of the command row, of the message box and of the windows.
#pragma once

#include "runtime/picture.h"

namespace tessarine::icons
{

// The command row: 16 by 16.
const Picture& OpenFolder();
const Picture& FloppyDisk();
const Picture& ScoreSheet();
const Picture& ColourStripes();
const Picture& SheetWithCheckMark();
const Picture& SheetWithTurningArrows();
const Picture& ExclamationInRing();
const Picture& QuestionMark();
const Picture& DoorWithArrow();
const Picture& ArrowPointingBack();

// The message box: 32 by 32.
const Picture& Question();
const Picture& Exclamation();
const Picture& Information();
const Picture& Error();
const Picture& Critical();
const Picture& Happy();
const Picture& Trash();
const Picture& Print();
const Picture& LightOn();

/// The program's own, 32 by 32.
const Picture& Program();

} // namespace tessarine::icons
