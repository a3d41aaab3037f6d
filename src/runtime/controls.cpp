#include "runtime/controls.h"

#include "runtime/form.h"

#include <algorithm>
#include <utility>

namespace tessarine
{

const Canvas& UserControl::Drawing() const
{
    if (std::exchange(stale_, false)) {
        canvas_.Clear(BackColor());
        Draw(canvas_);
    }
    return canvas_;
}

void UserControl::Redraw()
{
    stale_ = true;
    Touch();
}

void PushButton::SetValue(bool value)
{
    if (value) {
        MouseReleased({LeftButton, 0, Width() / 2, Height() / 2});
    }
}

void PushButton::UserReleases(int button)
{
    if (TakesInput()) {
        OwnerForm()->FeedMouseLost(); // a press on the form, if there is one, is another's
        MouseReleased({button, 0, Width() / 2, Height() / 2});
    }
}

const TextList& ListBox::Items() const
{
    if (source_) {
        items_.AddAll(std::exchange(source_, nullptr)());
    }
    return items_;
}

void ListBox::ItemsChanged()
{
    ++edition_;
    selected_.reset();
    topIndex_ = 0;
    Touch();
}

void ListBox::Clear()
{
    source_ = nullptr;
    items_.Clear();
    ItemsChanged();
}

void ListBox::Add(std::string text)
{
    Items();
    const std::size_t place = items_.Add(std::move(text));
    if (selected_ && place <= *selected_) {
        ++*selected_; // the selection stays with its entry
    }
    ++edition_;
    Touch();
}

void ListBox::FillWhenAsked(std::function<std::vector<std::string>()> source)
{
    items_.Clear();
    source_ = std::move(source);
    ItemsChanged();
}

std::string ListBox::SelectedText() const
{
    return selected_ ? Items().At(*selected_) : std::string();
}

void ListBox::Select(std::optional<std::size_t> position)
{
    if (position && *position >= Items().Count()) {
        position.reset();
    }
    Assign(selected_, position);
}

void ListBox::UserPicks(std::size_t position, int button)
{
    if (!TakesInput() || position >= Items().Count()) {
        return;
    }
    Select(position);
    MouseReleased({button, 0, 0, 0});
}

void ListBox::UserReleasesOnNothing(int button)
{
    if (TakesInput()) {
        MouseReleased({button, 0, 0, 0});
    }
}

void ScrollBar::SetRange(Whole min, Whole max, Whole smallChange, Whole largeChange)
{
    Assign(min_, min);
    Assign(max_, max);
    Assign(smallChange_, smallChange);
    Assign(largeChange_, largeChange);
}

void ScrollBar::SetValue(Whole value)
{
    const Whole held = std::clamp(value, std::min(min_, max_), std::max(min_, max_));
    if (Assign(value_, held) && OnChange) {
        OnChange();
    }
}

void ScrollBar::UserSets(Whole value)
{
    if (TakesInput()) {
        SetValue(value);
    }
}

void OptionButton::SetValue(bool value)
{
    if (!Assign(value_, value) || !value || Parent() == nullptr) {
        return;
    }
    for (Control* neighbour : Parent()->Children()) {
        if (auto* option = dynamic_cast<OptionButton*>(neighbour); option != nullptr && option != this) {
            option->SetValue(false);
        }
    }
}

void OptionButton::UserPicks(int button)
{
    if (TakesInput()) {
        SetValue(true);
        MouseReleased({button, 0, 0, 0});
    }
}

void CheckBox::UserToggles(int button)
{
    if (TakesInput()) {
        SetValue(!value_);
        MouseReleased({button, 0, 0, 0});
    }
}

void TextBox::UserPresses(int button)
{
    if (TakesInput()) {
        MousePressed({button, 0, 0, 0});
    }
}

Address Browser::Location() const
{
    return history_.empty() ? Address() : history_[place_];
}

std::string Browser::LocationURL() const
{
    const Address address = Location();
    std::string text;
    for (const char c : address.path) {
        text += c == '#' ? "%23" : c == '%' ? "%25" : std::string(1, c);
    }
    return address.anchor.empty() ? text : text + '#' + address.anchor;
}

void Browser::Visit()
{
    ++visits_;
    Touch();
}

void Browser::GoTo(const Address& address)
{
    if (Location() != address) {
        if (!history_.empty()) {
            history_.resize(place_ + 1);
        }
        history_.push_back(address);
        place_ = history_.size() - 1;
    }
    Visit();
}

void Browser::Navigate(const std::string& path)
{
    ++loads_;
    GoTo({path, {}});
}

void Browser::GoBack()
{
    if (place_ > 0) {
        --place_;
        Visit();
    }
}

void Browser::GoForward()
{
    if (place_ + 1 < history_.size()) {
        ++place_;
        Visit();
    }
}

void Browser::UserFollows(const Address& address)
{
    if (TakesInput()) {
        GoTo(address);
    }
}

} // namespace tessarine
