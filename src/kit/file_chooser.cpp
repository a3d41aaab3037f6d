#include "kit/file_chooser.h"

#include "runtime/files.h"
#include "runtime/form.h"
#include "runtime/letters.h"

#include <algorithm>

namespace tessarine
{
namespace
{

constexpr int LastNumber = 99;
/// Characters of the pattern behind its "*" that make an extension, the dot among them.
constexpr std::size_t ExtensionLength = 4;

/// The path as the dialog gave it, with the extension of the pattern when it has none.
std::string WithExtension(std::string_view chosen, std::string_view types)
{
    std::string path = TrimBlanks(chosen.substr(0, chosen.find('\0')));
    const auto star = types.find('*');
    if (!path.empty() && path.find('.') == std::string::npos && star != std::string_view::npos) {
        path.append(types.substr(star + 1, ExtensionLength));
    }
    return path;
}

Whole NumberBehind(Whole number)
{
    return number < 0 || number >= LastNumber ? 1 : number + 1;
}

} // namespace

FNDialog::FNDialog()
{
    SetVisible(false);
    SetForeColor(Black);
    Command1.SetCaption("...");
    Add(Command1);
}

void FNDialog::Resized()
{
    UserControl::Resized();
    Command1.SetBounds(0, 0, Width(), Height());
}

void FNDialog::Restyled()
{
    UserControl::Restyled();
    Command1.SetBackColor(BackColor());
    Command1.SetFont(Font());
}

std::string FNDialog::GetFileName(std::string_view s)
{
    Form* const form = OwnerForm();
    if (form == nullptr) {
        return {};
    }
    // The system's dialog may leave the program in the folder that the user looked into last.
    Platform& platform = form->platform();
    const std::string folder = platform.CurrentFolder();
    std::string chosen = ShowFileDialog(*form, LowerCase(s) == "save");
    platform.ChangeFolder(folder);
    platform.RunPendingEvents();
    return chosen;
}

std::string FNDialog::ShowFileDialog(Form& owner, bool save) const
{
    FileDialogRequest request;
    request.save = save;
    request.title = title;
    request.typesName = FileTypesName;
    request.types = FileTypes;
    request.folder = WithSeparator(owner.platform(), DefaultDir);
    return WithExtension(owner.platform().ChooseFile(request, &owner), FileTypes);
}

bool FileExists(Platform& platform, const std::string& path)
{
    return !path.empty() && platform.IsPlainFile(path);
}

std::string NextFreeName(Platform& platform, const std::string& path)
{
    // A ";" or a dot in the folder is no part of the name.
    const auto nameStart = NameStart(platform, path);
    const std::string_view name = std::string_view(path).substr(nameStart);
    const auto dot = std::min(name.rfind('.'), name.size());
    const auto semicolon = name.substr(0, dot).rfind(';');
    const bool hasNumber = semicolon != std::string_view::npos;
    const std::string_view bare = name.substr(0, hasNumber ? semicolon : dot);
    const std::string_view extension = name.substr(dot);

    Whole number = hasNumber ? WholeAtStart(name.substr(semicolon + 1, dot - semicolon - 1)) : 0;
    for (int tries = 0; tries < LastNumber; ++tries) {
        number = NumberBehind(number);
        std::string candidate = path.substr(0, nameStart);
        candidate.append(bare).append(1, ';');
        candidate.append(TwoDigits(number)).append(extension);
        if (!FileExists(platform, candidate)) {
            return candidate;
        }
    }
    return {};
}

} // namespace tessarine
