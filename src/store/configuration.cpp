#include "store/configuration.h"

#include "runtime/files.h"
#include "store/value_stream.h"

#include <array>
#include <cstdio>
#include <utility>
#include <vector>

namespace tessarine
{
namespace
{

/// Values on one line stand in zones of this many columns.
constexpr std::size_t PrintZone = 14;

/// A number as a file holds it: a blank or the sign before it, a blank behind.
std::string Printed(Whole value)
{
    return NumberText(value) + ' ';
}

const std::string& Printed(const std::string& value)
{
    return value;
}

std::string Printed(float value)
{
    return (value < 0 ? "" : " ") + DecimalText(value) + ' ';
}

/// Adds a value at the next zone that begins behind what the line holds.
void AddInZone(std::string& line, const std::string& value)
{
    line.resize((line.size() + PrintZone - 1) / PrintZone * PrintZone, ' ');
    line += value;
}

std::string TimeStamp(const DateTime& now)
{
    std::array<char, 96> text{};
    const int length = std::snprintf(text.data(), text.size(), "%02d-%02d-%04d %02d:%02d:%02d",
                                     now.month, now.day, now.year, now.hour, now.minute, now.second);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::string SettingsText(const Settings& settings, const DateTime& now)
{
    std::vector<std::string> lines = {TimeStamp(now)};
    std::string line;
    ForEachSetting(settings, [&](const auto& value, bool endsLine) {
        AddInZone(line, Printed(value));
        if (endsLine) {
            lines.push_back(std::exchange(line, {}));
        }
    });
    return JoinLines(lines);
}

std::optional<Settings> ReadSettings(std::string_view text)
{
    ValueStream values(text);
    Settings settings;
    bool read = values.SkipLine();
    ForEachSetting(settings, [&](auto& value, bool /*endsLine*/) { read = read && values.Read(value); });
    return read ? std::optional(settings) : std::nullopt;
}

std::string Configuration::Path() const
{
    return appDir_ + "tessarine.cfg";
}

void Configuration::ReadcfgFile()
{
    const auto settings = ReadSettings(platform_.ReadFile(Path()).text);
    if (settings) {
        settings_ = *settings;
        return;
    }
    Complain("could not be accessed, new file will be created");
    settings_ = Settings();
    // Where even that can't be written the program goes on with the new values.
    static_cast<void>(Write());
}

void Configuration::SavecfgFile()
{
    if (Write() != FileFault::None) {
        Complain("could not be accessed, options not saved");
    }
}

FileFault Configuration::Write()
{
    return ReplaceFile(platform_, Path(), SettingsText(settings_, platform_.Now()));
}

void Configuration::Complain(std::string_view consequence)
{
    std::string text = "Configuration file:";
    text.append(LineEnd).append(Path()).append(LineEnd).append(consequence);
    messages_.MsgboxA(text, "vbcritical+vbok");
}

} // namespace tessarine
