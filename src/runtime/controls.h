// The controls that a form can hold. Labels, images and user controls are painted from the objects;
// the others are the toolkit's own on a desktop. Functions named User... are what a platform calls
// when the user works a control; they do nothing while the control takes no input.
#pragma once

#include "runtime/canvas.h"
#include "runtime/control.h"
#include "runtime/text_list.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessarine
{

enum class Alignment { Left, Centre };

/// A filled rectangle with text at its upper edge. Lines are parted by CR LF or LF.
class Label : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::Label; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { Assign(caption_, caption); }
    Alignment Align() const { return alignment_; }
    void SetAlign(Alignment alignment) { Assign(alignment_, alignment); }
    /// A thin single line all round.
    bool HasBorder() const { return border_; }
    void SetBorder(bool border) { Assign(border_, border); }
    /// The border is a sunken edge, dark at the top and left, light at the bottom and right.
    bool IsSunken() const { return sunken_; }
    void SetSunken(bool sunken) { Assign(sunken_, sunken); }
    /// Without it, what lies behind shows through.
    bool IsOpaque() const { return opaque_; }
    void SetOpaque(bool opaque) { Assign(opaque_, opaque); }

protected:
    std::string ShownText() const override { return caption_; }

private:
    std::string caption_;
    Alignment alignment_ = Alignment::Left;
    bool border_ = false;
    bool sunken_ = false;
    bool opaque_ = true;
};

/// A picture in the largest square within the control's bounds.
class Image : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::Image; }

    const Picture* Shown() const { return picture_; }
    /// The picture must outlive the control.
    void Show(const Picture& picture) { Assign<const Picture*>(picture_, &picture); }

private:
    const Picture* picture_ = nullptr;
};

/// A plain surface for other controls.
class PictureBox : public Container
{
public:
    ControlKind Kind() const override { return ControlKind::PictureBox; }
};

/// A control that draws itself on a canvas. It is asked to draw when the drawing is wanted, once for
/// any number of changes before.
class UserControl : public Container
{
public:
    ControlKind Kind() const override { return ControlKind::UserControl; }

    const Canvas& Drawing() const;
    bool HasBorder() const { return border_; }
    void SetBorder(bool border) { Assign(border_, border); }

protected:
    /// Draws everything anew on an emptied canvas.
    virtual void Draw(Canvas& canvas) const = 0;
    /// What is drawn is out of date.
    void Redraw();
    void Resized() override { Redraw(); }
    void Restyled() override { Redraw(); }

private:
    mutable Canvas canvas_;
    mutable bool stale_ = true;
    bool border_ = false;
};

/// A titled group of other controls.
class Frame : public Container
{
public:
    ControlKind Kind() const override { return ControlKind::Frame; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { Assign(caption_, caption); }

protected:
    std::string ShownText() const override { return caption_; }

private:
    std::string caption_;
};

/// The platform's push button.
class PushButton : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::PushButton; }
    bool TakesFocus() const override { return true; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { Assign(caption_, caption); }

    /// Setting it to true presses the button from code, be it out of the user's reach.
    void SetValue(bool value);
    /// A release of any mouse button on it, or its key.
    void UserReleases(int button = LeftButton);
    void UserActivates() override { UserReleases(); }

protected:
    std::string ShownText() const override { return caption_; }

private:
    std::string caption_;
};

class ListBox : public Control
{
public:
    explicit ListBox(TextList::Order order = TextList::Order::AsAdded) : items_(order) {}
    ControlKind Kind() const override { return ControlKind::ListBox; }
    bool TakesFocus() const override { return true; }

    const TextList& Items() const;
    void Clear();
    void Add(std::string text);
    /// Fills the list when somebody first asks for an entry; until then the entries are not made.
    void FillWhenAsked(std::function<std::vector<std::string>()> source);

    /// The selected entry; none if nothing is selected.
    std::optional<std::size_t> Selected() const { return selected_; }
    std::string SelectedText() const; ///< empty if nothing is selected
    /// A position outside the list selects nothing.
    void Select(std::optional<std::size_t> position);
    /// The entry at the top of what is shown.
    std::size_t TopIndex() const { return topIndex_; }
    void SetTopIndex(std::size_t position) { Assign(topIndex_, position); }
    /// Counts the changes of the entries, so that a platform knows when to fill its widget anew.
    int Edition() const { return edition_; }

