#include "headless/headless_platform.h"
#include "kit/about_box.h"
#include "kit/help_viewer.h"
#include "kit/message_box.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace tessarine
{
namespace
{

struct KitForms : testing::Test {
    KitForms()
    {
        dress.SchemeColors[ButtonSlot] = Rgb(4, 5, 6);
        help.Tag = "page.htm";
        table.Show();
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    Dress dress;
    Form table{forms, "Table", {3000, 3000}};
    MsgForm box{forms};
    Form4 help{forms, dress};
    Browser& page = help.WebBrowser1;
    AboutForm about{forms, dress};
};

struct MessageBox : KitForms {
    /// Opens the box and presses the button with this caption.
    Whole Ask(const std::string& message, std::string_view style, const std::string& press = "Ok")
    {
        platform.AnswerModal(press);
        return box.MsgboxA(message, style);
    }

    /// The buttons, with a star at the one that Escape presses, and the numbers of the icons.
    std::string Look() const
    {
        std::string shown;
        for (const BoxControl& button : box.cmd) {
            if (button.Visible()) {
                shown += button.Caption() + (box.CancelControl == &button ? "* " : " ");
            }
        }
        for (std::size_t i = 0; i < MsgForm::IconCount; ++i) {
            // The last one is for a picture that nobody has given yet.
            const bool isSeen = box.icons[i].Visible() && (i == 10 || box.icons[i].Shown() != nullptr);
            shown += isSeen ? std::to_string(i) + ' ' : "";
        }
        return shown;
    }
};

TEST_F(MessageBox, ShowsTheButtonsAndIconsOfItsStyleAndLetsEscapeChangeNothing)
{
    using Case = std::tuple<const char*, std::string, std::string, Whole>;
    const std::vector<Case> cases = {
        {"vbQuestion + VBYESNO", "Yes No* 0 ", "Yes", AnswerYes},
        {"vbhappy+vbtrash+vbcustom", "Ok* 5 6 10 ", "Ok", AnswerOk},
        {"+vbnonsense", "Ok* ", "Ok", AnswerOk},
        {"vbnormal", "Ok* ", "Ok", 0},
        {"vbyes+vbcancel+vbprint+vblighton", "Yes Cancel* 7 8 ", "Yes", AnswerYes},
        {"vbokcancel+vbexclamation", "Ok Cancel* 1 ", "Ok", AnswerOk},
        {"vbabort+vbignore+vbokonly", "Abort Ignore Ok ", "Ignore", 5},
        {"vbretrycancel", "Retry Cancel* ", "Cancel", 2},
        {"vbretry+vberror+vbcritical", "Retry 3 4 ", "Retry", 4},
        {"vbabortretryignore", "Abort Retry Ignore ", "Abort", 3},
        {"vbno+vbno", "No* No ", "No", AnswerNo},
        {"vbyesnocancel+vbok", "Yes No Cancel* ", "Cancel", 2}}; // there is no fourth
    for (const auto& [style, shown, press, answer] : cases) {
        EXPECT_EQ(Ask("Hello", style, press), answer) << style;
        EXPECT_EQ(Look(), shown) << style;
    }
}

TEST_F(MessageBox, GrowsWithItsTextAndCentresItsButtons)
{
    const std::string longLine(300, 'm');
    const Twips longest = 2 * 840 + platform.TextSize(box.Font(), longLine).width;
    for (const std::string message : {"Hi", "one\r\ntwo\r\nthree", longLine.c_str()}) {
        Ask(message, "vbyesno", "No");
        const Twips bottom = 300 + platform.TextSize(box.Font(), message).height + 120 + 120;
        const Twips width = message == longLine ? longest : 3 * 885; // never narrower
        EXPECT_EQ(box.cmd[1].Top(), bottom);
        EXPECT_NEAR(box.OuterHeight(), bottom + 350 + 600, TwipsPerPixel);
        EXPECT_NEAR(box.OuterWidth(), width, TwipsPerPixel);
        EXPECT_EQ(box.cmd[0].Left(), width / 2 - 885);
        EXPECT_EQ(box.cmd[1].Left(), width / 2);
    }
}

TEST_F(MessageBox, IsLeftByItsButtonsAloneAndLetsEventsRun)
{
    bool ranBehindIt = false;
    platform.OnNextModal([&](Form& form) {
        form.FeedClose();
        EXPECT_TRUE(form.IsShown());
        form.FeedKey(DialogKey::Escape);
        platform.meanwhile.emplace_back([&] { ranBehindIt = forms.Modal() == nullptr; });
    });
    EXPECT_EQ(box.MsgboxA("Exit?", "vbyesno"), AnswerNo);
    EXPECT_TRUE(ranBehindIt);
}

TEST_F(KitForms, LoadTheirPageFitItAndWearTheColoursOfTheMomentAtEachActivation)
{
    help.Show();
    page.UserFollows({"page.htm", "rules"});
    dress.SchemeColors[BackgroundSlot] = White;
    table.FeedActivation();
    EXPECT_EQ(help.BackColor(), Black) << "not before its next activation";
    help.FeedActivation();
    help.Show(); // the command again, with the form still there
    EXPECT_EQ(page.Loads(), 3);
    EXPECT_EQ(page.LocationURL(), "page.htm");
    about.Show();
    EXPECT_EQ(help.BackColor(), White);
    EXPECT_EQ(help.command3.BackColor(), Rgb(4, 5, 6));
    EXPECT_EQ(about.Label1.BackColor(), Rgb(4, 5, 6));
    help.FeedResize({9000, 6000});
    help.FeedResize({3000, 300}); // too low for any page
    EXPECT_EQ(page.Width(), 3000);
    EXPECT_EQ(page.Height(), 6000 + 405 - 480 - 480);
}

TEST_F(KitForms, HelpStepsThroughItsHistoryOnlyFromAnAnchor)
{
    help.Show();
    const auto after = [&](PushButton& button) {
        platform.Click(button);
        return page.LocationURL();
    };
    page.Navigate("page.htm"); // the same address is no new step, here and later
    page.UserFollows({"page.htm", "one"});
    page.UserFollows({"page.htm", "two"});
    page.UserFollows({"page.htm", "two"});
    after(help.Command1);
    page.UserFollows({"page.htm", "three"}); // what lay ahead is gone
    EXPECT_EQ(after(help.Command1), "page.htm#one");
    EXPECT_EQ(after(help.Command2), "page.htm#three");
    EXPECT_EQ(after(help.Command2), "page.htm#three");
    after(help.Command1);
    EXPECT_EQ(after(help.Command1), "page.htm");
    EXPECT_EQ(after(help.Command2), "page.htm") << "a step forward, but no anchor on show";
    page.Navigate("/100%/#1/page.htm"); // that is no anchor
    EXPECT_EQ(after(help.Command1), "/100%25/%231/page.htm");
    page.UserFollows({"/100%/#1/page.htm", "one"});
    EXPECT_EQ(page.LocationURL(), "/100%25/%231/page.htm#one");
}

TEST_F(KitForms, AreLeftByTheirButtonsEscapeAndTheirWindow)
{
    const auto staysLoaded = [](Form& form, auto&& leave) {
        form.Show();
        leave();
        EXPECT_FALSE(form.IsShown());
        return form.IsLoaded();
    };
    EXPECT_TRUE(staysLoaded(help, [&] { platform.Click(help.command3, RightButton); }));
    EXPECT_TRUE(staysLoaded(help, [&] { help.FeedKey(DialogKey::Escape); }));
    EXPECT_TRUE(staysLoaded(help, [&] { help.FeedClose(); }));
    EXPECT_TRUE(staysLoaded(about, [&] { about.FeedKey(DialogKey::Escape); }));
    EXPECT_FALSE(staysLoaded(about, [&] { platform.Click(about.AboutText, RightButton); }));
    EXPECT_FALSE(staysLoaded(about, [&] { about.FeedClose(); }));
}

} // namespace
} // namespace tessarine
