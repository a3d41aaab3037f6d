// Windows: a form holds controls, takes raw input from the platform and hands it to the right one.
#pragma once

#include "runtime/control.h"
#include "runtime/picture.h"
#include "runtime/platform.h"

#include <string>
#include <vector>

namespace tessarine
{

class Form;

/// The frame that a form counts as its own around its client area, on every desktop.
inline constexpr Twips FrameWidth = 120;
inline constexpr Twips FrameHeight = 405;

/// The forms of one running program.
class Forms
{
public:
    explicit Forms(Platform& platform) : platform_(platform) {}

    Platform& platform() const { return platform_; }
    /// The forms that are loaded now, in the order of their loading.
    const std::vector<Form*>& Loaded() const { return loaded_; }
    /// The modal form that is open, the inmost of several; none if none is.
    Form* Modal() const { return modals_.empty() ? nullptr : modals_.back(); }
    /// The form that was activated last and is still shown.
    Form* Active() const { return active_; }

private:
    friend class Form;
    Platform& platform_;
    std::vector<Form*> loaded_;
    std::vector<Form*> modals_;
    Form* active_ = nullptr;
};

/// Keys that mean something in a dialog, beside those that the toolkit's own controls take.
enum class DialogKey { Enter, Escape };

/// A window. Its bounds as a control are its client area; Left and Top are 0. A form is loaded at
/// its first Show and then lives, shown or hidden, until it is unloaded.
class Form : public Container
{
public:
    Form(Forms& forms, std::string caption, Size clientArea);
    ~Form() override;

    ControlKind Kind() const override { return ControlKind::Form; }

    // --- what the program does with a form ---

    /// Makes the form exist, hidden, and runs OnLoad; nothing if it is loaded.
    void Load();
    /// Shows the form beside the others and activates it.
    void Show();
    /// Shows the form before `owner` (none: before nothing) and keeps all others from input. Returns
    /// when it has been hidden or unloaded. The owner is not activated anew.
    void ShowModal(Form* owner);
    void Hide();
    /// Runs OnUnload and lets the window go. The next Load starts afresh.
    void Unload();

    bool IsLoaded() const { return loaded_; }
    bool IsShown() const { return shown_; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption) { Assign(caption_, caption); }
    const Picture* Icon() const { return icon_; }
    void SetIcon(const Picture& icon) { icon_ = &icon; }

    Twips OuterWidth() const { return Width() + FrameWidth; }
    Twips OuterHeight() const { return Height() + FrameHeight; }
    /// Asks for another size of the client area. The platform may refuse or round: what the window
    /// then really has is what the form says of itself.
    void SetClientArea(Size wanted);
    void SetOuterWidth(Twips wanted) { SetClientArea({wanted - FrameWidth, Height()}); }

    /// What the buttons wear on boxes of the system that belong to the form. The rest of such a box is
    /// in the form's own colour.
    Colour ButtonColour = ButtonFace;

    /// How the window is made; set before the first Show.
    bool Sizable = false;
    bool HasCloseBox = true;
    /// Whether it comes up beside the window that it belongs to, so that both can be seen, where the
    /// screen has room; else, and otherwise, before the middle of that window.
    bool StandsBeside = false;
    /// Whether the keyboard works the form's controls.
    bool TakesKeys = true;
    /// The control that Escape presses; none where leaving without an answer would harm.
    Control* CancelControl = nullptr;
    /// The control that has the keyboard when the form comes up; without one the first that takes it.
    Control* FirstControl = nullptr;

    Forms& AllForms() const { return forms_; }
    Platform& platform() const { return forms_.platform(); }

    /// Whether presses reach the form: no box and no modal form is open before it, and it is not busy.
    bool TakesInput() const { return !IsBehindModal() && !IsBusy(); }

    // --- what the platform feeds in; lengths in twips of the client area ---

    /// A press finds the front-most control, which then keeps the mouse until every button is up.
    void FeedMouseDown(const MouseEvent& event);
    void FeedMouseMove(const MouseEvent& event);
    void FeedMouseUp(const MouseEvent& event);
    /// The mouse went elsewhere with its buttons down: their release reaches another window, or none.
    void FeedMouseLost();
    /// The window has another size, for whatever reason.
    void FeedResize(Size clientArea);
    /// The window is back from being minimised, when it refused every size that the form asked for.
    void FeedRestored() { OnResize(); }
    /// The window came to the front of the desktop.
    void FeedActivation();
    /// The window's own close box, or the desktop, asks the form to go.
    void FeedClose();
    void FeedKey(DialogKey key);

    /// The controls that look different since the last call, each once, and the form itself among
    /// them if its own look changed. What has no place on the screen may be among them.
    std::vector<Control*> TakeChanges();
    /// The control that has the mouse; none while no button is down.
    Control* Captured() const { return captured_; }

protected:
    /// Events of the form, for the class that describes it.
    virtual void OnLoad() {}
    virtual void OnActivate() {}
    virtual void OnResize() {}
    /// What a close box means. A form that says nothing is hidden.
    virtual void OnClose() { Hide(); }
    virtual void OnUnload() {}
    /// Whether something half done keeps presses away; a press that comes then is gone with its release.
    virtual bool IsBusy() const { return false; }

private:
    friend class Control;
    friend class Container;

    bool IsBehindModal() const
    {
        return platform().HasBoxOpen() || (forms_.Modal() != nullptr && forms_.Modal() != this);
    }
    void Activate();
    void NoteChange(Control& control);
    void Forget(Control& control);

    Forms& forms_;
    std::string caption_;
    const Picture* icon_ = nullptr;
    bool loaded_ = false;
    bool shown_ = false;
    int pressedButtons_ = 0;
    Control* captured_ = nullptr;
    std::vector<Control*> changes_;
};

} // namespace tessarine
