// Colour schemes as they are made, read and changed on the disk, and the dialog that does it.
#include "appearance/scheme_file.h"
#include "runtime/files.h"
#include "support/game_world.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

/// An entry whose slots are grey, each 10 lighter than the one before: slot 2 is 60, slot 4 is 80.
std::string GreyEntry(const std::string& nameLine, int darkest = 40)
{
    std::string text = nameLine + "\r\n";
    for (int slot = 0; slot < 13; ++slot) {
        const std::string grey = NumberText(darkest + 10 * slot);
        text += grey + ';' + grey + ';' + grey + "\r\n";
    }
    return text;
}

constexpr Colour Grey(int level)
{
    return Rgb(level, level, level);
}

/// The options of a program, over three grey schemes.
struct Schemes : testing::Test {
    Schemes()
    {
        AllCol() = GreyEntry("default.col", 100) + GreyEntry("grey.col") + GreyEntry("slate.col", 60);
        module.SchemeFile = "grey.col";
        store.ReadScheme(module.SchemeFile);
        dialog.FillSchemeList();
    }

    std::string& AllCol() { return platform.files[module.AllColFile]; }
    void PickScheme(const std::string& name)
    {
        dialog.List1.UserPicks(*dialog.List1.Items().Find(name));
    }
    /// Presses a button of the dialog, with this answer to what it asks, and tells what it told.
    std::string Press(BoxControl& button, bool agrees = true)
    {
        platform.plainAnswers = {agrees};
        platform.plainMessages.emplace_back();
        static_cast<Control&>(button).UserActivates();
        return platform.plainMessages.back();
    }

    test::GameWorld world;
    HeadlessPlatform& platform = world.platform;
    Module1& module = world.form.shared;
    SchemeStore& store = world.form.schemeStore;
    MsgForm& messageBox = world.form.msgForm;
    Form6& dialog = world.form.form6;
};

TEST_F(Schemes, AreReadWithTheirEdgesDerivedAndPreviewedAsTheFileStands)
{
    const auto edges = [this] { return std::pair(module.SchemeColors[3], module.SchemeColors[5]); };
    const auto read = [&](const std::string& background, const std::string& button) {
        AllCol() =
            "edge.col\n1\n2\n" + background + "\n70;70;70\n" + button + "\n90;90;90\n" + GreyEntry("");
        store.ReadScheme("edge.col");
        return edges();
    };
    EXPECT_EQ(read(" 224; 225; 223", "32;33;31; 7"), std::pair(Rgb(255, 254, 255), Rgb(8, 1, 8)));
    // Components too large count whole for the edges, negative and missing ones as 0.
    EXPECT_EQ(read("300;-4", "400"), std::pair(Rgb(254, 32, 32), Rgb(255, 8, 8)));
    EXPECT_EQ(store.PreviewScheme("edge.col"), Rgb(255, 0, 0));
    EXPECT_EQ(edges(), std::pair(Grey(70), Grey(90)));
    platform.files.clear();
    EXPECT_EQ(store.PreviewScheme("DEFAULT.col"), White) << "from no file";
    EXPECT_EQ(edges(), std::pair(Black, Grey(90)));
    EXPECT_EQ(module.SchemeFile, "grey.col");
}

TEST_F(Schemes, ThatAreNotThereFallBackToTheDefaultName)
{
    EXPECT_EQ(store.PreviewScheme("gone.col"), Black);
    EXPECT_EQ(platform.plainMessages.back(), "Color Scheme: gone.col not found");
    EXPECT_EQ(module.SchemeFile, "default.col");
    // The case counts, and an entry that breaks off is none, though what was read of it stays.
    const auto before = module.SchemeColors;
    AllCol().resize(AllCol().size() - 20);
    for (const std::string name : {"Grey.col", "slate.col"}) {
        EXPECT_EQ(module.SchemeColors, before);
        module.SchemeFile = name;
        store.ReadScheme(name);
        EXPECT_EQ(messageBox.Label1.Caption(), "Colour Scheme: " + name + " not found");
        EXPECT_EQ(module.SchemeFile, "default.col");
    }
    EXPECT_EQ(module.Background(), Grey(80));
}

