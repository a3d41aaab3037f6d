// The program's start and end, and what a disk that fails does to it in between.
#include "support/game_world.h"

#include "runtime/files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tessarine::test
{
namespace
{

using Texts = std::vector<std::string>;

/// Presses the first button of each box, Yes or Ok; what they told comes in here.
void Agree(HeadlessPlatform& platform, Texts& told)
{
    platform.plainAnswers = {true};
    for (int box = 0; box < 9; ++box) {
        platform.OnNextModal([&](Form& form) {
            auto& message = static_cast<MsgForm&>(form);
            told.push_back(Told(message));
            platform.Click(message.cmd[0]);
        });
    }
}

TEST(ProgramTest, AFirstRunTellsWhatItMissesAndWritesItsFiles)
{
    HeadlessPlatform platform;
    platform.files["/app/all.col"] = "";
    Texts told;
    Agree(platform, told);
    Form1 form(platform, "/app", "tessarine");
    form.Start();
    EXPECT_EQ(told,
              (Texts{"Critical: Configuration file:\r\n/app/tessarine.cfg\r\ncould not be accessed, "
                     "new file will be created",
                     "Critical: Colour Scheme: default.col not found"}));
    EXPECT_EQ(platform.files["/app/tessarine.cfg"], "03-14-2008 15:09:26\r\n"
                                                    " 1             16777215      0 \r\n"
                                                    " 1 \r\n"
                                                    " 0 \r\n"
                                                    " 8388608 \r\n"
                                                    " 32768 \r\n"
                                                    " 32896 \r\n"
                                                    " 128 \r\n"
                                                    "default.col\r\n"
                                                    "arial\r\n");
    EXPECT_EQ(platform.files["/app/tempgame.txt"].size(), 200U);
    EXPECT_TRUE(platform.files.contains("/run/tessarine.sco"));
    EXPECT_EQ(form.shared.Background(), Rgb(164, 190, 176)) << "a usable table all the same";
    EXPECT_TRUE(form.IsShown());
}

TEST(ProgramTest, AFolderThatCanNotBeWrittenIsToldAndPlayedIn)
{
    HeadlessPlatform platform;
    platform.readOnlyFolders = {"/app", "/run"};
    Texts told;
    Agree(platform, told);
    Form1 form(platform, "/app", "tessarine");
    form.Start();
    ASSERT_EQ(told.size(), 3U) << "the configuration, the scheme, the deal";
    EXPECT_NE(told[2].find("/app/tempgame.txt"), std::string::npos);
    EXPECT_TRUE(platform.files.empty());
    EXPECT_EQ(form.table.Stacks[7].Count(), 7U);
}

TEST(ProgramTest, ExitStoresTheSizeAndAClosedWindowWritesNothing)
{
    GameWorld world;
    world.form.scaling.ScaleTable(1.5F);
    const auto before = world.platform.files;
    world.form.FeedClose();
    EXPECT_TRUE(std::exchange(world.platform.ended, false));
    EXPECT_EQ(world.platform.files, before);
    Texts told;
    Agree(world.platform, told);
    world.Press(world.form.cmdhelp);
    world.TakeSounds();
    world.Press(world.form.cmdexit);
    EXPECT_TRUE(world.platform.ended);
    EXPECT_EQ(world.TakeSounds(), (Texts{"_menu.wav", "_exit.wav"}));
    EXPECT_TRUE(world.form.AllForms().Loaded().empty());

    HeadlessPlatform platform(99);
    platform.files = world.platform.files;
    Form1 again(platform, "/app/", "tessarine");
    again.Start();
    EXPECT_EQ(again.shared.AppDir, "/app/");
    EXPECT_EQ(again.shared.CardWidth, 608);    // 607.5 to the even
    EXPECT_EQ(again.table.StackLeft[7], 5104); // 3400 x 608 / 405
    EXPECT_NE(platform.files["/app/tempgame.txt"], world.Order());
    EXPECT_EQ(platform.unscriptedModals, 0);
}

/// The command, on a disk that fails at this operation, or from there on. Whether it came so far.
bool TryOut(const std::function<void(GameWorld&)>& command, int failing, bool fromThere, FileFault why)
{
    std::array<std::map<std::string, std::string>, 3> files; // before, as it should be, as it is
    GameWorld world;
    GameWorld lucky;
    const std::string old = GameWorld(7).Order();
    Texts told;
    for (GameWorld* one : {&lucky, &world}) {
        one->platform.files["/app/old.gam"] = old;
        one->platform.chosenFiles = {"/app/old.gam"};
        files[0] = one->platform.files;
        Agree(one->platform, told);
        one->form.form6.Show();
    }
    command(lucky);
    files[1] = lucky.platform.files;
    told.clear();
    world.platform.ResetFileOperations(failing, fromThere, why);
    command(world);
    const bool isReached = world.platform.fileOperations > failing;
    files[2] = world.platform.files;
    for (const auto& [path, bytes] : files[2]) {
        EXPECT_TRUE((files[0].contains(path) && bytes == files[0][path]) ||
                    (files[1].contains(path) && bytes == files[1][path]))
            << path << ", failure " << failing;
    }
    for (const auto& [path, bytes] : files[0]) {
        EXPECT_TRUE(files[2].contains(path)) << path << " is lost by failure " << failing;
    }
    EXPECT_TRUE(files[2]["/app/all.col"] == files[1]["/app/all.col"] ||
                world.platform.plainMessages.back() == "Error in adding Color Scheme:\r\nnew.col" ||
                world.platform.plainMessages.back() == "Error in updating Color Scheme:\r\ndefault.col");
    const auto tellsOfTheDeal = [](const std::string& text) {
        return text.starts_with(
                   "Critical: The deal could not be written to file:\r\n/app/tempgame.txt\r\n") &&
               text.ends_with("The game goes on. Save and Restore will try to write it again.");
    };
    EXPECT_TRUE(files[2]["/app/tempgame.txt"] == world.Order() ||
                std::ranges::any_of(told, tellsOfTheDeal));
    EXPECT_EQ(world.Fault(), "");
    EXPECT_FALSE(world.platform.busy);
    if (!world.platform.ended) { // the disk works again: what is told now, and was told before, is true
        world.platform.ResetFileOperations();
        const std::string deal = world.Order();
        world.Press(world.form.cmdreset);
        EXPECT_EQ(world.Order(), deal);
        world.Press(world.form.cmdSaveGame);
        EXPECT_TRUE(told.back().starts_with("Information: Game saved to file:"));
        for (const std::string& text : told) {
            if (text.find(" saved to file:") != std::string::npos) {
                EXPECT_EQ(world.platform.files[text.substr(text.find('\n') + 1)], deal) << text;
            }
        }
    }
    return isReached;
}

TEST(DiskTest, WhateverFailsNothingIsLostAndWhatIsToldIsTrue)
{
    const std::vector<std::function<void(GameWorld&)>> commands = {
        [](GameWorld& w) { w.Press(w.form.cmdnewgame); },
        [](GameWorld& w) { w.Press(w.form.cmdSaveGame); },
        [](GameWorld& w) { w.Press(w.form.cmdreset); },
        [](GameWorld& w) { w.Press(w.form.cmdLoadGame); },
        [](GameWorld& w) { w.Press(w.form.cmdexit); },
        [](GameWorld& w) {
            w.Press(w.form.cmdscore);
            w.Press(w.form.Score1.Command2);
            w.Press(w.form.Score1.Command1);
        },
        [](GameWorld& w) { w.form.gameCommands.GameWon(); },
        [](GameWorld& w) {
            w.platform.typedAnswers = {"new"};
            w.Press(w.form.form6.addsch);
        },
        [](GameWorld& w) {
            w.form.form6.List1.Select(0);
            w.Press(w.form.form6.repsch);
        },
        [](GameWorld& w) {
            w.form.shared.SchemeFile = "another.col";
            w.form.form6.List1.Select(0);
            w.Press(w.form.form6.delsch);
        },
    };
    for (const auto& command : commands) {
        for (const FileFault why :
             {FileFault::Full, FileFault::Forbidden, FileFault::Missing, FileFault::Other}) {
            bool reached = true;
            for (int failing = 0; reached; ++failing) {
                reached = TryOut(command, failing, false, why);
                TryOut(command, failing, true, why);
            }
        }
    }
}

TEST(DiskTest, TellsWhichFileAndWhy)
{
    const std::map<FileFault, std::string> cases = {
        {FileFault::Full, "The disk is full"},
        {FileFault::Forbidden, "The file or its folder is protected"},
        {FileFault::IsFolder, "A folder has this name"},
        {FileFault::Missing, "The file or its folder is not there"},
        {FileFault::InUse, "Another program has the file open"},
        {FileFault::TooLarge, "The file is too large to be one of this program"},
        {FileFault::Other, "It is no plain file, or the disk is at fault"}};
    GameWorld exits;
    Texts last;
    Agree(exits.platform, last);
    exits.platform.writeProtected = {"/app/tessarine.cfg"};
    exits.Press(exits.form.cmdexit);
    EXPECT_EQ(last.back(),
              "Critical: Configuration file:\r\n/app/tessarine.cfg\r\ncould not be accessed, "
              "options not saved");
    for (const auto& [why, words] : cases) {
        // The copy can't be written; the snapshot can neither be read nor written.
        for (const auto& [failing, file] :
             {std::pair{2, "/app/savedgame;01.gam"}, std::pair{0, "/app/tempgame.txt"}}) {
            GameWorld world;
            Texts told;
            Agree(world.platform, told);
            world.platform.ResetFileOperations(failing, true, why);
            world.Press(world.form.cmdSaveGame);
            EXPECT_EQ(told, Texts{"Critical: Game could not be saved:\r\n" + std::string(file) + "\r\n" +
                                  words + ". The game on the table goes on."});
        }
        GameWorld world;
        Texts told;
        Agree(world.platform, told);
        world.platform.chosenFiles = {"/app/x.gam"};
        world.platform.ResetFileOperations(0, true, why);
        world.Press(world.form.cmdLoadGame);
        EXPECT_EQ(told, Texts{"Critical: Game could not be loaded from file:\r\n/app/x.gam\r\n" + words +
                              ". The game on the table goes on."});
    }
}

} // namespace
} // namespace tessarine::test
