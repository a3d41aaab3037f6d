// Colour schemes: as they are made, read, and changed on the disk.
#include "appearance_world.h"

#include "appearance/apply_scheme.h"
#include "appearance/readable_on.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tessarine
{
namespace
{

std::vector<Colour> ShiftedSlots(const Dress& dress)
{
    return {dress.SchemeColors.begin() + 3, dress.SchemeColors.begin() + 9};
}

TEST(MakeScheme, ShiftsTheBackgroundAndHoldsItWithinShades)
{
    Dress dress;
    MakeScheme(dress, Rgb(100, 150, 200), 100);
    EXPECT_EQ(ShiftedSlots(dress),
              (std::vector<Colour>{Rgb(1, 22, 72), Rgb(68, 118, 168), Rgb(36, 86, 136),
                                   Rgb(228, 244, 244), Rgb(132, 182, 232), Rgb(164, 214, 244)}));
    MakeScheme(dress, Rgb(100, 150, 200), 50);
    EXPECT_EQ(ShiftedSlots(dress),
              (std::vector<Colour>{Rgb(36, 86, 136), Rgb(84, 134, 184), Rgb(68, 118, 168),
                                   Rgb(164, 214, 244), Rgb(116, 166, 216), Rgb(132, 182, 232)}));
    EXPECT_EQ(dress.SchemeColors[9], Rgb(128, 0, 0));
    EXPECT_EQ(dress.SchemeColors[12], Rgb(0, 255, 0));
    MakeScheme(dress, Grey(100), 5);
    EXPECT_EQ(dress.Button(), Grey(98)) << "a shift of 1.6";
    MakeScheme(dress, Rgb(0, 255, 100), 0);
    EXPECT_EQ(ShiftedSlots(dress), std::vector<Colour>(6, Rgb(1, 244, 100)));
    EXPECT_EQ(dress.Background(), Rgb(0, 255, 100)) << "the background itself isn't held";
}

TEST(ReadableOn, StandsOutFromEveryGrey)
{
    const auto brightness = [](int grey) {
        return grey <= 10 ? grey / 255.0 / 12.92 : std::pow((grey / 255.0 + 0.055) / 1.055, 2.4);
    };
    for (int grey = 0; grey < 256; ++grey) {
        const double dark = ReadableOn(Grey(grey)) == Black ? 0.05 : brightness(grey) + 0.05;
        const double light = ReadableOn(Grey(grey)) == Black ? brightness(grey) + 0.05 : 1.05;
        EXPECT_GE(light / dark, 4.5) << grey;
    }
}

std::string EntryWith(const std::string& background, const std::string& button)
{
    std::string text = "edge.col\r\n 1; 1; 1\r\n 2; 2; 2\r\n" + background + "\r\nnonsense; 7\r\n" +
                       button + "\r\nx;y;z;4\r\n";
    for (int slot = 6; slot < 13; ++slot) {
        text += " 9; 9; 9; 9\r\n";
    }
    return text;
}

TEST(ReadScheme, DerivesTheEdgesFromWhatWasReadBeforeThem)
{
    AppearanceWorld world;
    world.AllCol() = EntryWith(" 224; 225; 223", "32;33;31");
    world.store.ReadScheme("edge.col");
    EXPECT_EQ(world.module.SchemeColors[3], Rgb(255, 254, 255));
    EXPECT_EQ(world.module.SchemeColors[5], Rgb(8, 1, 8));

    // Components too large count whole for the edges, negative and missing ones as 0.
    world.AllCol() = EntryWith("300;-4", "400");
    world.store.ReadScheme("edge.col");
    EXPECT_EQ(world.module.Background(), Rgb(255, 0, 0));
    EXPECT_EQ(world.module.SchemeColors[3], Rgb(254, 32, 32));
    EXPECT_EQ(world.module.SchemeColors[5], Rgb(255, 8, 8));
    EXPECT_EQ(world.platform.unscriptedModals, 0);
}

TEST(PreviewScheme, TakesTheFileAsItStandsAndTheDefaultFromNoFile)
{
    AppearanceWorld world;
    world.AllCol() = EntryWith("100; 2.5;3.5", "0;0;0");
    EXPECT_EQ(world.store.PreviewScheme("edge.col"), Rgb(100, 2, 4));
    EXPECT_EQ(world.module.SchemeColors[3], Rgb(0, 7, 0));
    EXPECT_EQ(world.module.SchemeColors[5], Black);
    EXPECT_EQ(world.module.SchemeColors[6], Rgb(9, 9, 9));

    world.platform.files.clear();
    EXPECT_EQ(world.store.PreviewScheme("DEFAULT.col"), White);
    EXPECT_EQ(world.module.Button(), White);
    EXPECT_EQ(world.module.SchemeColors[3], Black);
    EXPECT_EQ(world.module.SchemeColors[6], Rgb(9, 9, 9));
    EXPECT_EQ(world.module.SchemeFile, "grey.col");
    EXPECT_TRUE(world.platform.plainMessages.empty());
}

TEST(ReadingAScheme, ThatIsNotThereFallsBackToTheDefaultName)
{
    AppearanceWorld world;
    const auto before = world.module.SchemeColors;
    world.store.ReadScheme("Grey.col"); // the case counts
    EXPECT_EQ(world.messageBox.Label1.Caption(), "Colour Scheme: Grey.col not found");
    EXPECT_EQ(world.module.SchemeFile, "default.col");
    EXPECT_EQ(world.module.SchemeColors, before);

    world.module.SchemeFile = "grey.col";
    EXPECT_EQ(world.store.PreviewScheme("gone.col"), Black);
    EXPECT_EQ(world.LastMessage(), "Color Scheme: gone.col not found");
    EXPECT_EQ(world.module.SchemeFile, "default.col");

    // An entry that breaks off counts as not found, and what was read of it stays.
    std::string& text = world.AllCol();
    text.resize(text.size() - std::string(" 180; 180; 180\r\n").size());
    world.module.SchemeFile = "slate.col";
    world.store.ReadScheme(world.module.SchemeFile);
    EXPECT_EQ(world.messageBox.Label1.Caption(), "Colour Scheme: slate.col not found");
    EXPECT_EQ(world.module.Background(), Grey(80));
    EXPECT_EQ(world.module.SchemeColors[12], before[12]);

    world.platform.files.clear();
    world.store.ReadScheme("other.col");
    EXPECT_EQ(world.messageBox.Label1.Caption(), "Colour Scheme: other.col not found");
}

TEST(SchemeFile, ListsNamesAndWritesWhatItReads)
{
    EXPECT_EQ(SchemeNames("Sea.col\n 1; 2; 3\n.col\r\nx.col.col and more\r\nlast.col"),
              (std::vector<std::string>{"Sea", "", "x", "last"}));
    Dress dress;
    MakeScheme(dress, Rgb(100, 150, 200), 100);
    const std::string entry = EntryText("sea.col", dress);
    EXPECT_TRUE(entry.starts_with("sea.col\r\n 1; 1; 1\r\n 240; 240; 240\r\n 100; 150; 200\r\n"));
    Dress back;
    ASSERT_TRUE(ReadEntry(entry, "sea.col", SlotSource::File, back));
    EXPECT_EQ(back.SchemeColors, dress.SchemeColors);
}

TEST(ApplyScheme, PaintsWhatWearsTheScheme)
{
    AppearanceWorld world;
    world.module.ButtonColorIndex = 9;
    Label surface;
    BoxControl button;
    ApplyScheme(world.module, {{&surface}, {&button}, world.messageBox});
    EXPECT_EQ(surface.BackColor(), world.module.SchemeColors[2]);
    EXPECT_EQ(button.BackColor(), world.module.SchemeColors[4]);
    EXPECT_EQ(world.messageBox.BackColor(), world.module.SchemeColors[2]);
    EXPECT_EQ(world.messageBox.ButtonColour, world.module.SchemeColors[4]);
    EXPECT_EQ(world.messageBox.ForeColor(), world.module.DarkColor);
}

TEST(SchemeCommands, AddRefusesEveryBeginningOfATakenName)
{
    AppearanceWorld world;
    const std::string before = world.AllCol();
    world.platform.typedAnswers = {"", "GREY", "sl"};
    for (int press = 0; press < 3; ++press) {
        world.dialog.addsch.UserActivates();
    }
    EXPECT_EQ(world.platform.plainMessages,
              (std::vector<std::string>{"Color Scheme: GREY already exists",
                                        "Color Scheme: sl already exists"}));
    EXPECT_EQ(world.AllCol(), before);

    world.PickScheme("slate");
    world.platform.typedAnswers = {"Greyer"};
    world.dialog.addsch.UserActivates();
    EXPECT_EQ(world.LastMessage(), "Color Scheme: Greyer added");
    EXPECT_EQ(world.AllCol(), before + EntryText("greyer.col", world.module));
    EXPECT_EQ(world.Listed(), (std::vector<std::string>{"default", "grey", "greyer", "slate"}));
    EXPECT_FALSE(world.dialog.List1.Selected().has_value());
}

TEST(SchemeCommands, AddMakesTheFileAndMendsItsLastLine)
{
    AppearanceWorld world;
    world.platform.files.clear();
    world.platform.typedAnswers = {"one", "two"};
    world.dialog.addsch.UserActivates();
    EXPECT_EQ(world.AllCol(), EntryText("one.col", world.module));
    world.AllCol().resize(world.AllCol().size() - LineEnd.size());
    world.dialog.addsch.UserActivates();
    EXPECT_EQ(world.AllCol(), EntryText("one.col", world.module) + EntryText("two.col", world.module));
}

TEST(SchemeCommands, ReplaceKeepsThePlaceAndDeleteTakesTheEntryOut)
{
    AppearanceWorld world;
    world.dialog.repsch.UserActivates();
    world.dialog.delsch.UserActivates();
    EXPECT_EQ(world.platform.plainMessages,
              (std::vector<std::string>{"Select a color scheme to replace",
                                        "Select a color scheme to delete"}));

    world.PickScheme("grey");
    MakeScheme(world.module, Rgb(1, 2, 3), 100);
    const std::string made = EntryText("grey.col", world.module);
    world.platform.plainAnswers = {false, true};
    world.dialog.repsch.UserActivates(); // no
    EXPECT_EQ(world.LastMessage(), "Replace color scheme: grey");
    world.dialog.repsch.UserActivates(); // yes
    EXPECT_EQ(world.LastMessage(), "Color Scheme: grey.col replaced");
    EXPECT_EQ(world.AllCol(), GreyEntry("default.col", 100) + made + GreyEntry("slate.col", 60));
    EXPECT_EQ(world.platform.files["/program/newall.cox"], world.AllCol());
    EXPECT_EQ(world.dialog.List1.SelectedText(), "grey");

    world.module.SchemeFile = "GREY.col";
    world.platform.plainAnswers = {true, true};
    world.dialog.delsch.UserActivates();
    EXPECT_EQ(world.LastMessage(), "Cannot delete currently active Color Scheme");
    world.PickScheme("slate");
    world.platform.plainAnswers = {true};
    world.dialog.delsch.UserActivates();
    EXPECT_EQ(world.LastMessage(), "Color Scheme: slate.col deleted");
    EXPECT_EQ(world.AllCol(), GreyEntry("default.col", 100) + made);
    EXPECT_EQ(world.platform.files["/program/newall.cox"], world.AllCol());
    EXPECT_EQ(world.Listed(), (std::vector<std::string>{"default", "grey"}));
}

TEST(SchemeCommands, WithoutAnEntryNothingChangesAndAShortEntryIsRefused)
{
    AppearanceWorld world;
    const std::string capital = GreyEntry("Sea.col");
    world.AllCol() = capital + "short.col\r\n 1; 1; 1\r\n";
    world.dialog.FillSchemeList();
    world.PickScheme("Sea");
    world.platform.plainAnswers = {true};
    world.dialog.delsch.UserActivates();
    EXPECT_EQ(world.LastMessage(), "Color Scheme: sea.col deleted");
    EXPECT_EQ(world.AllCol(), capital + "short.col\r\n 1; 1; 1\r\n");

    world.PickScheme("short");
    for (BoxControl* button : {&world.dialog.repsch, &world.dialog.delsch}) {
        world.platform.plainAnswers = {true};
        button->UserActivates();
        EXPECT_EQ(world.LastMessage(), "Error in updating Color Scheme:\r\nshort.col");
    }
    EXPECT_EQ(world.AllCol(), capital + "short.col\r\n 1; 1; 1\r\n");
}

struct Command {
    std::string name;
    BoxControl Form6::*button;
    std::string failure;
};

class FailingDisk : public testing::TestWithParam<Command>
{
protected:
    static void Run(AppearanceWorld& world)
    {
        world.dialog.List1.Select(2); // slate, with no preview that would read the file
        MakeScheme(world.module, Rgb(1, 2, 3), 100);
        world.platform.typedAnswers = {"new"};
        world.platform.plainAnswers = {true};
        (world.dialog.*GetParam().button).UserActivates();
    }

    static void ExpectAllElseAsItWas(AppearanceWorld& world)
    {
        EXPECT_EQ(world.LastMessage(), GetParam().failure);
        EXPECT_FALSE(world.platform.files.contains("/program/all.col.part"));
        EXPECT_FALSE(world.platform.files.contains("/program/newall.cox.part"));
        EXPECT_EQ(world.Listed(), (std::vector<std::string>{"default", "grey", "slate"}));
        EXPECT_EQ(world.module.SchemeFile, "grey.col");
    }
};

TEST_P(FailingDisk, LeavesTheOldFileOrTheNewOne)
{
    const std::string old = AppearanceWorld().AllCol();
    AppearanceWorld undisturbed;
    undisturbed.platform.ResetFileOperations();
    Run(undisturbed);
    const std::string done = undisturbed.AllCol();
    ASSERT_NE(done, old);

    const int operations = undisturbed.platform.fileOperations;
    for (int number = 0; number < 2 * operations; ++number) {
        SCOPED_TRACE(number);
        AppearanceWorld world;
        world.platform.ResetFileOperations(number % operations, number >= operations);
        Run(world);

        EXPECT_TRUE(world.AllCol() == old || world.AllCol() == done) << world.AllCol();
        EXPECT_EQ(world.module.SchemeColors, undisturbed.module.SchemeColors);
        ExpectAllElseAsItWas(world);
    }
}

INSTANTIATE_TEST_SUITE_P(
    , FailingDisk,
    testing::Values(Command{"Add", &Form6::addsch, "Error in adding Color Scheme:\r\nnew.col"},
                    Command{"Replace", &Form6::repsch, "Error in updating Color Scheme:\r\nslate.col"},
                    Command{"Delete", &Form6::delsch, "Error in updating Color Scheme:\r\nslate.col"}),
    [](const auto& command) { return command.param.name; });

} // namespace
} // namespace tessarine
