// What every Platform owes the program, as tests that run against each of them.
//
// A platform's test program includes this header in one source file, describes its World, and says
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Desktop, PlatformContract, DesktopWorld);
//
// A World is made anew for each test and offers:
//
//     Platform& platform();
//     std::string WritableFolder();              a folder that is there and empty, "/" or "\" at its end
//     std::int64_t Milliseconds();               of the clock that the platform's timers go by
//     void LetTimePass(int milliseconds);        at least so long, with events handled meanwhile
//     void WhenModal(std::function<void()> user) what the user does once the next modal form is open
//     void Click(Control& control);              a left click in the middle of it, as a user makes it
//     void MakeRefuse(Form& form);               the window of this shown form keeps its size from now
//     on int DrawingsOf(Control& control);          how often what stands on the control was drawn; a
//     World
//                                                that cannot tell leaves it out
#pragma once

#include "runtime/controls.h"
#include "runtime/files.h"
#include "runtime/form.h"
#include "runtime/platform.h"
#include "runtime/timer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>

namespace tessarine::contract
{

/// A window with a button on it and a record of what happened to it.
class TestForm : public Form
{
public:
    TestForm(Forms& forms, const std::string& caption) : Form(forms, caption, {4500, 3000})
    {
        surface.SetBounds(0, 0, 4500, 1500);
        label.SetBounds(300, 300, 1500, 600);
        button.SetBounds(300, 1800, 1500, 450);
        button.SetCaption("Ok");
        button.OnMouseUp = [this](const MouseEvent&) { ++presses; };
        surface.Add(label);
        Add(surface);
        Add(button);
    }

