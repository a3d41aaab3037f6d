// What every Platform owes the program, as tests that run against each of them. A platform's test
// program includes this header in one source file, describes its World, and says
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Desktop, PlatformContract, DesktopWorld);
//
// A World is made anew for each test and offers:
//
//     Platform& platform();
//     std::string WritableFolder();        a folder that is there and empty, "/" or "\" at its end
//     std::int64_t Milliseconds();         of the clock that the platform's timers go by
//     void LetTimePass(int milliseconds);  at least so long, with events handled meanwhile
//     void WhenModal(std::function<void()> user);  what the user does with the next modal form
//     void Click(Control& control);        a left click in the middle of it, as a user makes it
//     void MakeRefuse(Form& form);         the window of this shown form keeps its size from now on
#pragma once

#include "runtime/controls.h"
#include "runtime/files.h"
#include "runtime/form.h"
#include "runtime/timer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace tessarine::contract
{

/// A window with a button on it and a record of what happened to it.
class TestForm : public Form
{
public:
    explicit TestForm(Forms& forms) : Form(forms, "test", {4500, 3000})
    {
        button.SetBounds(300, 1800, 1500, 450);
        button.MouseUp = [this](const MouseEvent&) { ++presses; };
        Add(label);
        Add(button);
    }

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
    World world;
    Platform& platform = world.platform();
    Forms forms{platform};
};
TYPED_TEST_SUITE_P(PlatformContract);

TYPED_TEST_P(PlatformContract, ATimerTicksInTimeAndWaitingSleeps)
{
    for (const int interval : {80, 3}) {
        Timer stopped(this->platform);
        Timer timer(this->platform);
        std::vector<std::int64_t> ticks;
        stopped.OnTick = [&] { ADD_FAILURE() << "a stopped timer ticked"; };
        timer.OnTick = [&] {
            timer.SetEnabled(false);
            ticks.push_back(this->world.Milliseconds());
        };
        for (Timer* either : {&stopped, &timer}) {
            either->SetInterval(interval);
            either->SetEnabled(true);
        }
        stopped.SetEnabled(false);
        this->world.LetTimePass(interval / 4);
        ticks.clear(); // of a machine that was too busy
        timer.SetEnabled(true);
        const std::int64_t again = this->world.Milliseconds();
        this->platform.StartTimer(timer, interval); // begins anew
        this->platform.RunPendingEvents();          // does not wait for it
        int waits = 0;
        for (; ticks.empty(); ++waits) {
            this->platform.WaitForEvent();
        }
        EXPECT_GE(ticks[0] - again, interval);
        EXPECT_LT(waits, 50) << "a wait that returns at once keeps a core busy";
        this->world.LetTimePass(2 * interval);
        EXPECT_EQ(ticks.size(), 1U);
    }
}

TYPED_TEST_P(PlatformContract, ModalFormsNestAndShutOthersOutAndAFormMayGoAtAnyTime)
{
    TestForm owner(this->forms);
    TestForm outer(this->forms);
    const auto whenModalClick = [&](TestForm& dialog) {
        this->world.WhenModal([&] {
            this->world.Click(owner.button);
            this->world.Click(dialog.button);
        });
    };
    owner.Show();
    outer.button.MouseUp = [&](const MouseEvent&) {
        TestForm inner(this->forms);
        inner.button.MouseUp = [&](const MouseEvent&) { inner.Unload(); };
        whenModalClick(inner);
        inner.ShowModal(nullptr);
        EXPECT_TRUE(outer.IsShown() && this->forms.Modal() == &outer && !inner.IsLoaded());
        inner.label.SetCaption("changed while away");
        inner.Show();
        inner.label.SetCaption("changed");
        owner.label.SetCaption("changed");
        outer.Hide();
    };
    whenModalClick(outer);
    outer.ShowModal(&owner);
    EXPECT_TRUE(outer.IsLoaded() && !outer.IsShown());
    EXPECT_EQ(owner.presses, 0) << "the owner took a press while a dialog was open";
    this->world.LetTimePass(50); // for a late activation
    EXPECT_TRUE(owner.TakeChanges().empty()) << "a round of events takes the changes of every form";
    EXPECT_EQ(owner.activations, 1) << "a modal form that goes does not activate its owner anew";
    this->world.Click(owner.button);
    EXPECT_EQ(owner.presses, 1);
}

TYPED_TEST_P(PlatformContract, AWindowTakesWholePixelsOrKeepsItsSize)
{
    TestForm form(this->forms);
    form.Sizable = true;
    form.Show();
    this->world.LetTimePass(20);
    form.resizes = 0;
    const auto fitted = [&](Size wanted) {
        form.SetClientArea(wanted);
        this->world.LetTimePass(20);
        return Size{form.Width(), form.Height()};
    };
    EXPECT_EQ(fitted({6007, 3008}), (Size{6000, 3015})); // just short of half a pixel, and past it
    EXPECT_EQ(fitted({6007, 3015}), (Size{6000, 3015}));
    EXPECT_EQ(form.resizes, 1);
    const Size largest = this->platform.LargestClientArea(form);
    EXPECT_TRUE(largest.width > 6000 && largest.height > 3015);
    EXPECT_EQ(fitted(largest), largest);
    this->world.MakeRefuse(form); // which may have made it another size
    const Size kept{form.Width(), form.Height()};
    EXPECT_EQ(fitted({kept.width + 1500, kept.height}), kept);
}

TYPED_TEST_P(PlatformContract, FilesKeepTheirBytes)
{
    using namespace std::string_view_literals;
    Platform& disk = this->platform;
    const std::string folder = this->world.WritableFolder();
    const std::string path = folder + "bytes.txt";
    for (const std::string_view bytes : {"07\r\n\xE9\0\xFF\n"sv, "shorter"sv, ""sv}) {
        EXPECT_EQ(disk.WriteNewFile(path, bytes), FileFault::None);
        EXPECT_EQ(disk.ReadFile(path).text, bytes);
    }
    disk.PlayWave(path); // a file without a sound in it: silence
    const std::string before = disk.CurrentFolder();
    disk.ChangeFolder(folder);
    EXPECT_EQ(WithSeparator(disk, disk.CurrentFolder()), folder);
    EXPECT_EQ(disk.WriteNewFile("bare.txt", "new"), FileFault::None);
    EXPECT_TRUE(disk.IsPlainFile(folder + "bare.txt"));
    EXPECT_EQ(disk.RenameFile("bare.txt", path), FileFault::None);
    EXPECT_EQ(disk.RenameFile("bare.txt", path), FileFault::Missing);
    disk.ChangeFolder(before);
    EXPECT_EQ(disk.CurrentFolder(), before);
    EXPECT_EQ(disk.ReadFile(path).text, "new");
    EXPECT_EQ(disk.PlaceToWrite(path).text, path);
    disk.RemoveFile(path);
    EXPECT_FALSE(disk.IsPlainFile(path) || disk.IsPlainFile(folder));
    EXPECT_EQ(disk.ReadFile(path).fault, FileFault::Missing);
    EXPECT_EQ(disk.ReadFile(folder).fault, FileFault::IsFolder);
    EXPECT_EQ(disk.PlaceToWrite(folder).fault, FileFault::IsFolder);
    EXPECT_EQ(disk.WriteNewFile(folder, "bytes"), FileFault::IsFolder);
    for (const std::size_t more : {0U, 1U}) {
        EXPECT_EQ(disk.WriteNewFile(path, std::string(LargestFile + more, ' ')), FileFault::None);
        EXPECT_EQ(disk.ReadFile(path).fault, more == 0 ? FileFault::None : FileFault::TooLarge);
    }
}

TYPED_TEST_P(PlatformContract, OneClockManyDrawsAndTextInTwips)
{
    const DateTime now = this->platform.Now();
    const double seconds = (now.hour * 60.0 + now.minute) * 60 + now.second;
    const auto clock = static_cast<double>(this->platform.SecondsSinceMidnight());
    EXPECT_LE(std::abs(std::remainder(clock - seconds, 24 * 60 * 60)), 5);
    std::set<double> draws;
    for (int i = 0; i < 2000; ++i) {
        this->platform.SeedRandom(clock);
        draws.insert(this->platform.RandomDraw());
    }
    EXPECT_GT(draws.size(), 1995U);
    EXPECT_TRUE(*draws.begin() >= 0 && *draws.rbegin() > 0.95 && *draws.rbegin() < 1);
    const auto size = [this](double points, std::string_view text) {
        return this->platform.TextSize({.name = "Arial", .size = points}, text);
    };
    const Size one = size(8, "Weight");
    EXPECT_GT(one.width, 6 * TwipsPerPoint); // six letters, each wider than a point
    EXPECT_TRUE(one.height >= 8 * TwipsPerPoint && one.height <= 16 * TwipsPerPoint) << one.height;
    EXPECT_GT(size(24, "Weight").width, 2 * one.width);
    const Size three = size(8, "a\nWeight\nab");
    EXPECT_EQ(size(8, "a\r\nWeight\r\nab"), three);
    EXPECT_NEAR(three.width, one.width, TwipsPerPixel);
    EXPECT_NEAR(three.height, 3.25 * one.height, 0.75 * one.height);
}

REGISTER_TYPED_TEST_SUITE_P(PlatformContract, ATimerTicksInTimeAndWaitingSleeps,
                            ModalFormsNestAndShutOthersOutAndAFormMayGoAtAnyTime,
                            AWindowTakesWholePixelsOrKeepsItsSize, FilesKeepTheirBytes,
                            OneClockManyDrawsAndTextInTwips);

} // namespace tessarine::contract
