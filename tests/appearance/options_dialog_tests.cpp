// The options dialog and the three degrees of its effect.
#include "appearance_world.h"

#include <gtest/gtest.h>

#include <array>

namespace tessarine
{
namespace
{

class OptionsDialog : public testing::Test
{
protected:
    OptionsDialog()
    {
        world.module.SuitColor = {Black, Rgb(0, 0, 128), Rgb(0, 128, 0), Rgb(128, 128, 0),
                                  Rgb(128, 0, 0)};
        world.store.ReadScheme(world.module.SchemeFile);
        dialog.Show();
    }

    void Reopen()
    {
        dialog.command4.UserActivates();
        dialog.Show();
    }

    AppearanceWorld world;
    Form6& dialog = world.dialog;
    Module1& module = world.module;
};

TEST_F(OptionsDialog, OpensOnWhatIsInForce)
{
    EXPECT_EQ(dialog.ColPik1.SchemeColor(), Grey(60));
    EXPECT_EQ(dialog.ColPik2.SchemeColor(), Grey(220));
    EXPECT_EQ(dialog.BackColor(), Grey(60));
    EXPECT_EQ(dialog.Frame7.BackColor(), Grey(60));
    EXPECT_EQ(dialog.command3.BackColor(), Grey(80));
    EXPECT_EQ(dialog.NumCol[3].BackColor(), Rgb(128, 128, 0));
    EXPECT_EQ(dialog.NumCol[5].BackColor(), White);
    EXPECT_EQ(dialog.List2.SelectedText(), "Arial") << "found from \"arial\"";
    EXPECT_TRUE(dialog.Check1.Value());
    EXPECT_EQ(module.SuitColor[0], Black) << "nothing was selected, so the picker's start wrote nowhere";

    dialog.ContrastV.UserSets(140);
    dialog.List2.Select(2);
    module.CardFont = "No Such Font";
    const auto previewed = module.SchemeColors;
    Reopen();
    EXPECT_EQ(dialog.ContrastV.Value(), 100);
    EXPECT_EQ(module.SchemeColors, previewed) << "the slider goes home in silence";
    EXPECT_EQ(dialog.List2.Selected(), 2U);
    EXPECT_EQ(dialog.Label1.Font().name, "No Such Font");
}

TEST_F(OptionsDialog, ASelectedOptionTakesThePanelColourAtTheNextOpening)
{
    dialog.NumCol[2].UserPicks();
    EXPECT_EQ(dialog.ColPik2.SchemeColor(), Rgb(0, 128, 0));
    Reopen();
    EXPECT_EQ(module.SuitColor[2], Grey(220));
    EXPECT_EQ(dialog.NumCol[2].BackColor(), Grey(220));
    module.SuitColor[2] = Black; // with the picker already there, no second time
    Reopen();
    EXPECT_EQ(module.SuitColor[2], Black);
}

TEST_F(OptionsDialog, APreviewPaintsTheDialogAlone)
{
    dialog.ColPik1.hsrRed.UserSets(90);
    EXPECT_EQ(module.Background(), Rgb(90, 60, 60));
    EXPECT_EQ(dialog.BackColor(), Grey(60)) << "a colour alone shows at View";
    dialog.showsch.UserActivates();
    EXPECT_EQ(dialog.BackColor(), Rgb(90, 60, 60));
    EXPECT_EQ(dialog.showsch.BackColor(), Rgb(58, 28, 28));
    dialog.ContrastV.UserSets(200);
    EXPECT_EQ(dialog.showsch.BackColor(), Rgb(26, 1, 1));
    EXPECT_EQ(world.repaints, 0);

    // Only a stored scheme reaches the table.
    dialog.command3.UserActivates();
    EXPECT_EQ(world.repaints, 1);
    EXPECT_EQ(module.Background(), Grey(60));
    EXPECT_EQ(module.SchemeColors[5], Grey(48));
    EXPECT_EQ(module.SchemeFile, "grey.col");
}

TEST_F(OptionsDialog, PickingASchemeKeepsItsColoursOnlyWithTheSliderAtHome)
{
    world.PickScheme("slate");
    EXPECT_EQ(module.Button(), Grey(100));
    EXPECT_EQ(module.SchemeColors[3], Grey(90)) << "as the file has it";
    EXPECT_EQ(dialog.ColPik1.SchemeColor(), Grey(80));
    EXPECT_EQ(dialog.command4.BackColor(), Grey(100));
    EXPECT_EQ(module.SchemeFile, "grey.col") << "until Apply";

    module.SchemeFile = "slate.col";
    dialog.ContrastV.UserSets(120);
    world.PickScheme("grey");
    EXPECT_EQ(dialog.ContrastV.Value(), 100);
    EXPECT_EQ(module.Background(), Grey(60));
    EXPECT_EQ(module.Button(), Grey(28)) << "made anew from the background";

    dialog.command3.UserActivates();
    EXPECT_EQ(module.SchemeFile, "grey.col");
    EXPECT_EQ(module.Button(), Grey(80));
}

TEST_F(OptionsDialog, AClickBesideTheSchemesFindsNone)
{
    dialog.List1.UserReleasesOnNothing();
    EXPECT_EQ(world.LastMessage(), "Color Scheme: .col not found");
    EXPECT_EQ(module.SchemeFile, "default.col");
    EXPECT_EQ(module.Background(), Black);
    EXPECT_EQ(dialog.BackColor(), Black);
    EXPECT_EQ(dialog.List1.ForeColor(), White) << "the way back can be read";
}

TEST_F(OptionsDialog, CardColoursAreTakenOverAtOnceByBothGroups)
{
    dialog.NumCol[2].UserPicks();
    dialog.ColPik2.SetSchemeColor(Rgb(1, 2, 3));
    dialog.command4.UserActivates();
    EXPECT_EQ(module.SuitColor[2], Rgb(1, 2, 3));
    EXPECT_EQ(world.repaints, 0);

    dialog.NumCol[5].UserPicks();
    EXPECT_TRUE(dialog.NumCol[2].Value()) << "the options of two frames are two groups";
    EXPECT_EQ(module.SuitColor[2], White) << "the numbers' colour went into the picker, and on to both";
    dialog.NumCol[4].UserPicks();
    EXPECT_EQ(module.CardTextColor, Rgb(128, 0, 0));
    EXPECT_EQ(dialog.NumCol[5].BackColor(), Rgb(128, 0, 0));
    EXPECT_EQ(module.SuitColor[2], White);
}

TEST_F(OptionsDialog, TheSoundSwitchPlaysWhenItGoesOn)
{
    dialog.Check1.UserToggles();
    EXPECT_EQ(module.SoundOn, No);
    EXPECT_TRUE(world.platform.sounds.empty());
    dialog.Check1.UserToggles();
    EXPECT_EQ(module.SoundOn, Yes);
    EXPECT_EQ(world.platform.sounds, std::vector<std::string>{"_soundonoff.wav"});
}

TEST_F(OptionsDialog, AFontIsASampleUntilApply)
{
    EXPECT_TRUE(dialog.Label1.Font().bold);
    dialog.List2.UserPicks(1);
    EXPECT_EQ(dialog.Label1.Font().name, "Courier New");
    EXPECT_FALSE(dialog.Label1.Font().bold);
    EXPECT_EQ(module.CardFont, "arial");
    dialog.command3.UserActivates();
    EXPECT_EQ(module.CardFont, "Courier New");
    EXPECT_TRUE(dialog.IsShown());
}

TEST_F(OptionsDialog, ResetAsksFirstAndAppliesTheSelectedScheme)
{
    world.PickScheme("slate");
    world.platform.AnswerModal("No");
    world.dialog.cmdreset.UserActivates();
    EXPECT_EQ(world.repaints, 0);
    EXPECT_EQ(module.SuitColor[3], Rgb(128, 128, 0));

    dialog.List2.UserPicks(1);
    module.CardTextColor = Rgb(9, 9, 9);
    world.platform.AnswerModal("Yes");
    world.dialog.cmdreset.UserActivates();
    EXPECT_EQ(module.SuitColor, (std::array<Colour, Suits>{Black, Rgb(0, 0, 128), Rgb(0, 128, 0),
                                                           Rgb(0, 128, 128), Rgb(128, 0, 0)}));
    EXPECT_EQ(module.CardTextColor, White);
    EXPECT_EQ(module.CardFont, "Arial");
    EXPECT_EQ(module.SchemeFile, "slate.col");
    EXPECT_EQ(world.repaints, 1);
}

TEST_F(OptionsDialog, ClosingByFrameOrEscapeHidesItWithItsSelections)
{
    world.PickScheme("slate");
    dialog.FeedClose();
    EXPECT_FALSE(dialog.IsShown());
    dialog.Show();
    EXPECT_EQ(dialog.List1.SelectedText(), "slate");
    dialog.FeedKey(DialogKey::Escape);
    EXPECT_FALSE(dialog.IsShown());
    EXPECT_TRUE(dialog.IsLoaded());
}

} // namespace
} // namespace tessarine
