// What the user chose, kept from run to run.
#pragma once

#include "kit/sound.h"
#include "runtime/units.h"

#include <array>
#include <string>

namespace tessarine
{

inline constexpr int Suits = 5;

/// Each value begins as a new file has it.
struct Settings {
    Whole CfgSpare = 1; ///< carried from file to file, used by nothing
    Colour CardTextColor = White;
    Whole SoundOn = No;
    float CardScale = 1; ///< size ratio of the cards
    /// By suit number - 1.
    std::array<Colour, Suits> SuitColor = {Rgb(0, 0, 0), Rgb(0, 0, 128), Rgb(0, 128, 0),
                                           Rgb(128, 128, 0), Rgb(128, 0, 0)};
    std::string SchemeFile = "default.col"; ///< name of the active scheme, with its ".col"
    std::string CardFont = "arial";

    bool operator==(const Settings&) const = default;
};

/// Calls `visit` with each value in the order of the file, whose format that is, and with whether the
/// value ends its line. `settings` is Settings or const Settings.
template <class SettingsType, class Visit> void ForEachSetting(SettingsType& settings, Visit visit)
{
    constexpr bool endsLine = true;
    visit(settings.CfgSpare, !endsLine);
    visit(settings.CardTextColor, !endsLine);
    visit(settings.SoundOn, endsLine);
    visit(settings.CardScale, endsLine);
    for (auto& colour : settings.SuitColor) {
        visit(colour, endsLine);
    }
    visit(settings.SchemeFile, endsLine);
    visit(settings.CardFont, endsLine);
}

} // namespace tessarine
