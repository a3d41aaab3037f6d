#include "appearance/scheme_commands.h"

#include "appearance/scheme_file.h"
#include "runtime/files.h"
#include "runtime/letters.h"

namespace tessarine
{
namespace
{

std::string AddFailure(const std::string& nameLine)
{
    return std::string("Error in adding Color Scheme:").append(LineEnd).append(nameLine);
}

std::string UpdateFailure(const std::string& nameLine)
{
    return std::string("Error in updating Color Scheme:").append(LineEnd).append(nameLine);
}

} // namespace

SchemeCommands::SchemeCommands(Platform& platform, Module1& module, SchemeStore& store, ListBox& list)
    : platform_(platform), module_(module), store_(store), list_(list)
{
}

bool SchemeCommands::FillList()
{
    const FileResult file = store_.ReadText();
    if (!file) {
        return false;
    }
    list_.FillWhenAsked([names = SchemeNames(file.text)] { return names; });
    return true;
}

void SchemeCommands::addsch_MouseUp()
{
    const std::string name = platform_.AskForText("Enter new Color Scheme name");
    if (name.empty()) {
        return;
    }
    if (list_.Items().Find(name)) {
        Say("Color Scheme: " + name + " already exists");
        return;
    }
    const std::string nameLine = NameLine(name);
    if (store_.AddEntry(nameLine) && FillList()) {
        Say("Color Scheme: " + name + " added");
    } else {
        Say(AddFailure(nameLine));
    }
}

void SchemeCommands::repsch_MouseUp()
{
    const std::string name = list_.SelectedText();
    if (name.empty()) {
        Say("Select a color scheme to replace");
        return;
    }
    if (!UserAgrees("Replace color scheme: " + name)) {
        return;
    }
    const std::string nameLine = NameLine(name);
    if (store_.ReplaceEntry(nameLine)) {
        Say("Color Scheme: " + nameLine + " replaced");
    } else {
        Say(UpdateFailure(nameLine));
    }
}

void SchemeCommands::delsch_MouseUp()
{
    const std::string name = list_.SelectedText();
    if (name.empty()) {
        Say("Select a color scheme to delete");
        return;
    }
    if (!UserAgrees("Delete color scheme: " + name)) {
        return;
    }
    const std::string nameLine = NameLine(name);
    if (nameLine == LowerCase(module_.SchemeFile)) {
        Say("Cannot delete currently active Color Scheme");
        return;
    }
    if (store_.DeleteEntry(nameLine) && FillList()) {
        Say("Color Scheme: " + nameLine + " deleted");
    } else {
        Say(UpdateFailure(nameLine));
    }
}

void SchemeCommands::Say(const std::string& text)
{
    platform_.PlainMessage(text, PlainButtons::Ok);
}

bool SchemeCommands::UserAgrees(const std::string& question)
{
    return platform_.PlainMessage(question, PlainButtons::YesNo);
}

} // namespace tessarine
