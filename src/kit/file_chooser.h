// Choosing a file by the system's dialog, and finding a free name for a new one.
#pragma once

#include "runtime/controls.h"

#include <string>
#include <string_view>

namespace tessarine
{

class Platform;

/// A tool control that is never seen: it asks for a file on behalf of the form that it stands on.
class FNDialog : public UserControl
{
public:
    FNDialog();

    std::string title;         ///< of the dialog
    std::string FileTypes;     ///< the pattern of the files offered, such as "*.gam"
    std::string FileTypesName; ///< what files of the pattern are called
    std::string DefaultDir;    ///< where the dialog opens

    const std::string& Caption() const { return Command1.Caption(); }
    void SetCaption(const std::string& caption) { Command1.SetCaption(caption); }

    /// Asks for a file to save with `s` "SAVE", in any letter case, and for one to open with any other
    /// text. Returns the full path; empty if the user cancelled, and while the control is on no form.
    /// The current folder is as before, and pending events have run.
    std::string GetFileName(std::string_view s = {});

    PushButton Command1;

protected:
    void Draw(Canvas&) const override {} // the button covers it
    void Resized() override;
    void Restyled() override;

private:
    std::string ShowFileDialog(Form& owner, bool save) const;
};

/// Whether a plain file is there: no folder, nothing hidden. False for an empty path.
bool FileExists(Platform& platform, const std::string& path);

/// The path with the next free number from 01 to 99 before its extension: "name;01.gam" for
/// "name.gam", "name;08.gam" for "name;07.gam". Behind 99 comes 01. Empty when all are taken. Without
/// an extension the number is put at the end.
std::string NextFreeName(Platform& platform, const std::string& path);

} // namespace tessarine
