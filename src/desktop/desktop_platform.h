// The platform of a real desktop.
#pragma once

#include "desktop/announcer.h"
#include "desktop/event_waits.h"
#include "desktop/form_window.h"
#include "desktop/sounds.h"
#include "runtime/platform.h"
#include "runtime/timer.h"

#include <QObject>

#include <map>
#include <memory>
#include <random>
#include <unordered_map>

namespace tessarine
{

/// Needs a QApplication that lives longer. Forms must be gone before it.
class DesktopPlatform final : public QObject, public Platform
{
public:
    explicit DesktopPlatform(WavePlayerMaker openPlayer = &OpenWavePlayer);
    ~DesktopPlatform() override;

    /// The window of a form; none before its first Show.
    FormWindow* WindowOf(const Form& form) const;

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
    void StartTimer(Timer& timer, int milliseconds) override;
    void StopTimer(Timer& timer) override;
    /// Ends the process and does not return.
    void EndProgram() override;

    PixelPoint Cursor() override;
    void SetBusyPointer(bool busy) override;

    DateTime Now() override;
    float SecondsSinceMidnight() override;
    void SeedRandom(double seed) override;
    double RandomDraw() override;

    std::vector<std::string> ScreenFonts() override;
    Size TextSize(const Font& font, std::string_view text) override;

    bool PlainMessage(const std::string& text, PlainButtons buttons) override;
    std::string AskForText(const std::string& prompt) override;
    std::string ChooseFile(const FileDialogRequest& request, Form* owner) override;

    void Announce(const Form& form, const std::string& news) override;
    void PlayWave(const std::string& path) override;

    FileResult ReadFile(const std::string& path) override;
    FileResult PlaceToWrite(const std::string& path) override;
    FileFault WriteNewFile(const std::string& path, std::string_view bytes) override;
    FileFault RenameFile(const std::string& from, const std::string& to) override;
    void RemoveFile(const std::string& path) override;
    std::string OwnSuffix() const override;
    bool IsPlainFile(const std::string& path) override;
    std::string CurrentFolder() override;
    void ChangeFolder(const std::string& folder) override;
    std::string_view FolderSeparators() const override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// Ends a window wherever its own code may still be running.
    struct EndWindow {
        void operator()(FormWindow* window) const;
    };
    using Window = std::unique_ptr<FormWindow, EndWindow>;

    FormWindow& MakeWindow(Form& form);
    template <class Ask> auto InBox(const Ask& ask);

    Desk desk_;
    Announcer announcer_;
    Sounds sounds_;
    std::unordered_map<const Form*, Window> windows_;
    std::map<int, Timer*> timers_; ///< by the toolkit's number
    EventWaits waits_;
    std::mt19937_64 random_;
    const Control* frozen_ = nullptr;
    bool busy_ = false;
};

} // namespace tessarine
