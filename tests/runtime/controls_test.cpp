#include "headless/headless_platform.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "runtime/timer.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

/// Counts its drawings.
class Drawn : public UserControl
{
public:
    mutable int drawings = 0;

protected:
    void Draw(Canvas& canvas) const override
    {
        ++drawings;
        canvas.FillBox({0, 0}, {Width(), Height()}, ForeColor());
    }
};

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
    platform.paints = platform.paintedControls = platform.told = 0;

    label.SetCaption("");
    label.Move(0, 0);
    label.SetVisible(true);
    label.SetFont(Font{});
    label.BringToFront();
    label.SendToBack();
    EXPECT_FALSE(platform.HasWork());
    label.SetCaption("7");
    label.SetLeft(15);
    label.SetForeColor(White);
    surface.SetWidth(30);
    form.SetCaption("other");
    EXPECT_EQ(platform.told, 1);
    platform.RunPendingEvents();
    EXPECT_EQ(platform.paints, 1);
    EXPECT_EQ(platform.paintedControls, 3);
    label.SetCaption("8"); // noted anew after the round
    platform.RunPendingEvents();
    EXPECT_EQ(platform.paints, 2);
    EXPECT_EQ(platform.paintedControls, 4);
}

TEST_F(Controls, AUserControlDrawsOnceForAllChanges)
{
    Drawn control;
    form.Add(control);
    control.SetBounds(0, 0, 300, 300);
    control.SetBackColor(White);
    control.SetFontSize(12);
    EXPECT_EQ(control.drawings, 0);
    EXPECT_EQ(control.Drawing().Strokes().size(), 1U);
    EXPECT_EQ(control.Drawing().Background(), White);
    EXPECT_EQ(control.drawings, 1);
    control.SetLeft(15); // moves what is drawn and draws nothing
    control.SetWidth(300);
    control.Drawing();
    EXPECT_EQ(control.drawings, 1);
    control.SetWidth(315);
    control.Drawing();
    EXPECT_EQ(control.drawings, 2);
}

TEST_F(Controls, OptionsOfOneContainerExcludeOneAnother)
{
    Frame first;
    Frame second;
    OptionButton a;
    OptionButton b;
    OptionButton elsewhere;
    for (Frame* frame : {&first, &second}) {
        form.Add(*frame);
    }
    first.Add(a);
    first.Add(b);
    second.Add(elsewhere);
    elsewhere.SetValue(true);
    a.SetValue(true);
    int picks = 0;
    b.OnMouseUp = [&](const MouseEvent&) {
        ++picks;
        EXPECT_TRUE(b.Value()) << "the handler meets the new value";
    };
    b.UserPicks();
    EXPECT_EQ(picks, 1);
    EXPECT_FALSE(a.Value());
    EXPECT_TRUE(elsewhere.Value());
    b.SetEnabled(false);
    a.SetValue(true);
    b.UserPicks();
    EXPECT_TRUE(a.Value());
}

TEST_F(Controls, AChangeHandlerRunsInsideTheStatementThatSetsTheValue)
{
    ScrollBar red(ScrollBar::Direction::Down);
    ScrollBar green(ScrollBar::Direction::Down);
    std::string record;
    for (ScrollBar* bar : {&red, &green}) {
        bar->SetRange(255, 0, 1, 16); // upside down
        form.Add(*bar);
    }
    green.OnChange = [&] {
        record += "green" + NumberText(green.Value()) + NumberText(red.Value()) + ';';
    };
    red.OnChange = [&] {
        record += "red" + NumberText(red.Value()) + '(';
        green.SetValue(red.Value() / 2);
        record += ')';
    };
    red.SetValue(100);
    record += "set;";
    red.SetValue(100);
    red.SetValue(300);
    EXPECT_EQ(record, "red 100(green 50 100;)set;red 255(green 127 255;)");
    red.SetEnabled(false);
    red.UserSets(1);
    EXPECT_EQ(red.Value(), 255);
}

