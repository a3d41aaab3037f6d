// The schemes of an installation: reading one for the table or for a preview, and changing the file.
#pragma once

#include "kit/message_box.h"
#include "runtime/file_fault.h"
#include "table/module1.h"

#include <optional>
#include <string>

namespace tessarine
{

/// Works on the file AllColFile of the shared variables, and on the copy "newall.cox" in AppDir.
class SchemeStore
{
public:
    SchemeStore(Module1& module, MsgForm& messageBox);

    /// Reads the entry `name` (with its ".col") into SchemeColors, for the table. If it can't be read,
    /// says so in the message box and makes "default.col" the name of the active scheme; the colours
    /// read before the failure stay.
    void ReadScheme(const std::string& name);

    /// Reads the entry as the file has it, for the dialog, and returns its background. The default
    /// scheme is shown in the platform's own colours, from no file. If the entry can't be read: a plain
    /// message, "default.col" as the name of the active scheme, and black.
    Colour PreviewScheme(const std::string& name);

    /// The whole text of the file.
    FileResult ReadText() const;

    /// Stores the present SchemeColors as a new last entry. A file that isn't there yet is made.
    /// False: the file is as it was.
    bool AddEntry(const std::string& nameLine) const;
    /// Stores the present SchemeColors in place of the entry. Nothing changes if there is none. False:
    /// the file is as it was.
    bool ReplaceEntry(const std::string& nameLine) const;
    /// Takes the entry out. Nothing changes if there is none. False: the file is as it was.
    bool DeleteEntry(const std::string& nameLine) const;

private:
    bool StoreByWayOfCopy(const std::optional<std::string>& changed) const;
    bool RewriteEntry(const std::string& nameLine, const std::string& entry) const;

    Platform& platform_;
    Module1& module_;
    MsgForm& messageBox_;
};

} // namespace tessarine
