// What a user does to a headless program with the mouse, and the time that goes by.
#include "headless/headless_platform.h"

#include "runtime/controls.h"

#include <algorithm>
#include <stdexcept>

namespace tessarine
{
namespace
{

/// Where every window of the headless screen has the corner of its client area, in pixels.
constexpr Whole WindowPlace = 100;

PixelPoint OnScreen(Twips x, Twips y)
{
    return {WindowPlace + RoundHalfEven(x / TwipsPerPixel),
            WindowPlace + RoundHalfEven(y / TwipsPerPixel)};
}

bool Shows(const Control& control)
{
    const Form* form = control.OwnerForm();
    if (form == nullptr || !form->IsShown() || !control.Visible()) {
        return false;
    }
    for (const Container* around = control.Parent(); around != nullptr; around = around->Parent()) {
        if (!around->Visible()) {
            return false;
        }
    }
    return true;
}

[[noreturn]] void CantClick(const Control& control, const std::string& why)
{
    throw std::logic_error("a click on \"" + control.AccessibleName() + "\": " + why);
}

/// All that shows under this name, as deep as it lies.
void CollectShown(const Container& on, const std::string& name, std::vector<Control*>& found)
{
    for (Control* control : on.Children()) {
        if (!control->Visible()) {
            continue;
        }
        if (control->AccessibleName() == name) {
            found.push_back(control);
        }
        if (const auto* box = dynamic_cast<const Container*>(control)) {
            CollectShown(*box, name, found);
        }
    }
}

} // namespace

Control* HeadlessPlatform::FindShown(const Container& on, const std::string& accessibleName)
{
    std::vector<Control*> found;
    CollectShown(on, accessibleName, found);
    const auto button = std::ranges::find_if(found, &Control::TakesFocus);
    if (button != found.end()) {
        return *button;
    }
    return found.empty() ? nullptr : found.front();
}

/// A press on a window brings it to the front, unless a modal form lies before it.
void HeadlessPlatform::RaiseWindow(Form& form)
{
    const auto window = std::ranges::find(windows_, &form);
    const Form* modal = form.AllForms().Modal();
    if (window != windows_.end() && (modal == nullptr || modal == &form)) {
        std::rotate(window, window + 1, windows_.end());
        form.FeedActivation();
    }
}

void HeadlessPlatform::MoveMouse(Form& form, Twips x, Twips y, int shift)
{
    cursor = OnScreen(x, y);
    form.FeedMouseMove({0, shift, x, y});
    FinishRound();
}

void HeadlessPlatform::Press(Form& form, Twips x, Twips y, int button, int shift)
{
    cursor = OnScreen(x, y);
    RaiseWindow(form);
    form.FeedMouseDown({button, shift, x, y});
    FinishRound();
}

void HeadlessPlatform::Release(Form& form, Twips x, Twips y, int button, int shift)
{
    cursor = OnScreen(x, y);
    form.FeedMouseUp({button, shift, x, y});
    FinishRound();
}

void HeadlessPlatform::Click(Control& control, int button)
{
    if (!Shows(control)) {
        CantClick(control, "it does not show");
    }
    Form& form = *control.OwnerForm();
    const Point corner = control.PlaceOnForm();
    const Twips x = corner.x + control.Width() / 2;
    const Twips y = corner.y + control.Height() / 2;
    cursor = OnScreen(x, y);
    RaiseWindow(form);
    switch (control.Kind()) {
    case ControlKind::PushButton:
        static_cast<PushButton&>(control).UserReleases(button);
        break;
    case ControlKind::OptionButton:
        static_cast<OptionButton&>(control).UserPicks(button);
        break;
    case ControlKind::CheckBox:
        static_cast<CheckBox&>(control).UserToggles(button);
        break;
    case ControlKind::TextBox:
        static_cast<TextBox&>(control).UserPresses(button);
        break;
    case ControlKind::ListBox:
    case ControlKind::ScrollBar:
    case ControlKind::Browser:
        CantClick(control, "where on it matters; call what the user does");
    default:
        Press(form, x, y, button);
        Release(form, x, y, button);
        return;
    }
    FinishRound();
}

void HeadlessPlatform::Advance(int time)
{
    const std::int64_t until = milliseconds + time;
    while (FireNextTimer(until)) {
        FinishRound();
    }
    milliseconds = std::max(milliseconds, until);
    FinishRound();
}

} // namespace tessarine
