#include "headless/headless_platform.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

struct Controls : testing::Test {
    HeadlessPlatform platform;
    Forms forms{platform};
    Form form{forms, "form", {3000, 2000}};
};

TEST_F(Controls, WhatStandsOnAControlThatIsNotEnabledTakesNoInput)
{
    Frame frame;
    CheckBox box;
    PushButton button;
    int presses = 0;
    button.MouseUp = [&](const MouseEvent&) { ++presses; };
    form.Add(frame);
    frame.Add(box);
    frame.Add(button);
    form.Show();
    Control& anyControl = frame;
    for (const bool enabled : {false, true}) {
        anyControl.SetEnabled(enabled);
        box.UserActivates();
        button.UserReleases(LeftButton);
        EXPECT_EQ(box.Value(), enabled);
        EXPECT_EQ(presses, enabled ? 1 : 0);
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
    list.Clear();
    EXPECT_EQ(list.Items().Count(), 0U);
}

} // namespace
} // namespace tessarine
