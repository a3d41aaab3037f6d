// Add, Replace and Delete of colour schemes, with their questions and notices, and the list of names.
#pragma once

#include "appearance/scheme_store.h"
#include "runtime/controls.h"

namespace tessarine
{

/// All of it speaks through the platform's own boxes. Whatever fails, the schemes on the disk, the
/// colours and the name of the active scheme stay as they are.
class SchemeCommands
{
public:
    /// `list` is the sorted list of the schemes' names.
    SchemeCommands(Platform& platform, Module1& module, SchemeStore& store, ListBox& list);

    /// Fills the list from the file, with nothing selected. False: the file can't be read, and the list
    /// stays as it was.
    bool FillList();

    /// Asks for a name and stores the present colours under it.
    void addsch_MouseUp();
    /// Stores the present colours in place of the selected scheme.
    void repsch_MouseUp();
    /// Removes the selected scheme, unless it is the active one.
    void delsch_MouseUp();

private:
    void Say(const std::string& text);
    bool UserAgrees(const std::string& question);

    Platform& platform_;
    Module1& module_;
    SchemeStore& store_;
    ListBox& list_;
};

} // namespace tessarine
