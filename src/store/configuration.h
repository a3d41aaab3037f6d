// The settings between two runs: a text of ten lines, whose order is its format.
#pragma once

#include "kit/message_box.h"
#include "table/settings.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessarine
{

/// The settings as a file states them; none if the text ends before the last value.
std::optional<Settings> ReadSettings(std::string_view text);
/// The text of a file, written at this time.
std::string SettingsText(const Settings& settings, const DateTime& now);

class Configuration
{
public:
    /// `appDir` is the program's folder, with a separator at its end.
    Configuration(Platform& platform, const std::string& appDir, Settings& settings, MsgForm& messages)
        : platform_(platform), appDir_(appDir), settings_(settings), messages_(messages)
    {
    }

    /// Reads "tessarine.cfg" of the program's folder into the settings. A file that is missing or ends
    /// early is told, and replaced by one of new values, which then also hold.
    void ReadcfgFile();
    /// Writes the settings there. A failure is told.
    void SavecfgFile();

private:
    std::string Path() const;
    FileFault Write();
    void Complain(std::string_view consequence);

    Platform& platform_;
    const std::string& appDir_;
    Settings& settings_;
    MsgForm& messages_;
};

} // namespace tessarine