TEST_F(Schemes, AreAddedUnlessTheNameBeginsATakenOne)
{
    const std::string before = AllCol();
    platform.typedAnswers = {"", "GREY", "sl", "Greyer", "one", "two"};
    PickScheme("slate");
    for (const char* const told : {"Enter new Color Scheme name", "Color Scheme: GREY already exists",
                                   "Color Scheme: sl already exists", "Color Scheme: Greyer added"}) {
        EXPECT_EQ(Press(dialog.addsch), told);
    }
    EXPECT_EQ(AllCol(), before + EntryText("greyer.col", module));
    EXPECT_EQ(dialog.List1.Items().Find("greyer"), 2U);
    platform.files.clear(); // the file is made if need be
    Press(dialog.addsch);
    AllCol().resize(AllCol().size() - LineEnd.size()); // and its last line mended
    Press(dialog.addsch);
    EXPECT_EQ(AllCol(), EntryText("one.col", module) + EntryText("two.col", module));
}

TEST_F(Schemes, AreReplacedInTheirPlaceAndDeleted)
{
    EXPECT_EQ(Press(dialog.repsch), "Select a color scheme to replace");
    EXPECT_EQ(Press(dialog.delsch), "Select a color scheme to delete");
    PickScheme("grey");
    MakeScheme(module, Rgb(1, 2, 3), 100);
    const std::string made = EntryText("grey.col", module);
    platform.meanwhile.emplace_back(
        [this] { static_cast<Control&>(dialog.delsch).UserActivates(); }); // behind the question
    EXPECT_EQ(Press(dialog.repsch, false), "Replace color scheme: grey");
    EXPECT_EQ(platform.plainMessages.size(), 6U);
    EXPECT_EQ(Press(dialog.repsch), "Color Scheme: grey.col replaced");
    EXPECT_EQ(AllCol(), GreyEntry("default.col", 100) + made + GreyEntry("slate.col", 60));
    EXPECT_EQ(platform.files["/app/newall.cox"], AllCol());

    module.SchemeFile = "GREY.col";
    EXPECT_EQ(Press(dialog.delsch), "Cannot delete currently active Color Scheme");
    PickScheme("slate");
    EXPECT_EQ(Press(dialog.delsch), "Color Scheme: slate.col deleted");
    EXPECT_EQ(AllCol(), GreyEntry("default.col", 100) + made);
    EXPECT_EQ(dialog.List1.Items().Count(), 2U);
}

TEST_F(Schemes, AreListedByTheirNamesAndAShortEntryIsRefused)
{
    const std::string text = GreyEntry("Sea.col") + ".col\r\nx.col.col\r\nshort.col\r\n 1; 1; 1\r\n";
    EXPECT_EQ(SchemeNames(text), (std::vector<std::string>{"Sea", "", "x", "short"}));
    AllCol() = text;
    dialog.FillSchemeList();
    PickScheme("short");
    EXPECT_EQ(Press(dialog.repsch), "Error in updating Color Scheme:\r\nshort.col");
    PickScheme("Sea"); // no entry goes by its name in small letters
    EXPECT_EQ(Press(dialog.delsch), "Color Scheme: sea.col deleted");
    EXPECT_EQ(AllCol(), text);
}

struct OptionsDialog : Schemes {
    OptionsDialog()
    {
        module.SuitColor = {Black, Rgb(0, 0, 128), Rgb(0, 128, 0), Rgb(128, 128, 0), Rgb(128, 0, 0)};
        dialog.Show();
    }
};

TEST_F(OptionsDialog, OpensOnWhatIsInForce)
{
    EXPECT_EQ(dialog.Frame7.BackColor(), Grey(60));
    EXPECT_EQ(dialog.NumCol[3].BackColor(), Rgb(128, 128, 0));
    EXPECT_EQ(dialog.List2.SelectedText(), "Arial") << "found from \"arial\"";
    EXPECT_EQ(module.SuitColor[0], Black) << "nothing was selected, so the picker's start wrote nowhere";
    dialog.ContrastV.UserSets(140);
    module.CardFont = "No Such Font";
    const auto previewed = module.SchemeColors;
    Press(dialog.command4);
    dialog.Show();
    EXPECT_EQ(dialog.ContrastV.Value(), 100);
    EXPECT_EQ(module.SchemeColors, previewed) << "the slider goes home in silence";
    EXPECT_EQ(dialog.Label1.Font().name, "No Such Font");
    module.CardFont = "courier new";
    Press(dialog.command4);
    dialog.Show();
    EXPECT_EQ(dialog.List2.Items().At(dialog.List2.TopIndex()), "Courier New") << "it is in sight";
}