    PictureBox surface;
    Label label;
    PushButton button;
    int presses = 0;
    int activations = 0;
    int resizes = 0;

protected:
    void OnActivate() override { ++activations; }
    void OnResize() override { ++resizes; }
};

template <class World> class PlatformContract : public testing::Test
{
protected:
    Platform& platform() { return world.platform(); }
    std::string InFolder(const std::string& name) { return world.WritableFolder() + name; }

    World world;
    Forms forms{world.platform()};
};
TYPED_TEST_SUITE_P(PlatformContract);

// --- timers and events ---

TYPED_TEST_P(PlatformContract, ATimerTicksOnceWhenItsTimeIsUp)
{
    constexpr int interval = 40;
    Timer timer(this->platform());
    int ticks = 0;
    std::int64_t tickedAt = 0;
    timer.OnTick = [&] {
        timer.SetEnabled(false);
        ++ticks;
        tickedAt = this->world.Milliseconds();
    };
    const std::int64_t start = this->world.Milliseconds();
    timer.SetInterval(interval);
    timer.SetEnabled(true);
    this->world.LetTimePass(5 * interval);
    EXPECT_EQ(ticks, 1);
    EXPECT_GE(tickedAt - start, interval);
}

TYPED_TEST_P(PlatformContract, AStoppedTimerIsSilentAndARestartedOneBeginsAnew)
{
    constexpr int interval = 60;
    Timer stopped(this->platform());
    Timer restarted(this->platform());
    int ticks = 0;
    std::int64_t tickedAt = 0;
    stopped.OnTick = [&] { ADD_FAILURE() << "a stopped timer ticked"; };
    restarted.OnTick = [&] {
        restarted.SetEnabled(false);
        ++ticks;
        tickedAt = this->world.Milliseconds();
    };
    for (Timer* timer : {&stopped, &restarted}) {
        timer->SetInterval(interval);
        timer->SetEnabled(true);
    }
    stopped.SetEnabled(false);
    this->world.LetTimePass(interval / 4);
    if (ticks > 0) {
        GTEST_SKIP() << "the machine is too busy to tell";
    }
    const std::int64_t again = this->world.Milliseconds();
    this->platform().StartTimer(restarted, interval);
    this->world.LetTimePass(5 * interval);
    EXPECT_EQ(ticks, 1);
    EXPECT_GE(tickedAt - again, interval);
}

TYPED_TEST_P(PlatformContract, WaitingSleepsUntilThereIsAnEvent)
{
    constexpr int interval = 100;
    Timer timer(this->platform());
    timer.OnTick = [&] { timer.SetEnabled(false); };
    const std::int64_t start = this->world.Milliseconds();
    timer.SetInterval(interval);
    timer.SetEnabled(true);
    int waits = 0;
    while (timer.Enabled()) {
        this->platform().WaitForEvent();
        ++waits;
    }
    EXPECT_GE(this->world.Milliseconds() - start, interval);
    EXPECT_LT(waits, 50) << "a wait that returns at once keeps a core busy";
}

TYPED_TEST_P(PlatformContract, WithNothingPendingRunningEventsReturns)
{
    Timer later(this->platform());
    later.OnTick = [&] { later.SetEnabled(false); };
    later.SetInterval(60'000);
    later.SetEnabled(true);
    for (int i = 0; i < 100; ++i) {
        this->platform().RunPendingEvents();
    }
    EXPECT_TRUE(later.Enabled());
}

// --- forms ---

TYPED_TEST_P(PlatformContract, AModalFormReturnsWhenHiddenAndKeepsOthersFromInput)
{
    TestForm owner(this->forms, "owner");
    TestForm dialog(this->forms, "dialog");
    owner.Show();
    dialog.button.OnMouseUp = [&](const MouseEvent&) { dialog.Hide(); };
    this->world.Click(owner.button);
    ASSERT_EQ(owner.presses, 1);

    for (Form* before : {static_cast<Form*>(&owner), static_cast<Form*>(nullptr)}) {
        bool wasOpen = false;
        this->world.WhenModal([&] {
            wasOpen = dialog.IsShown() && this->forms.Modal() == &dialog;
            this->world.Click(owner.button);
            this->world.Click(dialog.button);
        });
        dialog.ShowModal(before);
        EXPECT_TRUE(wasOpen);
        EXPECT_FALSE(dialog.IsShown());
        EXPECT_TRUE(dialog.IsLoaded());
        EXPECT_EQ(this->forms.Modal(), nullptr);
        EXPECT_EQ(owner.presses, 1) << "the owner took a press while the dialog was open";
    }
    this->world.LetTimePass(50); // for a late activation
    EXPECT_EQ(dialog.activations, 2);
    EXPECT_EQ(owner.activations, 1) << "a modal form that goes does not activate its owner anew";
    this->world.Click(owner.button);
    EXPECT_EQ(owner.presses, 2);
}

TYPED_TEST_P(PlatformContract, ModalFormsNestAndEndAtAnUnload)
{
    TestForm owner(this->forms, "owner");
    TestForm outer(this->forms, "outer");
    TestForm inner(this->forms, "inner");
    owner.Show();
    inner.button.OnMouseUp = [&](const MouseEvent&) { inner.Unload(); };
    bool outerWaited = false;
    outer.button.OnMouseUp = [&](const MouseEvent&) {
        this->world.WhenModal([&] { this->world.Click(inner.button); });
        inner.ShowModal(&outer);
        outerWaited = outer.IsShown() && this->forms.Modal() == &outer;
        outer.Hide();
    };
    this->world.WhenModal([&] { this->world.Click(outer.button); });
    outer.ShowModal(&owner);
    EXPECT_TRUE(outerWaited);
    EXPECT_FALSE(inner.IsLoaded());
    EXPECT_EQ(this->forms.Modal(), nullptr);
}

TYPED_TEST_P(PlatformContract, AWindowTakesASizeInWholePixelsOrKeepsItsOwn)
{
    TestForm form(this->forms, "sizes");
    form.Sizable = true;
    form.Show();
    this->world.LetTimePass(20);
    form.resizes = 0;

    form.SetClientArea({6007, 3008}); // 400.5 pixels and a little less, 200.5 and a little more
    this->world.LetTimePass(20);
    EXPECT_EQ(form.Width(), 6000);
    EXPECT_EQ(form.Height(), 3015);
    EXPECT_EQ(form.OuterWidth(), 6120);
    EXPECT_EQ(form.resizes, 1);
    form.SetOuterWidth(6127);
    EXPECT_EQ(form.resizes, 1) << "less than half a pixel is no change";

    this->world.MakeRefuse(form);
    const Size kept{form.Width(), form.Height()};
    form.SetOuterWidth(form.OuterWidth() + 1500);
    this->world.LetTimePass(20);
    EXPECT_EQ(form.Width(), kept.width);
    EXPECT_EQ(form.Height(), kept.height);
}

TYPED_TEST_P(PlatformContract, AFrozenSurfaceIsDrawnWhenItThaws)
{
    if constexpr (requires(TypeParam world, Control & control) { world.DrawingsOf(control); }) {
        TestForm form(this->forms, "frozen");
        form.Show();
        this->world.LetTimePass(100);
        const int before = this->world.DrawingsOf(form.surface);
        this->platform().FreezeSurface(&form.surface);
        for (const char* caption : {"7", "6", "5"}) {
            form.label.SetCaption(caption);
            this->platform().RunPendingEvents();
        }
        EXPECT_EQ(this->world.DrawingsOf(form.surface), before);
        this->platform().FreezeSurface(nullptr);
        this->world.LetTimePass(50);
        EXPECT_EQ(this->world.DrawingsOf(form.surface), before + 1);
    } else {
        GTEST_SKIP() << "this world cannot tell what is drawn";
    }
}

TYPED_TEST_P(PlatformContract, AFormMayChangeAndGoAtAnyTime)
{
    TestForm stays(this->forms, "stays");
    stays.Show();
    {
        TestForm goes(this->forms, "goes");
        goes.Show();
        goes.label.SetCaption("changed");
        stays.label.SetCaption("changed");
    }
    this->platform().RunPendingEvents();
    TestForm comesBack(this->forms, "comes back");
    for (int i = 0; i < 2; ++i) {
        comesBack.Show();
        comesBack.SetCaption("round " + std::to_string(i));
        comesBack.Unload();
        comesBack.label.SetCaption("changed while away " + std::to_string(i));
    }
    this->world.LetTimePass(20);
    EXPECT_TRUE(stays.TakeChanges().empty()) << "a round of events takes the changes of every form";
}

// --- files ---

TYPED_TEST_P(PlatformContract, FilesKeepTheirBytes)
{
    using namespace std::string_view_literals;
    Platform& platform = this->platform();
    const std::string path = this->InFolder("bytes.txt");
    EXPECT_EQ(platform.ReadFile(path), std::nullopt);
    EXPECT_FALSE(platform.IsPlainFile(path));
    for (const std::string_view bytes : {"07\r\n\xE9\0\xFF\n"sv, "shorter"sv, ""sv}) {
        EXPECT_TRUE(platform.WriteNewFile(path, bytes));
        EXPECT_EQ(platform.ReadFile(path), bytes);
        EXPECT_TRUE(platform.IsPlainFile(path));
    }
    platform.RemoveFile(path);
    platform.RemoveFile(path); // what is not there is no matter
    EXPECT_FALSE(platform.IsPlainFile(path));
}

TYPED_TEST_P(PlatformContract, ARenamedFileTakesThePlaceOfAnother)
{
    Platform& platform = this->platform();
    const std::string from = this->InFolder("from.txt");
    const std::string to = this->InFolder("to.txt");
    ASSERT_TRUE(platform.WriteNewFile(from, "new"));
    ASSERT_TRUE(platform.WriteNewFile(to, "old"));
    EXPECT_TRUE(platform.RenameFile(from, to));
    EXPECT_EQ(platform.ReadFile(to), "new");
    EXPECT_EQ(platform.ReadFile(from), std::nullopt);
    EXPECT_FALSE(platform.RenameFile(from, to));
    EXPECT_EQ(platform.ReadFile(to), "new");

    EXPECT_TRUE(ReplaceFile(platform, to, "newest"));
    EXPECT_EQ(platform.ReadFile(to), "newest");
    EXPECT_FALSE(platform.IsPlainFile(to + ".part"));
}

TYPED_TEST_P(PlatformContract, AFolderIsNoFileAndBareNamesLieInTheCurrentOne)
{
    Platform& platform = this->platform();
    const std::string folder = this->world.WritableFolder();
    EXPECT_EQ(platform.ReadFile(folder), std::nullopt);
    EXPECT_FALSE(platform.IsPlainFile(folder));
    EXPECT_FALSE(platform.WriteNewFile(folder, "bytes"));

    const std::string before = platform.CurrentFolder();
    EXPECT_FALSE(before.empty());
    platform.ChangeFolder(folder);
    EXPECT_EQ(WithSeparator(platform, platform.CurrentFolder()), folder);
    EXPECT_TRUE(ReplaceFile(platform, "bare.txt", "here"));
    EXPECT_EQ(platform.ReadFile(this->InFolder("bare.txt")), "here");
    EXPECT_TRUE(platform.IsPlainFile("bare.txt"));
    platform.ChangeFolder(before);
    EXPECT_EQ(platform.CurrentFolder(), before);
}

// --- clock, chance, text and sound ---

TYPED_TEST_P(PlatformContract, DrawsUnderOneClockReadingDiffer)
{
    constexpr int many = 2000;
    const double clock = static_cast<double>(this->platform().SecondsSinceMidnight());
    std::set<double> different;
    double sum = 0;
    for (int i = 0; i < many; ++i) {
        this->platform().SeedRandom(clock);
        const double draw = this->platform().RandomDraw();
        ASSERT_GE(draw, 0);
        ASSERT_LT(draw, 1);
        different.insert(draw);
        sum += draw;
    }
    EXPECT_GT(different.size(), many - 5U);
    EXPECT_NEAR(sum / many, 0.5, 0.05); // eight times the spread of such a mean
}

TYPED_TEST_P(PlatformContract, TheClockTellsAPossibleTime)
{
    const DateTime now = this->platform().Now();
    EXPECT_GE(now.year, 2000);
    EXPECT_TRUE(now.month >= 1 && now.month <= 12) << now.month;
    EXPECT_TRUE(now.day >= 1 && now.day <= 31) << now.day;
    EXPECT_TRUE(now.hour >= 0 && now.hour <= 23) << now.hour;
    EXPECT_TRUE(now.minute >= 0 && now.minute <= 59) << now.minute;
    EXPECT_TRUE(now.second >= 0 && now.second <= 60) << now.second;
    EXPECT_FALSE(now.shortMonth.empty());
    EXPECT_GE(this->platform().SecondsSinceMidnight(), 0);
    EXPECT_LT(this->platform().SecondsSinceMidnight(), 24 * 60 * 60);
}

TYPED_TEST_P(PlatformContract, TextIsMeasuredInTwips)
{
    Platform& platform = this->platform();
    EXPECT_FALSE(platform.ScreenFonts().empty());
    const Font small{.name = "Arial", .size = 8};
    Font large = small;
    large.size = 24;
    const Size one = platform.TextSize(small, "Weight");
    EXPECT_GT(one.width, 6 * 20); // six letters, each wider than a point
    EXPECT_GE(one.height, 8 * TwipsPerPoint);
    EXPECT_LE(one.height, 2 * 8 * TwipsPerPoint);
    EXPECT_GT(platform.TextSize(small, "Weightier").width, one.width);
    EXPECT_GT(platform.TextSize(large, "Weight").width, 2 * one.width);
    EXPECT_GT(platform.TextSize(large, "Weight").height, 2 * one.height);

    const Size three = platform.TextSize(small, "a\nWeight\nab");
    EXPECT_EQ(platform.TextSize(small, "a\r\nWeight\r\nab"), three);
    EXPECT_NEAR(three.width, one.width, TwipsPerPixel);
    EXPECT_GT(three.height, 2.5 * one.height);
    EXPECT_LT(three.height, 4 * one.height);
}

TYPED_TEST_P(PlatformContract, ASoundThatIsNotThereIsSilence)
{
    const std::int64_t start = this->world.Milliseconds();
    this->platform().PlayWave(this->InFolder("_none.wav"));
    ASSERT_TRUE(this->platform().WriteNewFile(this->InFolder("_empty.wav"), ""));
    this->platform().PlayWave(this->InFolder("_empty.wav"));
    EXPECT_LT(this->world.Milliseconds() - start, 2000);
    this->world.LetTimePass(50);
}

REGISTER_TYPED_TEST_SUITE_P(PlatformContract, ATimerTicksOnceWhenItsTimeIsUp,
                            AStoppedTimerIsSilentAndARestartedOneBeginsAnew,
                            WaitingSleepsUntilThereIsAnEvent, WithNothingPendingRunningEventsReturns,
                            AModalFormReturnsWhenHiddenAndKeepsOthersFromInput,
                            ModalFormsNestAndEndAtAnUnload, AWindowTakesASizeInWholePixelsOrKeepsItsOwn,
                            AFrozenSurfaceIsDrawnWhenItThaws, AFormMayChangeAndGoAtAnyTime,
                            FilesKeepTheirBytes, ARenamedFileTakesThePlaceOfAnother,
                            AFolderIsNoFileAndBareNamesLieInTheCurrentOne,
                            DrawsUnderOneClockReadingDiffer, TheClockTellsAPossibleTime,
                            TextIsMeasuredInTwips, ASoundThatIsNotThereIsSilence);

} // namespace tessarine::contract