TEST_F(Controls, AListIsFilledWhenSomebodyAsks)
{
    ListBox list(TextList::Order::Sorted);
    form.Add(list);
    int fills = 0;
    const auto source = [&] {
        ++fills;
        return std::vector<std::string>{"b", "a"};
    };
    list.FillWhenAsked(source);
    EXPECT_EQ(list.SelectedText(), "");
    EXPECT_EQ(fills, 0);
    list.Select(0);
    EXPECT_EQ(list.SelectedText(), "a");
    list.Add("c");
    EXPECT_EQ(list.Items().Count(), 3U);
    EXPECT_EQ(fills, 1);
    list.FillWhenAsked(source);
    list.Clear();
    EXPECT_TRUE(list.Items().IsEmpty());
    EXPECT_EQ(fills, 1);
}

TEST_F(Controls, TheSelectionStaysWithItsEntry)
{
    ListBox list(TextList::Order::Sorted);
    form.Add(list);
    int releases = 0;
    list.OnMouseUp = [&](const MouseEvent&) { ++releases; };
    list.Add("green");
    list.UserPicks(0);
    list.Add("blue");
    list.Add("red");
    EXPECT_EQ(list.SelectedText(), "green");
    list.UserPicks(3); // no such entry
    EXPECT_EQ(list.SelectedText(), "green");
    EXPECT_EQ(releases, 1);
    list.UserReleasesOnNothing();
    EXPECT_EQ(releases, 2);
    list.Select(9);
    EXPECT_EQ(list.Selected(), std::nullopt);
}

TEST_F(Controls, TheBrowserKeepsAHistory)
{
    Browser browser;
    form.Add(browser);
    EXPECT_FALSE(browser.GoBack());
    EXPECT_EQ(browser.LocationURL(), "");
    browser.Navigate("a");
    browser.Navigate("a");
    EXPECT_EQ(browser.Loads(), 2);
    EXPECT_FALSE(browser.GoBack()) << "the same address is no new step";
    browser.UserFollows("a#rules");
    browser.UserFollows("a#hints");
    EXPECT_TRUE(browser.GoBack());
    EXPECT_EQ(browser.LocationURL(), "a#rules");
    EXPECT_TRUE(browser.GoForward());
    EXPECT_FALSE(browser.GoForward());
    EXPECT_TRUE(browser.GoBack());
    browser.UserFollows("b"); // what lay ahead is gone
    EXPECT_FALSE(browser.GoForward());
    EXPECT_TRUE(browser.GoBack());
    EXPECT_EQ(browser.LocationURL(), "a#rules");
}

TEST_F(Controls, ATimerTicksForAsLongAsItIsEnabled)
{
    Timer timer(platform);
    int ticks = 0;
    timer.OnTick = [&] { ++ticks; };
    timer.SetEnabled(true); // an interval of 0: never
    platform.Advance(1000);
    EXPECT_EQ(ticks, 0);
    timer.SetInterval(100);
    platform.Advance(99);
    EXPECT_EQ(ticks, 0);
    platform.Advance(201);
    EXPECT_EQ(ticks, 3);
    timer.SetInterval(50); // begins anew
    platform.Advance(49);
    EXPECT_EQ(ticks, 3);

    timer.OnTick = [&] { // a one-shot that arms itself once more
        timer.SetEnabled(false);
        timer.SetEnabled(++ticks == 4);
    };
    platform.Advance(1000);
    EXPECT_EQ(ticks, 5);
    EXPECT_FALSE(platform.HasWork());
    timer.OnTick = [&] { timer.SetInterval(0); };
    timer.SetEnabled(true);
    platform.Advance(1000);
    EXPECT_FALSE(platform.HasWork());
}

TEST_F(Controls, TwoWaitsThatShareATimerEndWithOneTick)
{
    Timer timer(platform);
    timer.OnTick = [&] { timer.SetEnabled(false); };
    const auto pause = [&](int milliseconds) {
        timer.SetInterval(milliseconds);
        timer.SetEnabled(true);
        while (timer.Enabled()) {
            platform.WaitForEvent();
        }
    };
    platform.meanwhile.emplace_back([&] { pause(3); });
    pause(3);
    EXPECT_EQ(platform.milliseconds, 3);
}

} // namespace
} // namespace tessarine
