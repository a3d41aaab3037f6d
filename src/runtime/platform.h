// The one door: everything that the program asks of the world outside it.
#pragma once

#include "runtime/file_fault.h"
#include "runtime/font.h"
#include "runtime/units.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

class Control;
class Form;
class Timer;

/// The local time. `shortMonth` is the month's short name in the user's language, three letters without
/// a blank.
struct DateTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::string shortMonth;
};

/// A place on the screen in logical pixels.
struct PixelPoint {
    Whole x = 0;
    Whole y = 0;
};

enum class PlainButtons { Ok, YesNo };

/// What the system's own file dialog is asked for.
struct FileDialogRequest {
    bool save = false;
    std::string title;
    std::string typesName; ///< such as "saved game"
    std::string types;     ///< a pattern, such as "*.gam"
    std::string folder;    ///< where it opens
    std::string name;      ///< what it proposes; empty for nothing
};

class Platform
{
public:
    virtual ~Platform() = default;

    // Forms. A platform reads what the objects say and feeds raw events into them; see form.h.
    virtual void ShowForm(Form& form) = 0;
    virtual void HideForm(Form& form) = 0;
    /// Handles events until the form, already shown, is hidden. `owner` may be none.
    virtual void RunModal(Form& form, Form* owner) = 0;
    /// The form is unloaded or dies: its window goes, and nothing may reach the form any more.
    virtual void DestroyForm(Form& form) = 0;
    /// Gives the window another client area, in twips, and returns the one that it really has: as
    /// asked, rounded to pixels, or the old one where the window refuses.
    virtual Size FitWindow(Form& form, Size clientArea) = 0;
    /// The largest client area, in twips, that the form's window can have and be seen whole where it
    /// stands or would come up.
    virtual Size LargestClientArea(const Form& form) = 0;
    /// The form has its first change since TakeChanges; called once, not for each change.
    virtual void ChangesPending(Form& form) = 0;
    /// Nothing on this control is drawn until it is thawed; then all of it, at once. None thaws.
    virtual void FreezeSurface(const Control* surface) = 0;

    // Events.
    virtual void RunPendingEvents() = 0;
    /// Sleeps until there is an event, and handles it.
    virtual void WaitForEvent() = 0;
    /// Calls Fire of the timer once, after at least so many milliseconds. A second start begins anew.
    virtual void StartTimer(Timer& timer, int milliseconds) = 0;
    virtual void StopTimer(Timer& timer) = 0;
    virtual void EndProgram() = 0;

    // Pointer.
    virtual PixelPoint Cursor() = 0;
    virtual void SetBusyPointer(bool busy) = 0;

    // Clock and chance.
    virtual DateTime Now() = 0;
    virtual float SecondsSinceMidnight() = 0;
    /// Mixes a number into the state of the generator; it starts no sequence anew.
    virtual void SeedRandom(double seed) = 0;
    /// A number in [0, 1).
    virtual double RandomDraw() = 0;

    // Fonts. Sizes in twips; a text may have several lines.
    virtual std::vector<std::string> ScreenFonts() = 0;
    virtual Size TextSize(const Font& font, std::string_view text) = 0;

    // The system's own boxes.
    /// Whether one is open; it then keeps input from every form.
    bool HasBoxOpen() const { return openBoxes_ > 0; }
    /// True for Ok and for Yes.
    virtual bool PlainMessage(const std::string& text, PlainButtons buttons) = 0;
    /// The text typed; empty when nothing was or on cancel.
    virtual std::string AskForText(const std::string& prompt) = 0;
    /// The full path chosen; empty on cancel.
    virtual std::string ChooseFile(const FileDialogRequest& request, Form* owner) = 0;

    /// Says what is new on a form to whoever listens instead of looking, at once and in plain words;
    /// nothing where nobody does.
    virtual void Announce(const Form& form, const std::string& news) = 0;

    /// Plays a wave file and returns at once; silence where that can't be.
    virtual void PlayWave(const std::string& path) = 0;

    // Files. Paths are UTF-8; text is bytes. What files.h builds on these is what the program calls.
    /// The whole file.
    virtual FileResult ReadFile(const std::string& path) = 0;
    /// The place to which a write of this path has to go: where it leads if it is a link, itself if
    /// not. A fault if nothing may be put there, such as over a file that is write-protected.
    virtual FileResult PlaceToWrite(const std::string& path) = 0;
    /// Makes or empties a file, writes it and flushes it to the disk. With a fault it may be left in
    /// part.
    virtual FileFault WriteNewFile(const std::string& path, std::string_view bytes) = 0;
    /// Puts a file in place of another, whole or not at all, and flushes the folder. The other's mode
    /// stays.
    virtual FileFault RenameFile(const std::string& from, const std::string& to) = 0;
    virtual void RemoveFile(const std::string& path) = 0;
    /// What ends the names of files that no other running program writes.
    virtual std::string OwnSuffix() const = 0;
    /// Whether a plain file of that name is there: no folder, nothing hidden.
    virtual bool IsPlainFile(const std::string& path) = 0;
    virtual std::string CurrentFolder() = 0;
    virtual void ChangeFolder(const std::string& folder) = 0;
    /// The characters that part folders, the usual one first.
    virtual std::string_view FolderSeparators() const = 0;

protected:
    /// A box of the system is open for as long as one of these lives.
    class OpenBox
    {
    public:
        explicit OpenBox(Platform& platform) : platform_(platform) { ++platform_.openBoxes_; }
        ~OpenBox() { --platform_.openBoxes_; }
        OpenBox(const OpenBox&) = delete;
        OpenBox& operator=(const OpenBox&) = delete;

    private:
        Platform& platform_;
    };

private:
    int openBoxes_ = 0;
};

} // namespace tessarine
