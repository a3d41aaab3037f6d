#include "kit/message_box.h"

#include "headless/headless_platform.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tessarine
{
namespace
{

constexpr const char* ThreeLines = "one\r\ntwo\r\nthree";

/// What a message box showed while it was open.
struct Shown {
    std::vector<std::string> buttons;
    std::vector<std::size_t> icons;
    std::vector<Twips> lefts;
    Twips buttonTop = 0;
    Size outer;
    std::string text;
    const Control* cancel = nullptr;
};

class MessageBox : public testing::Test
{
protected:
    MessageBox() { box.SetCaption("Game"); }

    Shown Look() const
    {
        Shown shown;
        for (const BoxControl& button : box.cmd) {
            if (button.Visible()) {
                shown.buttons.push_back(button.Caption());
                shown.lefts.push_back(button.Left());
                shown.buttonTop = button.Top();
            }
        }
        for (std::size_t i = 0; i < MsgForm::IconCount; ++i) {
            if (box.icons[i].Visible()) {
                shown.icons.push_back(i);
            }
        }
        shown.outer = {box.OuterWidth(), box.OuterHeight()};
        shown.text = box.Label1.Caption();
        shown.cancel = box.CancelControl;
        return shown;
    }

    /// Opens the box, looks at it and presses the button with this caption.
    Whole Ask(const std::string& message, std::string_view style, const std::string& press)
    {
        platform.OnNextModal([this, press](Form& form) {
            seen = Look();
            platform.Click(*HeadlessPlatform::FindShown(form, press));
        });
        return box.MsgboxA(message, style);
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    MsgForm box{forms};
    Shown seen;
};

using Texts = std::vector<std::string>;
using Places = std::vector<std::size_t>;

TEST_F(MessageBox, ShowsTheIconAndTheButtonsOfItsStyle)
{
    EXPECT_EQ(Ask("Exit?", "vbQuestion + vbYesNo", "Yes"), AnswerYes);
    EXPECT_EQ(seen.buttons, (Texts{"Yes", "No"}));
    EXPECT_EQ(seen.icons, Places{0});
    EXPECT_EQ(seen.text, "Exit?");
    EXPECT_EQ(Ask("Exit?", "vbquestion+vbyesno", "No"), AnswerNo);

    EXPECT_EQ(Ask("Saved", "VBOK+VBINFORMATION", "Ok"), AnswerOk);
    EXPECT_EQ(seen.buttons, Texts{"Ok"});
    EXPECT_EQ(seen.icons, Places{2});

    EXPECT_EQ(Ask("Done", "vbhappy+vbtrash+vbcustom", "Ok"), AnswerOk);
    EXPECT_EQ(seen.icons, (Places{5, 6, 10})) << "icons don't replace each other";
    EXPECT_EQ(seen.buttons, Texts{"Ok"});
}

TEST_F(MessageBox, PassesOverWordsThatItDoesNotKnow)
{
    for (const char* style : {"", "+", "vbok+vbnonsense", "vbsomething"}) {
        EXPECT_EQ(Ask("Hello", style, "Ok"), AnswerOk) << style;
        EXPECT_EQ(seen.buttons, Texts{"Ok"}) << style;
        EXPECT_TRUE(seen.icons.empty()) << style;
    }
}

TEST_F(MessageBox, GivesEachButtonItsOwnNumber)
{
    EXPECT_EQ(Ask("", "vbnormal", "Ok"), 0);
    EXPECT_EQ(Ask("", "vbok+vbcancel", "Cancel"), 2);
    EXPECT_EQ(seen.buttons, (Texts{"Ok", "Cancel"}));
    EXPECT_EQ(Ask("", "vbretrycancel", "Retry"), 4);
    EXPECT_EQ(Ask("", "vbabortretryignore", "Abort"), 3);
    EXPECT_EQ(Ask("", "vbabortretryignore", "Ignore"), 5);
    EXPECT_EQ(Ask("", "vbyesnocancel+vbok", "Cancel"), 2);
    EXPECT_EQ(seen.buttons, (Texts{"Yes", "No", "Cancel"})) << "there is no fourth";
}

TEST_F(MessageBox, CentresItsButtonsInABoxNoNarrowerThanThree)
{
    Ask("Hi", "vbok", "Ok");
    EXPECT_NEAR(seen.outer.width, 2655, TwipsPerPixel);
    EXPECT_EQ(seen.lefts, std::vector<Twips>{885});
    Ask("Hi", "vbyesno", "No");
    EXPECT_EQ(seen.lefts, (std::vector<Twips>{442.5, 1327.5}));
    Ask("Hi", "vbyesnocancel", "No");
    EXPECT_EQ(seen.lefts, (std::vector<Twips>{0, 885, 1770}));
}

TEST_F(MessageBox, GrowsWithItsText)
{
    const Size line = platform.TextSize(box.Font(), "Hi");
    Ask("Hi", "vbok", "Ok");
    const Shown little = seen;
    EXPECT_EQ(little.buttonTop, 300 + line.height + 120 + 120);
    EXPECT_NEAR(little.outer.height, little.buttonTop + 350 + 600, TwipsPerPixel);

    Ask(ThreeLines, "vbok", "Ok");
    EXPECT_NEAR(seen.buttonTop - little.buttonTop, 2 * line.height, 1e-6);
    EXPECT_NEAR(seen.outer.height - little.outer.height, 2 * line.height, TwipsPerPixel);
    EXPECT_EQ(seen.outer.width, little.outer.width);

    const std::string longLine(300, 'm');
    Ask(longLine, "vbok", "Ok");
    const Twips width = 2 * 840 + platform.TextSize(box.Font(), longLine).width;
    EXPECT_NEAR(seen.outer.width, width, TwipsPerPixel);
    EXPECT_NEAR(seen.lefts[0], (width - 885) / 2, TwipsPerPixel);
}

TEST_F(MessageBox, HandsItsColoursAndFontOnAtEveryCall)
{
    box.SetBackColor(Rgb(1, 2, 3));
    box.SetForeColor(Rgb(4, 5, 6));
    box.SetFont({"Courier New", 9, true});
    box.ButtonColour = Rgb(7, 8, 9);
    Ask("Hi", "vbok", "Ok");
    EXPECT_EQ(box.Label1.BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(box.Label1.ForeColor(), Rgb(4, 5, 6));
    EXPECT_EQ(box.Label1.Font(), box.Font());
    EXPECT_EQ(box.cmd[2].BackColor(), Rgb(7, 8, 9));
    EXPECT_EQ(box.cmd[2].Font(), box.Font());

    platform.AnswerModal("Ok");
    box.MsgboxA("Hi", "vbok", Rgb(10, 11, 12), White);
    Ask("Hi", "vbok", "Ok");
    EXPECT_EQ(box.Label1.BackColor(), Rgb(10, 11, 12)) << "a colour given stays";
    EXPECT_EQ(box.cmd[0].BackColor(), White);
}

TEST_F(MessageBox, LetsEscapeGiveOnlyTheAnswerThatChangesNothing)
{
    Ask("", "vbyesno", "Yes");
    EXPECT_EQ(seen.cancel, &box.cmd[1]);
    Ask("", "vbyesnocancel", "Yes");
    EXPECT_EQ(seen.cancel, &box.cmd[2]);
    Ask("", "", "Ok");
    EXPECT_EQ(seen.cancel, &box.cmd.front());
    Ask("", "vbabortretryignore", "Retry");
    EXPECT_EQ(seen.cancel, nullptr);

    platform.OnNextModal([](Form& form) { form.FeedKey(DialogKey::Escape); });
    EXPECT_EQ(box.MsgboxA("Exit?", "vbyesno"), AnswerNo);
}

TEST_F(MessageBox, KeepsOtherFormsFromInputAndIsLeftByItsButtonsAlone)
{
    Form table(forms, "Table", {3000, 3000});
    table.Show();
    platform.OnNextModal([&](Form& form) {
        form.FeedClose();
        EXPECT_TRUE(form.IsShown());
        EXPECT_FALSE(table.TakesInput());
        platform.Click(box.cmd.front());
    });
    EXPECT_EQ(box.MsgboxA("Hi"), AnswerOk);
    EXPECT_EQ(forms.Active(), &table);
    EXPECT_TRUE(box.IsLoaded());
}

TEST_F(MessageBox, LetsEventsRunWhenItIsClosed)
{
    bool ranBehindIt = false;
    platform.OnNextModal([&](Form&) {
        platform.Click(box.cmd.front());
        platform.meanwhile.emplace_back([&] { ranBehindIt = forms.Modal() == nullptr; });
    });
    box.MsgboxA("Hi");
    EXPECT_TRUE(ranBehindIt);
}

} // namespace
} // namespace tessarine
