// A program that consists of the options dialog and what it stands on.
#pragma once

#include "appearance/options_dialog.h"
#include "appearance/scheme_file.h"
#include "headless/headless_platform.h"
#include "runtime/files.h"

#include <string>
#include <vector>

namespace tessarine
{

/// An entry whose slots are grey, each 10 lighter than the one before: slot 2 is 60, slot 4 is 80.
inline std::string GreyEntry(const std::string& nameLine, int darkest = 40)
{
    std::string text = nameLine + "\r\n";
    for (std::size_t slot = 0; slot < StoredSlots; ++slot) {
        const std::string grey = NumberText(darkest + 10 * static_cast<int>(slot));
        text.append(grey).append(";").append(grey).append(";").append(grey).append("\r\n");
    }
    return text;
}

constexpr Colour Grey(int level)
{
    return Rgb(level, level, level);
}

struct AppearanceWorld {
    AppearanceWorld()
    {
        module.AppDir = "/program/";
        module.AllColFile = "/program/all.col";
        module.SchemeFile = "grey.col";
        FillBuiltInScheme(module);
        platform.files[module.AllColFile] =
            GreyEntry("default.col", 100) + GreyEntry("grey.col") + GreyEntry("slate.col", 60);
        dialog.FillSchemeList();
    }

    std::string& AllCol() { return platform.files[module.AllColFile]; }
    std::string LastMessage() const
    {
        return platform.plainMessages.empty() ? std::string() : platform.plainMessages.back();
    }
    void PickScheme(const std::string& name)
    {
        dialog.List1.UserPicks(dialog.List1.Items().Find(name).value());
    }
    std::vector<std::string> Listed() const
    {
        return {dialog.List1.Items().begin(), dialog.List1.Items().end()};
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    Module1 module;
    MsgForm messageBox{forms};
    SchemeStore store{module, messageBox};
    Sound sound{platform, module.AppDir, module.SoundOn};
    int repaints = 0; ///< of the table
    Form6 dialog{forms, module, store, messageBox, sound, [this] {
                     ++repaints;
                     store.ReadScheme(module.SchemeFile);
                 }};
};

} // namespace tessarine
