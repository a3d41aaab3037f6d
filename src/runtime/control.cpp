#include "runtime/control.h"

#include "runtime/form.h"

#include <algorithm>

namespace tessarine
{

Control::~Control()
{
    if (parent_ == nullptr) {
        return;
    }
    if (Form* form = parent_->OwnerForm(); form != nullptr) {
        form->Forget(*this);
    }
    std::erase(parent_->children_, this);
}

void Control::SetWidth(Twips width)
{
    if (Assign(width_, width)) {
        Resized();
    }
}

void Control::SetHeight(Twips height)
{
    if (Assign(height_, height)) {
        Resized();
    }
}

void Control::Move(Twips left, Twips top)
{
    SetLeft(left);
    SetTop(top);
}

void Control::SetBounds(Twips left, Twips top, Twips width, Twips height)
{
    Move(left, top);
    const bool wider = Assign(width_, width);
    const bool higher = Assign(height_, height);
    if (wider || higher) {
        Resized();
    }
}

Point Control::PlaceOnForm() const
{
    Point place{left_, top_};
    for (const Container* around = parent_; around != nullptr; around = around->Parent()) {
        place.x += around->Left();
        place.y += around->Top();
    }
    return place;
}

template <class Value> void Control::AssignStyle(Value& field, const Value& value)
{
    if (Assign(field, value)) {
        Restyled();
    }
}

void Control::SetBackColor(Colour colour)
{
    AssignStyle(backColor_, colour);
}
void Control::SetForeColor(Colour colour)
{
    AssignStyle(foreColor_, colour);
}
void Control::SetFont(const tessarine::Font& font)
{
    AssignStyle(font_, font);
}
void Control::SetFontName(const std::string& name)
{
    AssignStyle(font_.name, name);
}
void Control::SetFontSize(double points)
{
    AssignStyle(font_.size, points);
}
void Control::SetFontBold(bool bold)
{
    AssignStyle(font_.bold, bold);
}
void Control::SetFontItalic(bool italic)
{
    AssignStyle(font_.italic, italic);
}
void Control::SetFontUnderline(bool underline)
{
    AssignStyle(font_.underline, underline);
}

std::string Control::AccessibleName() const
{
    if (Describe) {
        return Describe();
    }
    const std::string shown = ShownText();
    return shown.empty() ? toolTip_ : shown;
}

void Control::BringToFront()
{
    if (parent_ == nullptr || parent_->children_.back() == this) {
        return;
    }
    auto& row = parent_->children_;
    const auto here = std::ranges::find(row, this);
    std::rotate(here, here + 1, row.end());
    Touch();
}

void Control::SendToBack()
{
    if (parent_ == nullptr || parent_->children_.front() == this) {
        return;
    }
    auto& row = parent_->children_;
    const auto here = std::ranges::find(row, this);
    std::rotate(row.begin(), here, here + 1);
    Touch();
}

Form* Control::OwnerForm() const
{
    const Control* top = this;
    while (top->parent_ != nullptr) {
        top = top->parent_;
    }
    if (top->Kind() != ControlKind::Form) {
        return nullptr;
    }
    return const_cast<Form*>(static_cast<const Form*>(top));
}

bool Control::TakesInput() const
{
    for (const Control* control = this; control != nullptr; control = control->parent_) {
        if (!control->enabled_) {
            return false;
        }
    }
    const Form* form = OwnerForm();
    return form != nullptr && form->TakesInput();
}

void Control::MousePressed(const MouseEvent& event)
{
    if (MouseDown) {
        MouseDown(event);
    }
}

void Control::MouseMoved(const MouseEvent& event)
{
    if (MouseMove) {
        MouseMove(event);
    }
}

void Control::MouseReleased(const MouseEvent& event)
{
    if (MouseUp) {
        MouseUp(event);
    }
}

void Control::MouseTaken()
{
    if (MouseLost) {
        MouseLost();
    }
}

void Control::UserActivates()
{
    if (!TakesInput()) {
        return;
    }
    OwnerForm()->FeedMouseLost();
    const MouseEvent click{LeftButton, 0, width_ / 2, height_ / 2};
    MousePressed(click);
    MouseReleased(click);
}

void Control::Touch()
{
    if (changed_) {
        return;
    }
    if (Form* form = OwnerForm(); form != nullptr) {
        form->NoteChange(*this);
    }
}

Container::~Container()
{
    // A form has forgotten everything when it comes here, and stands on nothing itself.
    Form* const form = Parent() == nullptr ? nullptr : Parent()->OwnerForm();
    for (Control* child : children_) {
        if (form != nullptr) {
            form->Forget(*child);
        }
        child->parent_ = nullptr;
    }
}

void Container::Add(Control& control)
{
    control.parent_ = this;
    children_.push_back(&control);
    control.Touch();
}

Control* Container::FrontMostAt(Twips x, Twips y) const
{
    for (const bool light : {false, true}) {
        for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
            Control& control = **child;
            const Twips inX = x - control.Left();
            const Twips inY = y - control.Top();
            const bool inside = inX >= 0 && inY >= 0 && inX < control.Width() && inY < control.Height();
            if (!inside || control.IsLight() != light || !control.Visible() || !control.Enabled()) {
                continue;
            }
            if (const auto* box = dynamic_cast<const Container*>(&control)) {
                if (Control* deeper = box->FrontMostAt(inX, inY); deeper != nullptr) {
                    return deeper;
                }
            }
            return &control;
        }
    }
    return nullptr;
}

} // namespace tessarine
