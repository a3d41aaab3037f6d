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

TEST(Headless, AModalFormGetsItsAnswersInOrderAndNeverHangs)
{
    HeadlessPlatform platform;
    Forms forms{platform};
    contract::TestForm form(forms, "Question");
    form.button.MouseUp = [&](const MouseEvent&) { form.Hide(); };
    platform.AnswerModal("Ok");
    platform.OnNextModal([&](Form&) { platform.Click(form.button, RightButton); });
    form.ShowModal(nullptr);
    form.ShowModal(nullptr);
    EXPECT_EQ(platform.unscriptedModals, 0);
    form.ShowModal(nullptr); // the first button that shows
    EXPECT_EQ(platform.unscriptedModals, 1);
    platform.OnNextModal([](Form&) {}); // a user who does not close it
    form.ShowModal(nullptr);
    EXPECT_FALSE(form.IsShown());
    EXPECT_EQ(platform.unscriptedModals, 2);
    platform.AnswerModal("Perhaps");
    EXPECT_THROW(form.ShowModal(nullptr), std::logic_error);
}

TEST(Headless, AFailedWriteLeavesHalfOfTheBytes)
{
    HeadlessPlatform platform;
    platform.ResetFileOperations(1);
    EXPECT_FALSE(platform.ReadFile("new.txt")); // counts too
    EXPECT_EQ(platform.WriteNewFile("new.txt", "1234"), FileFault::Full);
    EXPECT_EQ(platform.files["/run/new.txt"], "12");
}

} // namespace
} // namespace tessarine