    /// The user picked an entry: released any mouse button over it, or went there by keyboard.
    void UserPicks(std::size_t position, int button = LeftButton);
    /// The user released a mouse button over no entry.
    void UserReleasesOnNothing(int button = LeftButton);

private:
    void ItemsChanged();

    mutable TextList items_;
    mutable std::function<std::vector<std::string>()> source_;
    std::optional<std::size_t> selected_;
    std::size_t topIndex_ = 0;
    int edition_ = 0;
};

/// A scroll bar. Min may lie above Max: Min is the value at the top or the left.
class ScrollBar : public Control
{
public:
    enum class Direction { Across, Down };

    explicit ScrollBar(Direction direction) : direction_(direction) {}
    ControlKind Kind() const override { return ControlKind::ScrollBar; }
    bool TakesFocus() const override { return true; }

    Direction Runs() const { return direction_; }
    Whole Min() const { return min_; }
    Whole Max() const { return max_; }
    Whole SmallChange() const { return smallChange_; }
    Whole LargeChange() const { return largeChange_; }
    void SetRange(Whole min, Whole max, Whole smallChange, Whole largeChange);

    Whole Value() const { return value_; }
    /// Held within the range. Another value runs OnChange before this returns.
    void SetValue(Whole value);
    void UserSets(Whole value);

    std::function<void()> OnChange;

private:
    Direction direction_;
    Whole min_ = 0;
    Whole max_ = 100;
    Whole smallChange_ = 1;
    Whole largeChange_ = 10;
    Whole value_ = 0;
};

/// One of a group: the options of one container.
class OptionButton : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::OptionButton; }
    bool TakesFocus() const override { return true; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { Assign(caption_, caption); }
    bool Value() const { return value_; }
    /// Selecting it clears the others of its container.
    void SetValue(bool value);
    /// A release of any mouse button on it, or its key.
    void UserPicks(int button = LeftButton);
    void UserActivates() override { UserPicks(); }

protected:
    std::string ShownText() const override { return caption_; }

private:
    std::string caption_;
    bool value_ = false;
};

class CheckBox : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::CheckBox; }
    bool TakesFocus() const override { return true; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { Assign(caption_, caption); }
    bool Value() const { return value_; }
    void SetValue(bool value) { Assign(value_, value); }
    /// A release of any mouse button on it, or its key.
    void UserToggles(int button = LeftButton);
    void UserActivates() override { UserToggles(); }

protected:
    std::string ShownText() const override { return caption_; }

private:
    std::string caption_;
    bool value_ = false;
};

/// Text of several lines that the user can read but not change.
class TextBox : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::TextBox; }

    const std::string& Text() const { return text_; }
    void SetText(const std::string& text) { Assign(text_, text); }
    void UserPresses(int button = LeftButton);

protected:
    std::string ShownText() const override { return text_; }

private:
    std::string text_;
};

/// A place in a page of hypertext.
struct Address {
    std::string path;   ///< of the page's file
    std::string anchor; ///< the name of a place on it; empty for its top
    bool operator==(const Address&) const = default;
};

/// Shows a page of hypertext and keeps the history of the addresses that were on show.
class Browser : public Control
{
public:
    ControlKind Kind() const override { return ControlKind::Browser; }
    bool TakesFocus() const override { return true; }

    /// Loads the page anew, from its top. The address on show is no new step of the history.
    void Navigate(const std::string& path);
    /// One step in the history; none at its end.
    void GoBack();
    void GoForward();
    /// The address on show; empty before the first.
    Address Location() const;
    /// The address on show as one text: a "#" stands before the anchor, and nowhere else. In the path
    /// it is written "%23", and "%" is written "%25".
    std::string LocationURL() const;
    /// Counts how often an address was gone to, be it the one on show: each time it is to be shown anew.
    int Visits() const { return visits_; }
    /// Counts the loads, so that a platform knows when to load anew.
    int Loads() const { return loads_; }
    /// The user followed a link to this address.
    void UserFollows(const Address& address);

private:
    void GoTo(const Address& address);
    void Visit();

    std::vector<Address> history_;
    std::size_t place_ = 0;
    int visits_ = 0;
    int loads_ = 0;
};

} // namespace tessarine
