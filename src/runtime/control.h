// What all controls of a form have in common: place, look, mouse events, and their container.
#pragma once

#include "runtime/font.h"
#include "runtime/units.h"

#include <functional>
#include <string>
#include <vector>

namespace tessarine
{

class Container;
class Form;

/// Mouse buttons and shift keys, as numbers that add up.
inline constexpr int LeftButton = 1;
inline constexpr int RightButton = 2;
inline constexpr int MiddleButton = 4;
inline constexpr int ShiftKey = 1;
inline constexpr int ControlKey = 2;
inline constexpr int AltKey = 4;

struct MouseEvent {
    int button = 0; ///< the button that changed; 0 for a move
    int shift = 0;  ///< the shift keys that are down
    Twips x = 0;    ///< from the corner of whatever receives the event
    Twips y = 0;
};
using MouseHandler = std::function<void(const MouseEvent&)>;

enum class ControlKind {
    Form,
    Label,
    Image,
    PictureBox,
    UserControl,
    Frame,
    PushButton,
    ListBox,
    ScrollBar,
    OptionButton,
    CheckBox,
    TextBox,
    Browser
};

/// A plain object with properties. A setter that changes nothing does nothing; one that changes
/// something tells the form, and the platform repaints that control in the next round of events.
/// Lengths are in twips, relative to the container.
class Control
{
public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    virtual ControlKind Kind() const = 0;

    Twips Left() const { return left_; }
    Twips Top() const { return top_; }
    Twips Width() const { return width_; }
    Twips Height() const { return height_; }
    void SetLeft(Twips left) { Assign(left_, left); }
    void SetTop(Twips top) { Assign(top_, top); }
    void SetWidth(Twips width);
    void SetHeight(Twips height);
    void Move(Twips left, Twips top);
    void SetBounds(Twips left, Twips top, Twips width, Twips height);
    /// The upper left corner, from the corner of the form's client area.
    Point PlaceOnForm() const;

    bool Visible() const { return visible_; }
    void SetVisible(bool visible) { Assign(visible_, visible); }
    bool Enabled() const { return enabled_; }
    /// A control that is not enabled takes no input, nor does what stands on it.
    void SetEnabled(bool enabled) { Assign(enabled_, enabled); }

    Colour BackColor() const { return backColor_; }
    void SetBackColor(Colour colour);
    Colour ForeColor() const { return foreColor_; }
    void SetForeColor(Colour colour);

    const tessarine::Font& Font() const { return font_; }
    void SetFont(const tessarine::Font& font);
    void SetFontName(const std::string& name);
    void SetFontSize(double points);
    void SetFontBold(bool bold);
    void SetFontItalic(bool italic);
    void SetFontUnderline(bool underline);

    const std::string& ToolTip() const { return toolTip_; }
    void SetToolTip(const std::string& text) { Assign(toolTip_, text); }

    /// Free for the program's own use; nothing shows it.
    std::string Tag;
    /// What assistive tools call the control. Left empty, AccessibleName takes the caption or the
    /// tool tip.
    std::function<std::string()> Describe;
    std::string AccessibleName() const;

    /// Labels and images are light: they are drawn on their container and lie behind every other
    /// control in it, whatever the order.
    bool IsLight() const { return Kind() == ControlKind::Label || Kind() == ControlKind::Image; }
    void BringToFront();
    void SendToBack();

    Container* Parent() const { return parent_; }
    /// The form that the control stands on, or is; none before its container is on one.
    Form* OwnerForm() const;
    /// Whether the user can reach the control now: its form takes input, and it is enabled with all
    /// that it stands on.
    bool TakesInput() const;

    MouseHandler MouseDown;
    MouseHandler MouseMove;
    MouseHandler MouseUp;
    /// The press comes to no release: the mouse went elsewhere.
    std::function<void()> MouseLost;

    /// The runtime delivers mouse events here; the position is relative to the control.
    virtual void MousePressed(const MouseEvent& event);
    virtual void MouseMoved(const MouseEvent& event);
    virtual void MouseReleased(const MouseEvent& event);
    virtual void MouseTaken();
    /// What Space and Enter do with the control that has the keyboard, and the press action of an
    /// assistive tool: a left click, unless the control says otherwise. What the mouse holds meanwhile
    /// it loses.
    virtual void UserActivates();
    /// Whether Tab comes by here.
    virtual bool TakesFocus() const { return false; }

protected:
    /// The text that the control shows, if it shows one.
    virtual std::string ShownText() const { return {}; }
    /// After a change of width or height.
    virtual void Resized() {}
    /// After a change of colour or font.
    virtual void Restyled() {}

    /// Tells the form that this control looks different now.
    void Touch();

    template <class Value> bool Assign(Value& field, const Value& value)
    {
        if (field == value) {
            return false;
        }
        field = value;
        Touch();
        return true;
    }

private:
    friend class Container;
    friend class Form;

    template <class Value> void AssignStyle(Value& field, const Value& value);

    Container* parent_ = nullptr;
    Twips left_ = 0;
    Twips top_ = 0;
    Twips width_ = 0;
    Twips height_ = 0;
    bool visible_ = true;
    bool enabled_ = true;
    bool changed_ = false; ///< already on its form's list of changes
    Colour backColor_ = ButtonFace;
    Colour foreColor_ = WindowText;
    tessarine::Font font_;
    std::string toolTip_;
};

/// A control that other controls stand on.
class Container : public Control
{
public:
    ~Container() override;

    /// Puts a control on this container, in front of those already there. The control must be on
    /// none, and stays the property of whoever made it.
    void Add(Control& control);

    /// Back to front.
    const std::vector<Control*>& Children() const { return children_; }

    /// The front-most visible, enabled control at a point of this container, looking into the
    /// containers on it; none if only the container itself is there.
    Control* FrontMostAt(Twips x, Twips y) const;

private:
    friend class Control;
    std::vector<Control*> children_;
};

} // namespace tessarine
