#include "headless/headless_platform.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "runtime/timer.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

/// Counts how often it is told of changes.
class ToldPlatform : public HeadlessPlatform
{
public:
    int told = 0;

    void ChangesPending(Form& form) override
    {
        ++told;
        HeadlessPlatform::ChangesPending(form);
    }
};

struct Controls : testing::Test {
    ToldPlatform platform;
    Forms forms{platform};
    Form form{forms, "form", {3000, 2000}};
};

TEST_F(Controls, OnlyAChangeIsNotedAndEachControlOnce)
{
    Label label;
    PictureBox surface;
    form.Add(surface);
    surface.Add(label);
    form.Show();
    platform.RunPendingEvents();
    platform.paintedControls = platform.told = 0;

    label.SetCaption("");
    label.Move(0, 0);
    label.SetFont(Font{});
    label.BringToFront();
    EXPECT_FALSE(platform.HasWork());
    label.SetCaption("7");
    label.SetForeColor(White);
    surface.SetWidth(30);
    EXPECT_EQ(platform.told, 1);
    platform.RunPendingEvents();
    EXPECT_EQ(platform.paintedControls, 2);
    label.SetCaption("8"); // noted anew after the round
    platform.RunPendingEvents();
    EXPECT_EQ(platform.paintedControls, 3);
}

TEST_F(Controls, WhatStandsOnAControlThatIsNotEnabledTakesNoInput)
{
    Frame frame;
    CheckBox box;
    form.Add(frame);
    frame.Add(box);
    form.Show();
    Control& anyControl = frame;
    for (const bool enabled : {false, true}) {
        anyControl.SetEnabled(enabled);
        box.UserToggles();
        EXPECT_EQ(box.Value(), enabled);
    }
}

TEST_F(Controls, AListIsFilledWhenSomebodyAsksAndKeepsItsSelectionOnItsEntry)
{
    ListBox list(TextList::Order::Sorted);
    form.Add(list);
    int fills = 0;
    int releases = 0;
    list.MouseUp = [&](const MouseEvent&) { ++releases; };
    list.FillWhenAsked([&] {
        ++fills;
        return std::vector<std::string>{"red", "green"};
    });
    EXPECT_EQ(list.SelectedText(), "");
    EXPECT_EQ(fills, 0);
    list.UserPicks(0);
    for (const char* const other : {"blue", "yellow"}) {
        list.Add(other);
        EXPECT_EQ(list.SelectedText(), "green");
    }
    EXPECT_EQ(fills, 1);
    list.UserPicks(4); // no such entry
    EXPECT_EQ(releases, 1);
    list.Select(9);
    EXPECT_EQ(list.Selected(), std::nullopt);
}

TEST_F(Controls, ATimerTicksForAsLongAsItIsEnabled)
{
    Timer timer(platform);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    const auto ticksAfter = [&](int milliseconds) {
        platform.Advance(milliseconds);
        return ticks;
    };
    timer.SetEnabled(true);
    EXPECT_EQ(ticksAfter(1000), 0) << "an interval of 0: never";
    timer.SetInterval(100);
    EXPECT_EQ(ticksAfter(99), 0);
    EXPECT_EQ(ticksAfter(201), 3);
    timer.SetInterval(50); // begins anew
    EXPECT_EQ(ticksAfter(49), 3);
}

} // namespace
} // namespace tessarine
