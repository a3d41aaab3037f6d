#include "stage.h"

#include "desktop/size_talk.h"

namespace tessarine
{
namespace
{

class BoxButton : public UserControl
{
public:
    bool TakesFocus() const override { return true; }

protected:
    void Draw(Canvas& canvas) const override { canvas.FillBox({0, 0}, {30, 30}, White); }
};

class Dialog : public Form
{
public:
    explicit Dialog(Forms& forms) : Form(forms, "dialog", {3000, 2000})
    {
        Twips left = 0;
        for (BoxButton* button : {&first, &second}) {
            button->SetBounds(left += 300, 300, 900, 350);
            button->OnMouseUp = [this, button](const MouseEvent&) {
                pressed = button;
                Hide();
            };
            Add(*button);
            left += 900;
        }
        CancelControl = &second;
    }

    BoxButton first;
    BoxButton second;
    const BoxButton* pressed = nullptr;
};

using WindowTest = DesktopTest;

TEST_F(WindowTest, TheKeyboardWorksADialog)
{
    Dialog dialog(forms);
    const auto answer = [&](std::initializer_list<Qt::Key> keys) {
        dialog.pressed = nullptr;
        WhenModal([&dialog, keys = std::vector<Qt::Key>(keys), this] {
            for (const Qt::Key key : keys) {
                hand.Type(dialog, key);
            }
        });
        dialog.ShowModal(nullptr);
        return dialog.pressed;
    };
    EXPECT_EQ(answer({Qt::Key_Return}), &dialog.first) << "the first control has the keyboard";
    EXPECT_EQ(answer({Qt::Key_Tab, Qt::Key_Space}), &dialog.second);
    EXPECT_EQ(answer({Qt::Key_Escape}), &dialog.second);
}

TEST_F(WindowTest, AFormWithoutKeysTakesNone)
{
    Dialog dialog(forms);
    dialog.TakesKeys = false;
    dialog.Show();
    Events();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
        hand.Type(dialog, key);
    }
    EXPECT_EQ(dialog.pressed, nullptr);
}

TEST_F(WindowTest, TheCloseBoxAsksTheForm)
{
    Dialog dialog(forms);
    dialog.HasCloseBox = false;
    dialog.Show();
    platform.WindowOf(dialog)->close();
    EXPECT_TRUE(dialog.IsShown());
    Dialog closes(forms);
    closes.Show();
    platform.WindowOf(closes)->close();
    EXPECT_FALSE(closes.IsShown());
    EXPECT_FALSE(platform.WindowOf(closes)->isVisible());
}

TEST_F(WindowTest, WidgetsAreMadeWhenTheyAreFirstSeenAndStackedLikeTheirControls)
{
    Dialog dialog(forms);
    dialog.first.SetVisible(false);
    dialog.first.SetLeft(900); // over the other one
    dialog.Show();
    Events();
    const auto widgets = [&] { return platform.WindowOf(dialog)->findChildren<QWidget*>().size(); };
    EXPECT_EQ(widgets(), 1);
    dialog.first.SetVisible(true);
    Events();
    EXPECT_EQ(widgets(), 2);
    const QPoint both(110, 30);
    const auto atTop = [&] { return platform.WindowOf(dialog)->childAt(both); };
    EXPECT_EQ(atTop(), &WidgetOf(platform, dialog.second));
    dialog.first.BringToFront();
    Events();
    EXPECT_EQ(atTop(), &WidgetOf(platform, dialog.first));
}

TEST_F(WindowTest, AUsersSizeReachesTheFormInTwips)
{
    class Sized : public Form
    {
    public:
        using Form::Form;
        int resizes = 0;

    protected:
        void OnResize() override { ++resizes; }
    };
    Sized form(forms, "sized", {4000, 3000});
    form.Sizable = true;
    form.Show();
    Events();
    EXPECT_EQ(form.resizes, 0) << "a size between two pixels is no resize by itself";
    platform.WindowOf(form)->resize(400, 250); // as the window system would
    Events();
    EXPECT_EQ(form.Width(), 6000);
    EXPECT_EQ(form.Height(), 3750);
    EXPECT_EQ(form.resizes, 1);

    for (const Twips width : {4500, 6000, 4500, 5250}) { // to and fro is no refusal
        form.SetClientArea({width, 3750});
        EXPECT_EQ(form.Width(), width);
    }
}

TEST(SizeTalk, AWindowThatGetsItsOldSizeBackHoldsIt)
{
    const QSize tile(800, 600);
    const QSize wanted(780, 600);
    SizeTalk sizes;
    EXPECT_FALSE(sizes.IsHeld(tile));
    sizes.Asked(tile, wanted);
    sizes.Got(wanted);
    EXPECT_FALSE(sizes.IsHeld(wanted)) << "accepted";
    sizes.Got(tile);
    EXPECT_TRUE(sizes.IsHeld(tile)) << "taken back";
    sizes.Got(wanted);
    EXPECT_TRUE(sizes.IsHeld(tile)) << "an echo of what was asked changes nothing";
    sizes.Got({1000, 600});
    EXPECT_FALSE(sizes.IsHeld({1000, 600})) << "another size, by a person: ask again";
}

TEST_F(WindowTest, TheProgramEndsFromInsideAModalForm)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto endInside = [this] {
        Dialog outer(forms);
        Dialog inner(forms);
        WhenModal([&] {
            WhenModal([&] { platform.EndProgram(); });
            inner.ShowModal(&outer);
        });
        outer.ShowModal(nullptr);
        std::_Exit(3); // never comes here
    };
    EXPECT_EXIT(endInside(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace tessarine
