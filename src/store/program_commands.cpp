#include "store/program_commands.h"

#include <algorithm>

namespace tessarine
{

/// Unloading the main form ends the program.
void ProgramCommands::cmdexit_MouseUp()
{
    rooms_.sound.PlayWav("_menu.wav");
    if (rooms_.messages.MsgboxA("Exit?", "vbQuestion + vbYesNo") != AnswerYes) {
        return;
    }
    rooms_.shared.CardScale =
        static_cast<float>(rooms_.shared.CardWidth) / static_cast<float>(rooms_.shared.BaseCardWidth);
    rooms_.configuration.SavecfgFile();
    rooms_.sound.PlayWav("_exit.wav");
    UnloadOtherForms();
    rooms_.main.Unload();
}

void ProgramCommands::UnloadOtherForms()
{
    const auto& loaded = rooms_.main.AllForms().Loaded();
    const auto isOther = [this](const Form* form) { return form != &rooms_.main; };
    for (auto other = std::ranges::find_if(loaded, isOther); other != loaded.end();
         other = std::ranges::find_if(loaded, isOther)) {
        (*other)->Unload();
    }
}

void ProgramCommands::cmdscore_MouseUp()
{
    rooms_.sound.PlayWav("_menu.wav");
    rooms_.scores.SetVisible(true);
    rooms_.scores.BringToFront();
}

void ProgramCommands::cmdopts_MouseUp()
{
    rooms_.sound.PlayWav("_menu.wav");
    rooms_.options.ShowModal(&rooms_.main);
    platform().RunPendingEvents();
}

void ProgramCommands::cmdhelp_MouseUp()
{
    rooms_.sound.PlayWav("_menu.wav");
    rooms_.help.Tag = rooms_.shared.AppDir + "tessarine.htm";
    rooms_.help.Show();
    platform().RunPendingEvents();
}

void ProgramCommands::cmdabout_MouseUp()
{
    rooms_.sound.PlayWav("_menu.wav");
    rooms_.about.ShowModal(&rooms_.main);
    platform().RunPendingEvents();
}

} // namespace tessarine
