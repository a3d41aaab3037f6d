// A user who does anything: gestures drawn by chance, on whatever forms a program shows.
#pragma once

#include "headless/headless_platform.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tessarine
{

/// One thing that a user, a desktop or an assistive tool does. Any numbers are a gesture, and none needs
/// those before it: a list of them may be cut anywhere.
struct Gesture {
    std::uint8_t kind = 0;
    std::uint8_t window = 0;  ///< which one
    std::uint8_t control = 0; ///< and which one on it
    std::uint8_t detail = 0;  ///< button, key, answer, entry
    std::uint16_t across = 0; ///< where on the control, in 65536ths
    std::uint16_t down = 0;

    /// Whether it is to land in the middle of what the program does next.
    bool LandsInside() const { return kind >= 224; }
};

/// What a gesture comes to.
enum class GestureKind {
    Drag,
    RightClick,
    Click,
    Press,
    Move,
    Release,
    Tool,
    Resize,
    Refuse,
    Wait,
    Close,
    Front,
    Key,
    Ask,
    Answer,
    Lost
};
GestureKind KindOf(const Gesture& gesture);

/// What a user can do on one platform. Points are on the form's client area; forms are shown ones.
class Hands
{
public:
    virtual ~Hands() = default;
    virtual void Press(Form& form, Point at, int button, int shift) = 0;
    virtual void Move(Form& form, Point at) = 0;
    virtual void Release(Form& form, Point at, int button) = 0;
    /// A whole click on one of the toolkit's own widgets. `detail` says what of a list, a scroll bar or
    /// a page is meant.
    virtual void Work(Control& control, int button, int detail) = 0;
    /// An assistive tool presses the control.
    virtual void Activate(Control& control) = 0;
    /// A reader goes through all that there is.
    virtual void AskForNames(const Forms& forms) = 0;
    virtual void Resize(Form& form, Size size) = 0;
    /// The window begins to refuse the sizes that the program asks for, or ends it.
    virtual void Refuse(Form& form) = 0;
    virtual void Close(Form& form) = 0;
    virtual void ComeToFront(Form& form) = 0;
    virtual void Key(Form& form, int detail) = 0;
    virtual void Wait(int milliseconds) = 0;
    /// Until no layout waits for its time; what was to come inside something is forgotten.
    virtual void Settle() = 0;
    /// Decides what the next boxes of the system are answered.
    virtual void Answer(int detail);

    /// Runs an action inside what the program does when it has let events run so many times more.
    virtual void Meanwhile(int calls, std::function<void()> action) = 0;
    /// Whether such an action runs in the middle of something now.
    virtual bool IsInside() const = 0;
    /// Meets each modal form that comes up, again and again until it is hidden.
    std::function<void(Form&)> Meet;
    /// Runs before each event of a platform that has some of its own.
    std::function<void()> Between;

    /// What is amiss on the platform between two gestures; empty if nothing is.
    virtual std::string Fault() = 0;
    virtual bool IsAtRest() const = 0;
    virtual bool HasEnded() const = 0;
    bool HasRefused() const { return hasRefused_; }

protected:
    bool hasRefused_ = false;
    std::deque<bool> plainAnswers_;
    std::deque<std::string> typedAnswers_;
    std::deque<std::string> chosenFiles_; ///< names in the folder of the dialog; empty for none
};

/// On the headless platform.
class HeadlessHands : public Hands
{
public:
    /// The folder is where files are chosen.
    HeadlessHands(HeadlessPlatform& platform, std::string folder)
        : platform_(platform), folder_(std::move(folder))
    {
        MeetNext();
    }

    void Press(Form& form, Point at, int button, int shift) override;
    void Move(Form& form, Point at) override { platform_.MoveMouse(form, at.x, at.y); }
    void Release(Form& form, Point at, int button) override;
    void Work(Control& control, int button, int detail) override;
    void Activate(Control& control) override { control.UserActivates(); }
    void AskForNames(const Forms& forms) override;
    void Resize(Form& form, Size size) override { form.FeedResize(size); }
    void Refuse(Form& form) override;
    void Close(Form& form) override { form.FeedClose(); }
    void ComeToFront(Form& form) override { form.FeedActivation(); }
    void Key(Form& form, int detail) override;
    void Wait(int milliseconds) override { platform_.Advance(milliseconds); }
    void Settle() override;
    void Answer(int detail) override;
    void Meanwhile(int calls, std::function<void()> action) override;
    bool IsInside() const override { return true; }
    std::string Fault() override;
    bool IsAtRest() const override { return !platform_.HasWork(); }
    bool HasEnded() const override { return platform_.ended; }

private:
    void MeetNext();

    HeadlessPlatform& platform_;
    std::string folder_;
};

class RandomUser
{
public:
    RandomUser(Form& main, Hands& hands) : main_(main), hands_(hands) {}

    /// What on the main form is of most interest, by any number: half of the gestures go there. Without
    /// it all controls are alike.
    std::function<Control&(unsigned)> Favourite;
    void Do(const Gesture& gesture);

private:
    Form& Target(const Gesture& gesture) const;
    Control& Aim(Form& form, unsigned which) const;
    void LetGo(Form& form, Point at);
    void Press(Form& form, Point at, int button, int shift);
    void Release(Form& form, Point at, int button, int detail);
    void Drag(Form& form, const Control& control, Point at, const Gesture& gesture);

    Form& main_;
    Hands& hands_;
    int down_ = 0;           ///< buttons of the mouse
    Form* holder_ = nullptr; ///< what they were pressed on
    const Form* modal_ = nullptr;
};

template <class Visit> void ForEachShown(const Container& on, const Visit& visit)
{
    for (Control* control : on.Children()) {
        if (!control->Visible()) {
            continue;
        }
        visit(*control);
        if (const auto* box = dynamic_cast<const Container*>(control)) {
            ForEachShown(*box, visit);
        }
    }
}

/// So many gestures, the same for the same seed.
std::vector<Gesture> RandomGestures(unsigned seed, std::size_t count);

} // namespace tessarine
