#include "kit/about_box.h"
#include "kit/help_viewer.h"

#include "headless/headless_platform.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace tessarine
{
namespace
{

class SmallForms : public testing::Test
{
protected:
    SmallForms()
    {
        dress.SchemeColors[BackgroundSlot] = Rgb(1, 2, 3);
        dress.SchemeColors[ButtonSlot] = Rgb(4, 5, 6);
        help.Tag = "/run/page.htm";
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    Dress dress;
    Form table{forms, "Table", {3000, 3000}};
    Form4 help{forms, dress};
    AboutForm about{forms, dress};
};

TEST_F(SmallForms, HelpLoadsItsPageAndItsColoursAtEachActivation)
{
    table.Show();
    help.Show();
    EXPECT_EQ(help.WebBrowser1.LocationURL(), "/run/page.htm");
    EXPECT_EQ(help.BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(help.command3.BackColor(), Rgb(4, 5, 6));
    EXPECT_TRUE(table.TakesInput());

    help.WebBrowser1.UserFollows("/run/page.htm#rules");
    dress.SchemeColors[BackgroundSlot] = White;
    const int loads = help.WebBrowser1.Loads();
    table.FeedActivation();
    EXPECT_EQ(help.BackColor(), Rgb(1, 2, 3)) << "not before its next activation";
    help.FeedActivation();
    EXPECT_EQ(help.WebBrowser1.Loads(), loads + 1);
    EXPECT_EQ(help.WebBrowser1.LocationURL(), "/run/page.htm");
    EXPECT_EQ(help.BackColor(), White);

    help.Show(); // the command again, with the form still there
    EXPECT_EQ(help.WebBrowser1.Loads(), loads + 2);
}

TEST_F(SmallForms, HelpStepsThroughItsHistoryOnlyFromAnAnchor)
{
    help.Show();
    Browser& page = help.WebBrowser1;
    page.UserFollows("/run/page.htm#one");
    page.UserFollows("/run/page.htm#two");
    platform.Click(help.Command1);
    EXPECT_EQ(page.LocationURL(), "/run/page.htm#one");
    platform.Click(help.Command2);
    EXPECT_EQ(page.LocationURL(), "/run/page.htm#two");
    platform.Click(help.Command2); // at the end of the history
    EXPECT_EQ(page.LocationURL(), "/run/page.htm#two");

    platform.Click(help.Command1);
    platform.Click(help.Command1);
    EXPECT_EQ(page.LocationURL(), "/run/page.htm");
    platform.Click(help.Command2); // there is a step forward, but no anchor on show
    EXPECT_EQ(page.LocationURL(), "/run/page.htm");
}

TEST_F(SmallForms, HelpFitsItsPageToTheWindowWhereThatIsPossible)
{
    help.Show();
    help.FeedResize({9000, 6000});
    EXPECT_EQ(help.WebBrowser1.Width(), 9000);
    EXPECT_EQ(help.WebBrowser1.Height(), 6000 + 405 - 480 - 480);
    help.FeedResize({3000, 300});
    EXPECT_EQ(help.WebBrowser1.Width(), 3000);
    EXPECT_EQ(help.WebBrowser1.Height(), 6000 + 405 - 480 - 480) << "too low for any page";
}

TEST_F(SmallForms, HelpIsHiddenAndStaysLoadedHoweverItIsLeft)
{
    const std::vector<std::function<void()>> ways = {
        [this] { platform.Click(help.command3, RightButton); },
        [this] { help.FeedKey(DialogKey::Escape); },
        [this] { help.FeedClose(); },
    };
    for (const auto& leave : ways) {
        help.Show();
        leave();
        EXPECT_FALSE(help.IsShown());
        EXPECT_TRUE(help.IsLoaded());
    }
}

TEST_F(SmallForms, AboutWearsTheColoursOfTheMoment)
{
    about.Show();
    EXPECT_EQ(about.BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(about.AboutText.BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(about.Label1.BackColor(), Rgb(4, 5, 6));
    EXPECT_EQ(about.aboutok.BackColor(), Rgb(4, 5, 6));
    about.Hide();
    dress.SchemeColors[BackgroundSlot] = White;
    about.Show();
    EXPECT_EQ(about.BackColor(), White);
}

TEST_F(SmallForms, AboutClosesByItsButtonItsTextAndItsWindow)
{
    struct Way {
        std::function<void()> leave;
        bool staysLoaded;
    };
    const std::vector<Way> ways = {
        {[this] { platform.Click(about.aboutok); }, true},
        {[this] { about.FeedKey(DialogKey::Escape); }, true},
        {[this] { platform.Click(about.AboutText, RightButton); }, false},
        {[this] { about.FeedClose(); }, false},
    };
    for (const Way& way : ways) {
        platform.OnNextModal([&way](Form&) { way.leave(); });
        about.ShowModal(&table);
        EXPECT_FALSE(about.IsShown());
        EXPECT_EQ(about.IsLoaded(), way.staysLoaded);
    }
    EXPECT_EQ(platform.unscriptedModals, 0);
    EXPECT_EQ(forms.Modal(), nullptr);
}

} // namespace
} // namespace tessarine
