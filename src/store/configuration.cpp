#include "store/configuration.h"

#include "runtime/files.h"
#include "store/value_stream.h"

#include <array>
#include <cstdio>

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

bool ReadWhole(ValueStream& values, Whole& into)
{
    double value = 0;
    const bool read = values.ReadNumber(value);
    into = RoundHalfEven(value);
    return read;
}

bool ReadAll(ValueStream values, Module1& into)
{
    double scale = 0;
    bool read = values.SkipLine() && ReadWhole(values, into.CfgSpare) &&
                ReadWhole(values, into.CardTextColor) && ReadWhole(values, into.SoundOn) &&
                values.ReadNumber(scale);
    into.CardScale = static_cast<float>(scale);
    for (Colour& colour : into.SuitColor) {
        read = read && ReadWhole(values, colour);
    }
    return read && values.ReadText(into.SchemeFile) && values.ReadText(into.CardFont);
}

} // namespace

std::string Configuration::Path() const
{
    return shared_.AppDir + "tessarine.cfg";
}

void Configuration::ReadcfgFile()
{
    const FileResult file = platform_.ReadFile(Path());
    if (file && ReadAll(ValueStream(file.text), shared_)) {
        return;
    }
    Complain("could not be accessed, new file will be created");
    SetNewValues();
    // Where even that can't be written the program goes on with the new values.
    static_cast<void>(ReplaceFile(platform_, Path(), Text()));
}

void Configuration::SavecfgFile()
{
    if (ReplaceFile(platform_, Path(), Text()) != FileFault::None) {
        Complain("could not be accessed, options not saved");
    }
}

void Configuration::SetNewValues()
{
    shared_.CfgSpare = 1;
    shared_.CardTextColor = White;
    shared_.SoundOn = No;
    shared_.CardScale = 1;
    shared_.SuitColor = {Rgb(0, 0, 0), Rgb(0, 0, 128), Rgb(0, 128, 0), Rgb(128, 128, 0), Rgb(128, 0, 0)};
    shared_.SchemeFile = "default.col";
    shared_.CardFont = "arial";
}

std::string Configuration::Text() const
{
    std::string second = Printed(shared_.CfgSpare);
    AddInZone(second, Printed(shared_.CardTextColor));
    AddInZone(second, Printed(shared_.SoundOn));

    std::vector<std::string> lines = {TimeStamp(platform_.Now()), second, Printed(shared_.CardScale)};
    for (const Colour colour : shared_.SuitColor) {
        lines.push_back(Printed(colour));
    }
    lines.push_back(shared_.SchemeFile);
    lines.push_back(shared_.CardFont);
    return JoinLines(lines);
}

void Configuration::Complain(std::string_view consequence)
{
    std::string text = "Configuration file:";
    text.append(LineEnd).append(Path()).append(LineEnd).append(consequence);
    messages_.MsgboxA(text, "vbcritical+vbok");
}

} // namespace tessarine
