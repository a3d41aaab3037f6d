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
    form.Add(frame);
    frame.Add(box);
    form.Show();
    Control& anyControl = frame;
    for (const bool enabled : {false, true}) {
        anyControl.SetEnabled(enabled);
        box.UserActivates();
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
    list.Clear();
    EXPECT_EQ(list.Items().Count(), 0U);
}

TEST_F(Controls, AModalFormTakesTheMouseFromTheOthers)
{
    Form other(forms, "other", {3000, 2000});
    Label lower;
    Label upper;
    std::string record;
    for (Label* card : {&lower, &upper}) {
        form.Add(*card);
        card->MouseDown = [&](const MouseEvent&) { record += "down "; };
        card->MouseUp = [&](const MouseEvent&) { record += "up "; };
        card->MouseLost = [&] { record += "lost "; };
    }
    lower.SetBounds(0, 0, 400, 400);
    upper.SetBounds(200, 200, 400, 400);
    form.Show();
    const auto press = [&](Twips at, int button) { form.FeedMouseDown({button, 0, at, at}); };
    const auto release = [&](Twips at, int button) { form.FeedMouseUp({button, 0, at, at}); };
    lower.MouseDown = [&](const MouseEvent&) { other.ShowModal(&form); };
    platform.OnNextModal([&](Form& dialog) {
        press(300, MiddleButton);
        release(300, MiddleButton);
        dialog.Hide();
    });
    press(100, LeftButton); // the release never comes here
    press(300, RightButton);
    release(300, RightButton);
    EXPECT_EQ(record, "lost down up ");
    lower.MouseDown = nullptr;
    press(100, RightButton);
    static_cast<Control&>(upper).UserActivates(); // past the mouse
    EXPECT_EQ(record, "lost down up lost down up ");
}

} // namespace
} // namespace tessarine
