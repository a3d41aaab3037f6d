// Dressing the main window in the scheme.
#pragma once

#include "kit/message_box.h"
#include "table/module1.h"

#include <vector>

namespace tessarine
{

/// What wears the scheme outside the dialogs, which paint themselves.
struct SchemeWearers {
    std::vector<Control*> surfaces; ///< in the colour of the background
    std::vector<Control*> buttons;  ///< in the button colour
    MsgForm& messageBox;
    Form& mainWindow; ///< for the boxes of the system that belong to it
};

/// Paints the surfaces, the buttons and the message box, each list in its order, from SchemeColors.
void ApplyScheme(Module1& module, const SchemeWearers& wearers);

} // namespace tessarine
