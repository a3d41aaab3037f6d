// The commands that lead out of the table.
#pragma once

#include "kit/message_box.h"
#include "runtime/form.h"
#include "store/configuration.h"
#include "store/scores.h"
#include "table/module1.h"

namespace tessarine
{

class ProgramCommands
{
public:
    /// What the commands touch.
    struct Rooms {
        Form& main;
        Form& options;
        Form& help;
        Form& about;
        MsgForm& messages;
        Configuration& configuration;
        ScoresBox& scores;
        Module1& shared;
        const Sound& sound;
    };
    explicit ProgramCommands(const Rooms& rooms) : rooms_(rooms) {}

    // Presses of the buttons.
    void cmdexit_MouseUp();
    void cmdscore_MouseUp();
    void cmdopts_MouseUp();
    void cmdhelp_MouseUp();
    void cmdabout_MouseUp();

private:
    void UnloadOtherForms();
    Platform& platform() const { return rooms_.main.platform(); }

    Rooms rooms_;
};

} // namespace tessarine
