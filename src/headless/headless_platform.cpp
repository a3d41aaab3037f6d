#include "headless/headless_platform.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace tessarine
{
namespace
{

constexpr double CharacterWidth = 0.6; ///< of the font size
constexpr double LineHeight = 1.2;

bool StandsOn(const Control* control, const Control* surface)
{
    while (control != nullptr && control != surface) {
        control = control->Parent();
    }
    return control != nullptr;
}

/// The first control of a form that a user would take for a button.
Control* FirstButton(const Container& on)
{
    for (Control* control : on.Children()) {
        if (!control->Visible() || !control->Enabled()) {
            continue;
        }
        const bool drawsItself = control->Kind() == ControlKind::UserControl;
        if (control->Kind() == ControlKind::PushButton || (drawsItself && control->TakesFocus())) {
            return control;
        }
        if (const auto* box = dynamic_cast<const Container*>(control)) {
            if (Control* inside = FirstButton(*box); inside != nullptr) {
                return inside;
            }
        }
    }
    return nullptr;
}

/// What a user does who only wants the form to go.
void PressDefault(Form& form)
{
    Control* const button = form.CancelControl != nullptr ? form.CancelControl : FirstButton(form);
    if (button != nullptr) {
        button->UserActivates();
    }
}

} // namespace

// --- the script ---

void HeadlessPlatform::OnNextModal(std::function<void(Form&)> user)
{
    modalScript_.push_back(std::move(user));
}

void HeadlessPlatform::AnswerModal(const std::string& caption)
{
    OnNextModal([this, caption](Form& form) {
        Control* const button = FindShown(form, caption);
        if (button == nullptr) {
            throw std::logic_error("the form \"" + form.Caption() + "\" shows no \"" + caption + '"');
        }
        Click(*button);
    });
}

void HeadlessPlatform::ResetFileOperations(int failing, bool fromThere, FileFault why)
{
    fileOperations = 0;
    failingFileOperation = failing;
    failsFromThere = fromThere;
    failure = why;
}

// --- forms ---

void HeadlessPlatform::ShowForm(Form& form)
{
    std::erase(windows_, &form);
    windows_.push_back(&form);
    comesToFront_ = nullptr;
}

void HeadlessPlatform::HideForm(Form& form)
{
    const bool wasFront = !windows_.empty() && windows_.back() == &form;
    std::erase(windows_, &form);
    if (wasFront) {
        comesToFront_ = windows_.empty() ? nullptr : windows_.back();
    }
}

void HeadlessPlatform::RunModal(Form& form, Form* /*owner*/)
{
    modalCaptions.push_back(form.Caption());
    const bool scripted = !modalScript_.empty();
    if (!scripted) {
        ++unscriptedModals;
        PressDefault(form);
    } else {
        const auto user = std::move(modalScript_.front());
        modalScript_.pop_front();
        user(form);
    }
    while (form.IsShown() && !ended && HasWork()) {
        WaitForEvent();
    }
    if (form.IsShown()) { // and nobody would ever close it
        unscriptedModals += scripted ? 1 : 0;
        form.Hide();
    }
}

void HeadlessPlatform::DestroyForm(Form& form)
{
    std::erase(windows_, &form);
    std::erase(changed_, &form);
    if (comesToFront_ == &form) {
        comesToFront_ = nullptr;
    }
}

Size HeadlessPlatform::FitWindow(Form& form, Size clientArea)
{
    if (refusesSize.contains(&form)) {
        return {form.Width(), form.Height()};
    }
    const auto wholePixels = [](Twips length) {
        return std::max(1, RoundHalfEven(length / TwipsPerPixel)) * static_cast<Twips>(TwipsPerPixel);
    };
    return {wholePixels(clientArea.width), wholePixels(clientArea.height)};
}

Size HeadlessPlatform::LargestClientArea(const Form& /*form*/)
{
    return {screen.width - FrameWidth, screen.height - FrameHeight};
}

void HeadlessPlatform::ChangesPending(Form& form)
{
    changed_.push_back(&form);
}

void HeadlessPlatform::FreezeSurface(const Control* surface)
{
    frozen = surface;
    thawed_ = thawed_ || (surface == nullptr && changedWhileFrozen_);
}

// --- events ---

bool HeadlessPlatform::HasRoundToFinish() const
{
    return comesToFront_ != nullptr || !changed_.empty() || thawed_;
}

void HeadlessPlatform::FinishRound()
{
    if (comesToFront_ != nullptr) {
        std::exchange(comesToFront_, nullptr)->FeedActivation();
    }
    if (!changed_.empty() || thawed_) {
        PaintChanges();
    }
}

void HeadlessPlatform::PaintChanges()
{
    int drawn = 0;
    for (Form* form : changed_) {
        const auto changes = form->TakeChanges();
        if (form->IsShown()) {
            drawn += DrawnNow(changes);
        }
    }
    changed_.clear();
    if (std::exchange(thawed_, false)) {
        changedWhileFrozen_ = false;
        ++drawn; // the surface that was frozen, as a whole
    }
    if (drawn > 0) {
        ++paints;
        paintedControls += drawn;
    }
}

int HeadlessPlatform::DrawnNow(const std::vector<Control*>& changes)
{
    if (frozen == nullptr) {
        return static_cast<int>(changes.size());
    }
    int drawn = 0;
    for (const Control* control : changes) {
        if (StandsOn(control, frozen)) {
            changedWhileFrozen_ = true;
        } else {
            ++drawn;
        }
    }
    return drawn;
}

bool HeadlessPlatform::RunNextMeanwhile()
{
    if (meanwhile.empty()) {
        return false;
    }
    const auto event = std::move(meanwhile.front());
    meanwhile.pop_front();
    event();
    return true;
}

bool HeadlessPlatform::FireNextTimer(std::int64_t until)
{
    const auto next = std::ranges::min_element(timers_, {}, &RunningTimer::due);
    if (next == timers_.end() || next->due > until) {
        return false;
    }
    milliseconds = std::max(milliseconds, next->due);
    Timer* const timer = next->timer;
    timers_.erase(next);
    timer->Fire();
    return true;
}

void HeadlessPlatform::RunPendingEvents()
{
    RunNextMeanwhile();
    const std::int64_t until = milliseconds; // a handler may itself wait, and start anew
    while (FireNextTimer(until)) {
    }
    FinishRound();
}

void HeadlessPlatform::WaitForEvent()
{
    if (RunNextMeanwhile()) {
        FinishRound();
        return;
    }
    const bool painted = HasRoundToFinish();
    FinishRound();
    if (!timers_.empty()) {
        FireNextTimer(std::ranges::min(timers_, {}, &RunningTimer::due).due);
    } else if (!painted) {
        throw std::logic_error("the program waits for an event, and none can come any more");
    }
}

void HeadlessPlatform::StartTimer(Timer& timer, int after)
{
    StopTimer(timer);
    timers_.push_back({milliseconds + after, &timer});
}

void HeadlessPlatform::StopTimer(Timer& timer)
{
    std::erase_if(timers_, [&timer](const RunningTimer& running) { return running.timer == &timer; });
}

void HeadlessPlatform::EndProgram()
{
    ended = true;
}

bool HeadlessPlatform::HasWork() const
{
    return !timers_.empty() || !meanwhile.empty() || HasRoundToFinish();
}

// --- pointer, clock and chance ---

PixelPoint HeadlessPlatform::Cursor()
{
    return cursor;
}

void HeadlessPlatform::SetBusyPointer(bool isBusy)
{
    busy = isBusy;
}

DateTime HeadlessPlatform::Now()
{
    return now;
}

float HeadlessPlatform::SecondsSinceMidnight()
{
    constexpr double day = 24.0 * 60 * 60;
    const double atStart = (now.hour * 60.0 + now.minute) * 60.0 + now.second;
    return static_cast<float>(std::fmod(atStart + static_cast<double>(milliseconds) / 1000, day));
}

void HeadlessPlatform::SeedRandom(double seed)
{
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U; // odd, so that no bit gets lost
    mixedIn_ = (mixedIn_ + std::bit_cast<std::uint64_t>(seed)) * spread;
    mixedIn_ ^= mixedIn_ >> 32U;
}

double HeadlessPlatform::RandomDraw()
{
    constexpr unsigned spareBits = 64 - 53; // a double holds 53
    return std::ldexp(static_cast<double>((random_() ^ mixedIn_) >> spareBits), -53);
}

// --- fonts ---

std::vector<std::string> HeadlessPlatform::ScreenFonts()
{
    return fonts;
}

Size HeadlessPlatform::TextSize(const Font& font, std::string_view text)
{
    if (measure) {
        return measure(font, text);
    }
    int longest = 0;
    int length = 0;
    int lines = 1;
    for (const char c : text) {
        const bool continuesLetter = (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
        if (c == '\n') {
            longest = std::max(longest, std::exchange(length, 0));
            ++lines;
        } else if (c != '\r' && !continuesLetter) {
            ++length;
        }
    }
    longest = std::max(longest, length);
    const Twips size = font.size * TwipsPerPoint;
    return {longest * CharacterWidth * size, lines * LineHeight * size};
}

// --- the system's own boxes, and sound ---

/// A box of the system takes the mouse from all forms and lets events run.
void HeadlessPlatform::LetUserMeetBox()
{
    const OpenBox box(*this);
    for (Form* form : windows_) {
        form->FeedMouseLost();
    }
    RunNextMeanwhile();
}

bool HeadlessPlatform::PlainMessage(const std::string& text, PlainButtons buttons)
{
    LetUserMeetBox();
    plainMessages.push_back(text);
    if (plainAnswers.empty()) {
        return buttons == PlainButtons::Ok;
    }
    const bool answer = plainAnswers.front();
    plainAnswers.pop_front();
    return answer;
}

std::string HeadlessPlatform::AskForText(const std::string& prompt)
{
    LetUserMeetBox();
    plainMessages.push_back(prompt);
    if (typedAnswers.empty()) {
        return {};
    }
    std::string answer = std::move(typedAnswers.front());
    typedAnswers.pop_front();
    return answer;
}

std::string HeadlessPlatform::ChooseFile(const FileDialogRequest& request, Form* /*owner*/)
{
    LetUserMeetBox();
    fileDialogs.push_back(request);
    if (chosenFiles.empty()) {
        return {};
    }
    std::string answer = std::move(chosenFiles.front());
    chosenFiles.pop_front();
    return answer;
}

void HeadlessPlatform::PlayWave(const std::string& path)
{
    sounds.push_back(path);
}

} // namespace tessarine