TEST_F(OptionsDialog, APreviewPaintsTheDialogAlone)
{
    dialog.ColPik1.hsrRed.UserSets(90);
    EXPECT_EQ(module.Background(), Rgb(90, 60, 60)) << "as it would be stored";
    EXPECT_EQ(dialog.BackColor(), Grey(60)) << "a colour alone shows at View";
    Press(dialog.showsch);
    EXPECT_EQ(dialog.BackColor(), Rgb(90, 60, 60));
    dialog.ContrastV.UserSets(200);
    EXPECT_EQ(dialog.showsch.BackColor(), Rgb(26, 1, 1));
    EXPECT_EQ(world.table.Picture2.BackColor(), Rgb(120, 170, 120));
    Press(dialog.command3); // only a stored scheme reaches the table
    EXPECT_EQ(world.table.Picture2.BackColor(), Grey(60));
    EXPECT_EQ(world.form.cmdundo.BackColor(), Grey(80));
    EXPECT_EQ(messageBox.ButtonColour, Grey(80));
}

TEST_F(OptionsDialog, PickingASchemeKeepsItsColoursOnlyWithTheSliderAtHome)
{
    PickScheme("slate");
    EXPECT_EQ(module.SchemeColors[3], Grey(90)) << "as the file has it";
    dialog.ContrastV.UserSets(120);
    PickScheme("grey");
    EXPECT_EQ(dialog.ContrastV.Value(), 100);
    EXPECT_EQ(module.Button(), Grey(28)) << "made anew from the background";
    PickScheme("slate");
    dialog.FeedClose(); // hidden with its selections
    EXPECT_FALSE(dialog.IsShown());
    dialog.Show();
    dialog.FeedKey(DialogKey::Escape);
    EXPECT_FALSE(dialog.IsShown());
    Press(dialog.command3);
    EXPECT_EQ(module.SchemeFile, "slate.col");
    dialog.List1.Select(std::nullopt);
    dialog.List1.UserReleasesOnNothing();
    EXPECT_EQ(platform.plainMessages.back(), "Color Scheme: .col not found");
}

TEST_F(OptionsDialog, CardColoursAndSoundAreTakenOverAtOnce)
{
    dialog.NumCol[2].UserPicks();
    dialog.ColPik2.SetSchemeColor(Rgb(1, 2, 3));
    EXPECT_EQ(dialog.NumCol[2].BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(module.SuitColor[2], Rgb(1, 2, 3));
    dialog.NumCol[5].UserPicks();
    EXPECT_TRUE(dialog.NumCol[2].Value()) << "the options of two frames are two groups";
    EXPECT_EQ(module.SuitColor[2], White) << "the numbers' colour went into the picker, and on to both";
    dialog.NumCol[4].UserPicks();
    EXPECT_EQ(module.CardTextColor, Rgb(128, 0, 0));
    EXPECT_EQ(module.SuitColor[2], White);
    Press(dialog.command4);
    dialog.Show();
    EXPECT_EQ(module.SuitColor[4], Grey(220)) << "a selected option takes the panel's colour";
    for (const auto expected : {No, Yes}) {
        dialog.Check1.UserToggles();
        EXPECT_EQ(module.SoundOn, expected);
    }
    EXPECT_EQ(platform.sounds, std::vector<std::string>{"/app/_soundonoff.wav"});
}

TEST_F(OptionsDialog, AFontIsASampleUntilApplyAndResetAsksFirst)
{
    dialog.List2.UserPicks(1);
    EXPECT_EQ(dialog.Label1.Font(), (Font{.name = "Courier New", .size = 24}));
    EXPECT_EQ(module.CardFont, "arial");
    world.Arrange({.stock = {30}, .piles = {{0}}});
    Press(dialog.command3);
    EXPECT_EQ(module.CardFont, "Courier New");
    EXPECT_EQ(world.table.cardy[0].Font().name, "Courier New") << "a finished pile is drawn anew";
    PickScheme("slate");
    platform.AnswerModal("No");
    Press(dialog.cmdreset);
    EXPECT_EQ(module.SuitColor[3], Rgb(128, 128, 0));
    module.CardTextColor = Black;
    platform.AnswerModal("Yes");
    Press(dialog.cmdreset);
    EXPECT_EQ(module.SuitColor[3], Rgb(0, 128, 128));
    EXPECT_EQ(module.CardTextColor, White);
    EXPECT_EQ(module.CardFont, "Arial");
    EXPECT_EQ(module.SchemeFile, "slate.col");
}

} // namespace
} // namespace tessarine
