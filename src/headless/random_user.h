// A user who does anything: gestures drawn by chance, on whatever forms a program shows.
#pragma once

#include "headless/headless_platform.h"

#include <cstdint>
#include <functional>
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

/// What a user can do on one platform. Points are on the form's client area; forms are shown ones.
class Hands
{
public:
    virtual ~Hands() = default;
    virtual void Press(Form& form, Point at, int button, int shift) = 0;
    virtual void Move(Form& form, Point at) = 0;
    /// `detail` says what of a list, a scroll bar or a page is meant.
    virtual void Release(Form& form, Point at, int button, int detail) = 0;
    virtual void Resize(Form& form, Size size) = 0;
    /// The window begins to refuse the sizes that the program asks for, or ends it.
    virtual void Refuse(Form& form) = 0;
    virtual void Close(Form& form) = 0;
    virtual void ComeToFront(Form& form) = 0;
    virtual void Key(Form& form, DialogKey key) = 0;
    virtual void Wait(int milliseconds) = 0;
    /// What the next boxes of the system are answered.
    virtual void Answer(int detail) = 0;
};

/// On the headless platform a press and a release do what the desktop's toolkit makes of them.
class HeadlessHands : public Hands
{
public:
    explicit HeadlessHands(HeadlessPlatform& platform) : platform_(platform) {}

    void Press(Form& form, Point at, int button, int shift) override;
    void Move(Form& form, Point at) override { platform_.MoveMouse(form, at.x, at.y); }
    void Release(Form& form, Point at, int button, int detail) override;
    void Resize(Form& form, Size size) override { form.FeedResize(size); }
    void Refuse(Form& form) override;
    void Close(Form& form) override { form.FeedClose(); }
    void ComeToFront(Form& form) override { form.FeedActivation(); }
    void Key(Form& form, DialogKey key) override { form.FeedKey(key); }
    void Wait(int milliseconds) override { platform_.Advance(milliseconds); }
    void Answer(int detail) override;

private:
    HeadlessPlatform& platform_;
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
    void Drag(Form& form, const Control& control, Point at, const Gesture& gesture);

    Form& main_;
    Hands& hands_;
};

/// So many gestures, the same for the same seed.
std::vector<Gesture> RandomGestures(unsigned seed, std::size_t count);

} // namespace tessarine
