#include "headless/headless_platform.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tessarine
{
namespace
{

class RecordedForm : public Form
{
public:
    explicit RecordedForm(Forms& forms) : Form(forms, "form", {3000, 1500}) {}

    std::string Take() { return std::exchange(record, {}); }
    std::string record;
    bool busy = false;

protected:
    bool IsBusy() const override { return busy; }
    void OnLoad() override { record += "load "; }
    void OnActivate() override { record += "activate "; }
    void OnUnload() override { record += "unload "; }
};

struct FormLife : testing::Test {
    HeadlessPlatform platform;
    Forms forms{platform};
    RecordedForm form{forms};
    RecordedForm other{forms};
};

TEST_F(FormLife, AFormIsLoadedOnceAndAfreshAfterAnUnload)
{
    form.Show();
    form.FeedActivation(); // it is active already
    EXPECT_EQ(form.Take(), "load activate ");
    form.Hide();
    form.FeedActivation();
    form.Show();
    EXPECT_EQ(form.Take(), "activate ");
    form.SetCaption("before"); // must not silence the change after the unload
    form.Unload();
    form.Show();
    EXPECT_EQ(form.Take(), "unload load activate ");
    platform.paints = 0;
    form.SetCaption("after");
    platform.RunPendingEvents();
    EXPECT_EQ(platform.paints, 1);
}

constexpr MouseEvent At(Twips x, Twips y, int button = LeftButton)
{
    return {button, 0, x, y};
}

/// A table with two overlapping cards, and a box with a card on it.
struct Mouse : FormLife {
    Mouse()
    {
        lower.SetBounds(0, 0, 400, 400);
        upper.SetBounds(200, 200, 400, 400);
        box.SetBounds(1000, 100, 1000, 1000);
        inner.SetBounds(150, 150, 100, 100);
        form.Add(lower);
        form.Add(upper);
        form.Add(box);
        box.Add(inner);
        for (Label* card : {&lower, &upper, &inner}) {
            card->MouseDown = Note('+');
            card->MouseMove = Note('~');
            card->MouseUp = Note('-');
        }
        form.Show();
    }

    MouseHandler Note(char what)
    {
        return [this, what](const MouseEvent& event) {
            record += what + NumberText(RoundHalfEven(event.x)) + NumberText(RoundHalfEven(event.y));
        };
    }

    Label lower;
    Label upper;
    PictureBox box;
    Label inner;
    std::string record;
};

TEST_F(Mouse, APressOnABusyFormIsGoneWithItsReleaseAndATakenOneIsAlwaysReleased)
{
    form.CancelControl = &upper;
    form.busy = true;
    form.FeedMouseDown(At(300, 300));
    form.FeedKey(DialogKey::Escape);
    form.busy = false;
    form.FeedMouseUp(At(300, 300));
    form.TakesKeys = false;
    form.FeedKey(DialogKey::Escape);
    EXPECT_EQ(record, "");
    form.FeedMouseDown(At(300, 300));
    form.busy = true; // with something that the press itself began
    form.FeedMouseDown(At(300, 300, RightButton));
    form.FeedMouseUp(At(300, 300, RightButton));
    form.FeedMouseUp(At(300, 300));
    EXPECT_EQ(record, "+ 100 100- 100 100");
    EXPECT_EQ(form.Captured(), nullptr);
}

TEST_F(Mouse, AModalFormTakesTheMouseFromTheOthers)
{
    lower.MouseLost = [this] { record += "lost "; };
    lower.MouseDown = [&](const MouseEvent&) { other.ShowModal(&form); };
    platform.OnNextModal([&](Form& dialog) {
        form.FeedMouseMove(At(300, 300, 0));
        form.FeedMouseDown(At(300, 300, MiddleButton));
        form.FeedMouseUp(At(300, 300, MiddleButton));
        dialog.Hide();
    });
    form.FeedMouseDown(At(100, 100)); // the release never comes here
    form.FeedMouseDown(At(300, 300, RightButton));
    form.FeedMouseUp(At(300, 300, RightButton));
    EXPECT_EQ(record, "lost + 100 100- 100 100");
    upper.UserActivates(); // past the mouse
    EXPECT_EQ(record, "lost + 100 100- 100 100+ 200 200- 200 200");
    lower.MouseDown = nullptr;
    form.FeedMouseDown(At(100, 100, RightButton));
    record.clear();
    upper.UserActivates();
    EXPECT_EQ(record, "lost + 200 200- 200 200");
}

TEST_F(Mouse, AControlThatGoesTakesItsCaptureAlongAndOneThatStaysFindsAnotherForm)
{
    PictureBox between; // made before what it stands on, and gone later
    Label onIt;
    auto passing = std::make_unique<PictureBox>();
    for (Control* control : std::initializer_list<Control*>{&between, &onIt, passing.get()}) {
        control->SetBounds(0, 0, 3000, 1500);
    }
    form.Add(*passing);
    passing->Add(between);
    between.Add(onIt);
    form.FeedMouseDown(At(1160, 260));
    ASSERT_EQ(form.Captured(), &onIt);
    passing.reset();
    EXPECT_EQ(form.Captured(), nullptr);
    EXPECT_EQ(std::ranges::count(form.TakeChanges(), &onIt), 0);
    {
        RecordedForm goes(forms);
        goes.Add(between);
    }
    form.Add(between); // which outlived the form that it stood on
    EXPECT_EQ(form.TakeChanges().back(), &between);
}

} // namespace
} // namespace tessarine
