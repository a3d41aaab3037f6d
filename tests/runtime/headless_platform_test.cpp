#include "contract/platform_contract.h"
#include "headless/headless_platform.h"

#include <stdexcept>

namespace tessarine::contract
{
namespace
{

class HeadlessWorld
{
public:
    HeadlessWorld() { platform_.files["/run/"] = {}; }

    Platform& platform() { return platform_; }
    static std::string WritableFolder() { return "/run/"; }
    std::int64_t Milliseconds() const { return platform_.milliseconds; }
    void LetTimePass(int milliseconds) { platform_.Advance(milliseconds); }
    void WhenModal(std::function<void()> user)
    {
        platform_.OnNextModal([user = std::move(user)](Form&) { user(); });
    }
    void Click(Control& control) { platform_.Click(control); }
    void MakeRefuse(Form& form) { platform_.refusesSize.insert(&form); }
    int DrawingsOf(Control& /*control*/) const { return platform_.paints; }

private:
    HeadlessPlatform platform_;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Headless, PlatformContract, HeadlessWorld);

} // namespace tessarine::contract

namespace tessarine
{
namespace
{

using contract::TestForm;

struct HeadlessTest : testing::Test {
    HeadlessPlatform platform;
    Forms forms{platform};
    TestForm form{forms, "Question"};
};

TEST_F(HeadlessTest, AModalFormGetsItsAnswersInOrderAndTheCancelWithout)
{
    std::string pressed;
    PushButton cancel;
    cancel.SetBounds(2000, 1800, 1500, 450);
    cancel.SetCaption("Cancel");
    form.Add(cancel);
    for (PushButton* button : {&form.button, &cancel}) {
        button->OnMouseUp = [&, button](const MouseEvent&) {
            pressed += button->Caption() + ' ';
            form.Hide();
        };
    }
    platform.AnswerModal("Cancel");
    platform.AnswerModal("Ok");
    form.ShowModal(nullptr);
    form.ShowModal(nullptr);
    EXPECT_EQ(platform.unscriptedModals, 0);
    form.ShowModal(nullptr); // the first button that shows
    form.CancelControl = &cancel;
    form.ShowModal(nullptr);
    EXPECT_EQ(platform.unscriptedModals, 2);
    EXPECT_EQ(pressed, "Cancel Ok Ok Cancel ");
    EXPECT_EQ(platform.modalCaptions.size(), 4U);

    platform.AnswerModal("Perhaps");
    EXPECT_THROW(form.ShowModal(nullptr), std::logic_error);
}

TEST_F(HeadlessTest, AFormThatNobodyClosesDoesNotHang)
{
    platform.OnNextModal([](Form&) {});
    form.ShowModal(nullptr);
    EXPECT_FALSE(form.IsShown());
    EXPECT_EQ(platform.unscriptedModals, 1);
    EXPECT_THROW(platform.WaitForEvent(), std::logic_error);
}

TEST_F(HeadlessTest, InputComesInTheMiddleOfWhatLetsEventsRunOneEntryACall)
{
    form.Show();
    int inner = 0;
    platform.meanwhile.emplace_back([&] {
        platform.RunPendingEvents(); // runs the next entry, not this one again
        platform.Click(form.button);
    });
    platform.meanwhile.emplace_back([&] { ++inner; });
    platform.meanwhile.emplace_back([&] { ++inner; });
    platform.RunPendingEvents();
    EXPECT_EQ(form.presses, 1);
    EXPECT_EQ(inner, 1);
    platform.WaitForEvent();
    EXPECT_EQ(inner, 2);
    EXPECT_FALSE(platform.HasWork());
}

TEST_F(HeadlessTest, TheHandMovesTheCursorAndComesThroughAllThatLiesInFront)
{
    form.Show();
    platform.MoveMouse(form, 30, 44);
    EXPECT_EQ(platform.cursor.x, 102);
    EXPECT_EQ(platform.cursor.y, 103);
    platform.Click(form.button);
    EXPECT_EQ(form.presses, 1);

    PictureBox cover;
    cover.SetBounds(0, 0, form.Width(), form.Height());
    int coverPresses = 0;
    cover.OnMouseDown = [&](const MouseEvent&) { ++coverPresses; };
    form.Add(cover);
    platform.Click(form.label);
    EXPECT_EQ(coverPresses, 1);
    form.button.SetVisible(false);
    EXPECT_THROW(platform.Click(form.button), std::logic_error);
}

TEST_F(HeadlessTest, FilesFailOnDemand)
{
    platform.files = {{"/run/old.txt", "old"}, {"/ro/kept.txt", "kept"}};
    platform.readOnlyFolders.insert("/ro");
    EXPECT_FALSE(platform.WriteNewFile("/ro/kept.txt", "other"));
    EXPECT_FALSE(platform.RenameFile("old.txt", "/ro/kept.txt"));
    EXPECT_EQ(platform.files["/ro/kept.txt"], "kept");

    platform.ResetFileOperations(1);
    EXPECT_TRUE(platform.ReadFile("old.txt"));
    EXPECT_FALSE(platform.WriteNewFile("new.txt", "1234"));
    EXPECT_EQ(platform.files["/run/new.txt"], "12");
    EXPECT_TRUE(platform.RenameFile("new.txt", "old.txt"));
    platform.ResetFileOperations(0, true);
    EXPECT_FALSE(platform.ReadFile("old.txt"));
    EXPECT_FALSE(platform.ReadFile("old.txt"));
    EXPECT_EQ(platform.fileOperations, 2);
}

TEST_F(HeadlessTest, TheWindowBehindComesToTheFrontWhenAnotherGoes)
{
    TestForm second(forms, "second");
    form.Show();
    second.Show();
    platform.Click(form.button); // brings its form to the front
    EXPECT_EQ(form.activations, 2);
    platform.Click(second.button);
    EXPECT_EQ(second.activations, 2);
    second.Hide();
    platform.RunPendingEvents();
    EXPECT_EQ(form.activations, 3);
}

} // namespace
} // namespace tessarine
