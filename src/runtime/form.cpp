#include "runtime/form.h"

#include <algorithm>
#include <utility>

namespace tessarine
{

Form::Form(Forms& forms, std::string caption, Size clientArea)
    : forms_(forms), caption_(std::move(caption))
{
    SetBounds(0, 0, clientArea.width, clientArea.height);
}

Form::~Form()
{
    std::erase(forms_.loaded_, this);
    std::erase(forms_.modals_, this);
    if (forms_.active_ == this) {
        forms_.active_ = nullptr;
    }
    platform().DestroyForm(*this);
    TakeChanges(); // a control that lives on may come to another form
}

void Form::Load()
{
    if (loaded_) {
        return;
    }
    loaded_ = true;
    forms_.loaded_.push_back(this);
    OnLoad();
}

void Form::Show()
{
    Load();
    shown_ = true;
    forms_.active_ = this;
    OnActivate();
    platform().ShowForm(*this);
}

void Form::ShowModal(Form* owner)
{
    Load();
    Form* const before = forms_.active_;
    forms_.modals_.push_back(this);
    for (Form* other : forms_.loaded_) {
        other->FeedMouseLost();
    }
    Show();
    platform().RunModal(*this, owner);
    std::erase(forms_.modals_, this);
    const bool isThere = std::ranges::find(forms_.loaded_, before) != forms_.loaded_.end();
    forms_.active_ = isThere && before->shown_ ? before : nullptr;
}

void Form::Hide()
{
    if (!shown_) {
        return;
    }
    shown_ = false;
    FeedMouseLost();
    if (forms_.active_ == this) {
        forms_.active_ = nullptr;
    }
    platform().HideForm(*this);
}

void Form::Unload()
{
    if (!loaded_) {
        return;
    }
    Hide();
    OnUnload();
    loaded_ = false;
    std::erase(forms_.loaded_, this);
    platform().DestroyForm(*this);
    TakeChanges(); // nobody waits for them any more, and the next change is a first one
}

void Form::SetClientArea(Size wanted)
{
    if (wanted == Size{Width(), Height()}) {
        return;
    }
    FeedResize(platform().FitWindow(*this, wanted));
}

void Form::Activate()
{
    forms_.active_ = this;
    OnActivate();
}

void Form::FeedMouseDown(const MouseEvent& event)
{
    if (!TakesInput()) {
        return;
    }
    if (captured_ == nullptr) {
        captured_ = FrontMostAt(event.x, event.y);
    }
    pressedButtons_ |= event.button;
    if (captured_ != nullptr) {
        const Point corner = captured_->PlaceOnForm();
        captured_->MousePressed({event.button, event.shift, event.x - corner.x, event.y - corner.y});
    }
}

void Form::FeedMouseMove(const MouseEvent& event)
{
    if (captured_ != nullptr) {
        const Point corner = captured_->PlaceOnForm();
        captured_->MouseMoved({event.button, event.shift, event.x - corner.x, event.y - corner.y});
    }
}

void Form::FeedMouseUp(const MouseEvent& event)
{
    if ((pressedButtons_ & event.button) == 0) {
        return; // its press was never taken
    }
    pressedButtons_ &= ~event.button;
    Control* const target = captured_;
    if (pressedButtons_ == 0) {
        captured_ = nullptr;
    }
    if (target != nullptr) {
        const Point corner = target->PlaceOnForm();
        target->MouseReleased({event.button, event.shift, event.x - corner.x, event.y - corner.y});
    }
}

void Form::FeedMouseLost()
{
    pressedButtons_ = 0;
    if (Control* const lost = std::exchange(captured_, nullptr); lost != nullptr) {
        lost->MouseTaken();
    }
}

void Form::FeedResize(Size clientArea)
{
    if (clientArea == Size{Width(), Height()}) {
        return;
    }
    SetBounds(0, 0, clientArea.width, clientArea.height);
    OnResize();
}

void Form::FeedActivation()
{
    if (shown_ && !IsBehindModal() && forms_.active_ != this) {
        Activate();
    }
}

void Form::FeedClose()
{
    if (HasCloseBox && !IsBehindModal()) {
        OnClose();
    }
}

void Form::FeedKey(DialogKey key)
{
    if (key == DialogKey::Escape && TakesKeys && TakesInput() && CancelControl != nullptr) {
        CancelControl->UserActivates();
    }
}

std::vector<Control*> Form::TakeChanges()
{
    for (Control* control : changes_) {
        control->changed_ = false;
    }
    return std::exchange(changes_, {});
}

void Form::NoteChange(Control& control)
{
    control.changed_ = true;
    changes_.push_back(&control);
    if (changes_.size() == 1) {
        platform().ChangesPending(*this);
    }
}

void Form::Forget(Control& control)
{
    if (std::exchange(control.changed_, false)) {
        std::erase(changes_, &control);
    }
    if (captured_ == &control) {
        captured_ = nullptr;
    }
    if (const auto* box = dynamic_cast<const Container*>(&control)) {
        for (Control* child : box->Children()) {
            Forget(*child);
        }
    }
}

} // namespace tessarine
