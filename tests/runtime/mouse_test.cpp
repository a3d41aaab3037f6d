#include "headless/headless_platform.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarine
{
namespace
{

constexpr MouseEvent At(Twips x, Twips y, int button = LeftButton)
{
    return {button, 0, x, y};
}

/// A table with two overlapping cards, and a box with an inner box and a card in that.
struct Mouse : testing::Test {
    Mouse()
    {
        lower.SetBounds(0, 0, 400, 400);
        upper.SetBounds(200, 200, 400, 400);
        box.SetBounds(1000, 100, 1000, 1000);
        innerBox.SetBounds(100, 100, 500, 500);
        innerCard.SetBounds(50, 50, 100, 100);
        form.Add(lower);
        form.Add(upper);
        form.Add(box);
        box.Add(innerBox);
        innerBox.Add(innerCard);
        Record(lower, "lower");
        Record(upper, "upper");
        Record(innerCard, "inner");
        form.Show();
    }

    void Record(Control& control, const std::string& name)
    {
        const auto note = [this, name](const char* what, const MouseEvent& event) {
            record += name + what + std::to_string(static_cast<int>(event.x)) + ',' +
                      std::to_string(static_cast<int>(event.y)) + ' ';
        };
        control.OnMouseDown = [note](const MouseEvent& event) { note("+", event); };
        control.OnMouseMove = [note](const MouseEvent& event) { note("~", event); };
        control.OnMouseUp = [note](const MouseEvent& event) { note("-", event); };
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    Form form{forms, "table", {3000, 2000}};
    Label lower;
    Label upper;
    PictureBox box;
    PictureBox innerBox;
    Label innerCard;
    std::string record;
};

TEST_F(Mouse, TheFrontMostControlIsUnderThePointer)
{
    EXPECT_EQ(form.FrontMostAt(300, 300), &upper);
    EXPECT_EQ(form.FrontMostAt(100, 100), &lower);
    EXPECT_EQ(form.FrontMostAt(399.9, 100), &lower);
    EXPECT_EQ(form.FrontMostAt(400, 100), nullptr);
    lower.BringToFront();
    EXPECT_EQ(form.FrontMostAt(300, 300), &lower);
    lower.SendToBack();
    EXPECT_EQ(form.FrontMostAt(300, 300), &upper);
}

TEST_F(Mouse, HiddenAndDisabledControlsLetThePointerThrough)
{
    upper.SetEnabled(false);
    EXPECT_EQ(form.FrontMostAt(300, 300), &lower);
    lower.SetVisible(false);
    EXPECT_EQ(form.FrontMostAt(300, 300), nullptr);

    EXPECT_EQ(form.FrontMostAt(1160, 260), &innerCard);
    innerCard.SetVisible(false);
    EXPECT_EQ(form.FrontMostAt(1160, 260), &innerBox);
    innerCard.SetVisible(true);
    box.SetEnabled(false); // and with it all that stands on it
    EXPECT_EQ(form.FrontMostAt(1160, 260), nullptr);
}

TEST_F(Mouse, LabelsAndImagesLieBehindEveryOtherControl)
{
    PushButton button;
    button.SetBounds(200, 200, 100, 100);
    form.Add(button);
    button.SendToBack();
    upper.BringToFront();
    EXPECT_EQ(form.FrontMostAt(250, 250), &button);
    EXPECT_EQ(form.FrontMostAt(350, 350), &upper);
}

TEST_F(Mouse, ThePressedControlKeepsTheMouse)
{
    form.FeedMouseMove(At(300, 300, 0)); // without a press nobody hears of it
    form.FeedMouseDown(At(1160, 260));
    form.FeedMouseMove(At(300, 300, 0));
    form.FeedMouseUp(At(-500, 9000));
    form.FeedMouseMove(At(300, 300, 0));
    EXPECT_EQ(record, "inner+10,10 inner~-850,50 inner--1650,8750 ");
    EXPECT_EQ(form.Captured(), nullptr);
}

TEST_F(Mouse, ASecondButtonGoesToTheControlThatHasTheMouse)
{
    form.FeedMouseDown(At(300, 300));
    form.FeedMouseDown(At(100, 100, RightButton));
    form.FeedMouseUp(At(100, 100));
    EXPECT_EQ(form.Captured(), &upper);
    form.FeedMouseUp(At(100, 100, RightButton));
    form.FeedMouseUp(At(100, 100, RightButton)); // one release too many
    EXPECT_EQ(record, "upper+100,100 upper+-100,-100 upper--100,-100 upper--100,-100 ");
    EXPECT_EQ(form.Captured(), nullptr);
}

TEST_F(Mouse, APressDuringAMoveIsGoneAndItsReleaseToo)
{
    {
        const InputHold hold(form);
        EXPECT_TRUE(InputHold::IsOn(form));
        form.FeedMouseDown(At(300, 300));
        form.FeedMouseUp(At(300, 300));
        form.FeedMouseDown(At(300, 300));
        upper.UserActivates();
    }
    form.FeedMouseUp(At(300, 300));
    EXPECT_EQ(record, "");
    form.FeedMouseDown(At(300, 300));
    {
        const InputHold hold(form); // a move that the press itself began
        form.FeedMouseDown(At(300, 300, RightButton));
    }
    form.FeedMouseUp(At(300, 300, RightButton));
    EXPECT_EQ(record, "upper+100,100 ");
    {
        const InputHold hold(form);
        form.FeedMouseUp(At(300, 300));
    }
    EXPECT_EQ(record, "upper+100,100 ");
    EXPECT_EQ(form.Captured(), nullptr);
}

TEST_F(Mouse, AModalFormTakesTheMouseFromTheOthers)
{
    Form dialog(forms, "dialog", {1000, 1000});
    lower.OnMouseDown = [&](const MouseEvent&) { dialog.ShowModal(&form); };
    platform.OnNextModal([&](Form&) {
        form.FeedMouseMove(At(300, 300, 0));
        form.FeedMouseDown(At(300, 300, MiddleButton));
        form.FeedMouseUp(At(300, 300, MiddleButton));
        dialog.Hide();
    });
    form.FeedMouseDown(At(100, 100)); // the release never comes here
    EXPECT_EQ(form.Captured(), nullptr);
    form.FeedMouseDown(At(300, 300, RightButton));
    form.FeedMouseUp(At(300, 300, RightButton));
    EXPECT_EQ(record, "upper+100,100 upper-100,100 ");
    EXPECT_EQ(form.Captured(), nullptr);
}

TEST_F(Mouse, AControlThatGoesTakesItsCaptureAlong)
{
    auto passing = std::make_unique<PictureBox>();
    Label onIt; // made later than its container and gone later
    passing->SetBounds(0, 1000, 500, 500);
    onIt.SetBounds(0, 0, 500, 500);
    form.Add(*passing);
    passing->Add(onIt);
    form.FeedMouseDown(At(10, 1010));
    ASSERT_EQ(form.Captured(), &onIt);
    passing.reset();
    EXPECT_EQ(form.Captured(), nullptr);
    form.FeedMouseUp(At(10, 1010));
    for (const Control* changed : form.TakeChanges()) {
        EXPECT_NE(changed, &onIt);
    }
}

TEST_F(Mouse, KeysActLikeAClickOnWhatTheyMean)
{
    form.FeedKey(DialogKey::Escape);
    form.CancelControl = &upper;
    form.FeedKey(DialogKey::Escape);
    EXPECT_EQ(record, "upper+200,200 upper-200,200 ");
    form.TakesKeys = false;
    form.FeedKey(DialogKey::Escape);
    upper.SetEnabled(false);
    upper.UserActivates();
    EXPECT_EQ(record, "upper+200,200 upper-200,200 ");
}

} // namespace
} // namespace tessarine
