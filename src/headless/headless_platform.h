// A platform in memory: virtual clock, scripted answers, seeded chance, recorded sounds, files that
// live in a map and can be made to fail. Deterministic; for tests, fuzzers and benchmarks.
#pragma once

#include "runtime/form.h"
#include "runtime/platform.h"
#include "runtime/timer.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace tessarine
{

class HeadlessPlatform : public Platform
{
public:
    explicit HeadlessPlatform(std::uint64_t seed = 1) : random_(seed) {}

    // --- the script of a test ---

    /// What the user does with the next modal form, in the order of these calls. A modal form that
    /// finds no script gets its cancel or its first visible button pressed, and counts as unscripted.
    void OnNextModal(std::function<void(Form&)> user);
    /// The user presses the button with this caption on the next modal form.
    void AnswerModal(const std::string& caption);
    /// Answers of the system's own boxes, in order; without one: Ok or No, an empty text, a cancel.
    std::deque<bool> plainAnswers;
    std::deque<std::string> typedAnswers;
    std::deque<std::string> chosenFiles;
    /// Runs inside the next call that lets pending events run, waits, or opens a box of the system, one
    /// entry a call: input in the middle of something.
    std::deque<std::function<void()>> meanwhile;

    // --- what happened ---

    std::vector<std::string> sounds;        ///< paths as they came, oldest first
    std::string announced;                  ///< the latest of what a listener was told
    std::vector<std::string> plainMessages; ///< texts of the system's own boxes
    std::vector<FileDialogRequest> fileDialogs;
    std::vector<std::string> modalCaptions; ///< captions of the modal forms that were run
    int unscriptedModals = 0;
    int paints = 0;          ///< rounds of events in which something changed
    int paintedControls = 0; ///< changed controls over all those rounds
    bool ended = false;      ///< EndProgram was called
    bool busy = false;
    const Control* frozen = nullptr;

    // --- the world ---

    /// Path to bytes. A path that ends in "/" is a folder.
    std::map<std::string, std::string> files;
    std::map<std::string, std::string> links; ///< path to the path that it leads to
    std::set<std::string> writeProtected;     ///< files
    std::string currentFolder = "/run";
    std::string separators = "/"; ///< what the program is told; the disk itself knows "/" alone
    std::set<std::string> hiddenFiles;
    /// Folders, with or without the "/" at their ends, in which nothing can be made, renamed or removed.
    std::set<std::string> readOnlyFolders;
    /// The file operation (ReadFile, PlaceToWrite, WriteNewFile, RenameFile, counted together from 0
    /// since the last ResetFileOperations) that fails; -1 for none. A write that finds the disk full or
    /// broken leaves half of the bytes behind.
    int failingFileOperation = -1;
    /// From `failingFileOperation` on every file operation fails.
    bool failsFromThere = false;
    FileFault failure = FileFault::Full; ///< why it fails
    int fileOperations = 0;
    void ResetFileOperations(int failing = -1, bool fromThere = false, FileFault why = FileFault::Full);

    /// Another measure of texts than the own one, by which all letters are alike.
    std::function<Size(const Font&, std::string_view)> measure;
    std::vector<std::string> fonts = {"Arial", "Courier New", "DejaVu Sans", "Liberation Sans"};
    PixelPoint cursor;
    DateTime now{2008, 3, 14, 15, 9, 26, "Mar"};
    std::int64_t milliseconds = 0; ///< of the virtual clock since the start
    Size screen{1920 * TwipsPerPixel, 1080 * TwipsPerPixel};
    /// A window of this form keeps the width that it has: maximised, tiled.
    std::set<const Form*> refusesSize;

    // --- the user's hands; positions in twips of the form's client area ---

    // Each of these is a round of events: what it changed is painted at its end. A press brings the
    // form to the front first. All but Click are lenient: what a window would not take is gone.

    /// Moves the screen cursor so that it stands over the point, as a desktop would.
    void MoveMouse(Form& form, Twips x, Twips y, int shift = 0);
    void Press(Form& form, Twips x, Twips y, int button = LeftButton, int shift = 0);
    void Release(Form& form, Twips x, Twips y, int button = LeftButton, int shift = 0);
    /// Press and release in the middle of a control; of the toolkit's own buttons and boxes what they
    /// make of it. Throws std::logic_error if the control does not show, or if it is a list, a scroll
    /// bar or a page, of which the User... functions say where.
    void Click(Control& control, int button = LeftButton);
    /// The control that shows on the form and goes by this name for assistive tools, buttons before
    /// others; none if there is none.
    static Control* FindShown(const Container& on, const std::string& accessibleName);
    /// Lets so many milliseconds of virtual time go by; the timers that fall due tick in their order.
    void Advance(int time);

    // --- Platform ---

    void ShowForm(Form& form) override;
    void HideForm(Form& form) override;
    void RunModal(Form& form, Form* owner) override;
    void DestroyForm(Form& form) override;
    Size FitWindow(Form& form, Size clientArea) override;
    Size LargestClientArea(const Form& form) override;
    void ChangesPending(Form& form) override;
    void FreezeSurface(const Control* surface) override;
    void RunPendingEvents() override;
    void WaitForEvent() override;
    void StartTimer(Timer& timer, int after) override;
    void StopTimer(Timer& timer) override;
    void EndProgram() override;
    PixelPoint Cursor() override;
    void SetBusyPointer(bool isBusy) override;
    DateTime Now() override;
    float SecondsSinceMidnight() override;
    void SeedRandom(double seed) override;
    double RandomDraw() override;
    std::vector<std::string> ScreenFonts() override;
    Size TextSize(const Font& font, std::string_view text) override;
    bool PlainMessage(const std::string& text, PlainButtons buttons) override;
    std::string AskForText(const std::string& prompt) override;
    std::string ChooseFile(const FileDialogRequest& request, Form* owner) override;
    void Announce(const Form&, const std::string& news) override { announced = news; }
    void PlayWave(const std::string& path) override;
    FileResult ReadFile(const std::string& path) override;
    FileResult PlaceToWrite(const std::string& path) override;
    FileFault WriteNewFile(const std::string& path, std::string_view bytes) override;
    FileFault RenameFile(const std::string& from, const std::string& to) override;
    void RemoveFile(const std::string& path) override;
    std::string OwnSuffix() const override { return ".part"; }
    bool IsPlainFile(const std::string& path) override;
    std::string CurrentFolder() override;
    void ChangeFolder(const std::string& folder) override;
    std::string_view FolderSeparators() const override { return separators; }

    /// Whether a timer is running or an event waits: false while the program is idle.
    bool HasWork() const;

private:
    struct RunningTimer {
        std::int64_t due = 0;
        Timer* timer = nullptr;
    };

    void RaiseWindow(Form& form);
    void LetUserMeetBox();
    bool HasRoundToFinish() const;
    void FinishRound();
    void PaintChanges();
    int DrawnNow(const std::vector<Control*>& changes);
    bool RunNextMeanwhile();
    bool FireNextTimer(std::int64_t until);
    FileFault NextOperationsFault();
    std::string Resolved(const std::string& path) const;
    FileFault FaultOfChange(const std::string& resolved) const;
    FileFault FaultOfRead(const std::string& resolved) const;
    bool IsFolder(const std::string& resolved) const;

    std::mt19937_64 random_;
    std::uint64_t mixedIn_ = 0;
    std::deque<std::function<void(Form&)>> modalScript_;
    std::vector<RunningTimer> timers_;
    std::vector<Form*> changed_;
    std::vector<Form*> windows_; ///< those shown, the front-most last
    Form* comesToFront_ = nullptr;
    bool changedWhileFrozen_ = false;
    bool thawed_ = false; ///< and not painted since
};

} // namespace tessarine
