#include "appearance/apply_scheme.h"

namespace tessarine
{

void ApplyScheme(Module1& module, const SchemeWearers& wearers)
{
    module.ButtonColorIndex = ButtonSlot;
    for (Control* surface : wearers.surfaces) {
        surface->SetBackColor(module.Background());
    }
    for (Control* button : wearers.buttons) {
        button->SetBackColor(module.Button());
    }
    wearers.messageBox.SetBackColor(module.Background());
    wearers.messageBox.ButtonColour = module.Button();
    wearers.mainWindow.ButtonColour = module.Button();
    wearers.messageBox.SetForeColor(module.DarkColor);
}

} // namespace tessarine
