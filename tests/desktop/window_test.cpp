#include "stage.h"

#include "desktop/size_talk.h"

namespace tessarine
{
namespace
{

class WindowTest : public DesktopTest
{
protected:
    WindowTest()
    {
        first.SetBounds(0, 0, 900, 350);
        second.SetBounds(1500, 0, 900, 350);
        form.CancelControl = &second;
        for (BoxButton* button : {&first, &second}) {
            button->MouseUp = [this, button](const MouseEvent&) {
                pressed = button;
                form.Hide();
            };
            form.Add(*button);
        }
    }
    void Type(const std::vector<Qt::Key>& keys)
    {
        for (const Qt::Key key : keys) {
            hand.Type(form, key);
        }
    }

    BoxButton first;
    BoxButton second;
    const BoxButton* pressed = nullptr;
};

TEST_F(WindowTest, TheKeyboardWorksADialog)
{
    const auto answer = [this](const std::vector<Qt::Key>& keys) {
        WhenModal([this, keys] { Type(keys); });
        form.ShowModal(nullptr);
        return std::exchange(pressed, nullptr);
    };
    EXPECT_EQ(answer({Qt::Key_Return}), &first) << "the first control has the keyboard";
    EXPECT_EQ(answer({Qt::Key_Tab, Qt::Key_Space}), &second);
    EXPECT_EQ(answer({Qt::Key_Escape}), &second);
}

TEST_F(WindowTest, AFormMayTakeNoKeysAndTheCloseBoxAsksIt)
{
    form.TakesKeys = false;
    form.HasCloseBox = false;
    Show({});
    Type({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape});
    EXPECT_EQ(pressed, nullptr);
    platform.WindowOf(form)->close();
    EXPECT_TRUE(form.IsShown());
    form.HasCloseBox = true;
    platform.WindowOf(form)->close();
    EXPECT_FALSE(form.IsShown() || platform.WindowOf(form)->isVisible());
}

TEST_F(WindowTest, ALostReleaseDoesNotHoldTheMouseForEver)
{
    Label card;
    Label other;
    std::string heard;
    card.SetBounds(300, 300, 405, 375);
    other.SetBounds(1500, 300, 405, 375);
    card.MouseUp = [&](const MouseEvent&) { heard += "up "; };
    other.MouseDown = [&](const MouseEvent&) { heard += "other"; };
    surface.Add(card);
    surface.Add(other);
    Show({&surface});
    form.FeedMouseDown({LeftButton, 0, 400, 800}); // and its release never comes
    ASSERT_EQ(form.Captured(), &card);
    hand.Click(other);
    EXPECT_EQ(heard, "up other");
}

TEST_F(WindowTest, OnlyAWindowThatGetsItsOldSizeBackHoldsIt)
{
    form.Sizable = true;
    form.Show();
    for (const Twips width : {4500, 6000, 4500, 5250}) { // to and fro is no refusal
        form.SetClientArea({width, 3750});
        EXPECT_EQ(form.Width(), width);
    }
    const QSize tile(800, 600);
    const QSize wanted(780, 600);
    SizeTalk sizes;
    sizes.Asked(tile, wanted);
    sizes.Got(wanted);
    EXPECT_FALSE(sizes.IsHeld(tile) || sizes.IsHeld(wanted)) << "accepted";
    sizes.Got(tile);
    EXPECT_TRUE(sizes.IsHeld(tile)) << "taken back";
    sizes.Got(wanted);
    EXPECT_TRUE(sizes.IsHeld(tile)) << "an echo of what was asked changes nothing";
    sizes.Got({1000, 600});
    EXPECT_FALSE(sizes.IsHeld(tile)) << "another size, by a person: ask again";
}

} // namespace
} // namespace tessarine
