#include "support/game_world.h"

#include "runtime/files.h"

#include <gtest/gtest.h>

namespace tessarine::test
{
namespace
{

/// Notes the text of the next message box and presses a button on it.
void Answer(GameWorld& world, const std::string& caption, std::vector<std::string>& told)
{
    world.platform.OnNextModal([&world, caption, &told](Form& form) {
        auto& box = static_cast<MsgForm&>(form);
        told.push_back(box.Label1.Caption());
        for (BoxControl& button : box.cmd) {
            if (button.Visible() && button.Caption() == caption) {
                world.platform.Click(button);
                return;
            }
        }
        ADD_FAILURE() << "no button " << caption << " on: " << box.Label1.Caption();
    });
}

std::string OrderText(const GameWorld& world)
{
    std::string text;
    for (const std::string& card : world.table.CardOrder) {
        text += card + "\r\n";
    }
    return text;
}

TEST(GameCommandsTest, SaveTakesTheFirstFreeNameAndTheDealFromItsStart)
{
    GameWorld world;
    std::vector<std::string> told;
    const std::string deal = world.platform.files["/app/tempgame.txt"];
    world.RightClick(world.table.TopCard(7));
    for (int i = 0; i < 2; ++i) {
        Answer(world, "Ok", told);
        world.Press(world.form.cmdSaveGame);
        world.platform.files["/app/tempgame.txt"] = "of another program in this folder";
    }
    EXPECT_EQ(told, (std::vector<std::string>{"Game saved to file:\r\n/app/savedgame;01.gam",
                                              "Game saved to file:\r\n/app/savedgame;02.gam"}));
    EXPECT_EQ(world.platform.files["/app/savedgame;01.gam"], deal);
    EXPECT_EQ(world.platform.files["/app/savedgame;02.gam"], deal);

    for (int n = 1; n < 100; ++n) {
        world.platform.files["/app/savedgame;" + TwoDigits(n) + ".gam"] = "mine";
    }
    Answer(world, "Ok", told);
    const auto before = world.platform.files;
    world.Press(world.form.cmdSaveGame);
    EXPECT_NE(told.back().find("99"), std::string::npos);
    EXPECT_EQ(world.platform.files, before);
}

TEST(GameCommandsTest, LoadMakesTheFileTheCurrentGame)
{
    GameWorld other(7);
    GameWorld world;
    world.platform.files["/else/x.gam"] = OrderText(other);
    std::vector<std::string> told;
    world.Press(world.form.cmdLoadGame); // cancelled
    EXPECT_NE(OrderText(world), OrderText(other));

    world.platform.chosenFiles.push_back("/else/x.gam");
    Answer(world, "Ok", told);
    world.Press(world.form.cmdLoadGame);
    EXPECT_EQ(told, std::vector<std::string>{"Game restored from file:\r\n/else/x.gam"});
    EXPECT_EQ(OrderText(world), OrderText(other));
    EXPECT_EQ(world.platform.files["/app/tempgame.txt"], OrderText(other));
    EXPECT_EQ(world.platform.fileDialogs.back().types, "*.gam");
    EXPECT_EQ(world.platform.fileDialogs.back().folder, "/app/");
    EXPECT_EQ(world.form.Score1.AllSessions[1].Caption(), "0");

    world.RightClick(world.table.TopCard(7));
    world.platform.files.erase("/app/tempgame.txt"); // it is written anew
    Answer(world, "Yes", told);
    Answer(world, "Ok", told);
    world.Press(world.form.cmdreset);
    EXPECT_EQ(told.back(), "Game restored");
    EXPECT_EQ(world.Cards(7), other.Cards(7));
    EXPECT_EQ(world.Fault(), "");
}

TEST(GameCommandsTest, WhatIsNoGameFileIsRefusedBeforeAnythingChanges)
{
    const GameWorld other(7);
    const std::string good = OrderText(other);
    std::string twice = good;
    twice.replace(4, 2, good.substr(0, 2));
    const std::vector<std::string> bad = {"",
                                          "nonsense",
                                          good.substr(0, 196),
                                          twice,
                                          "50" + good.substr(2),
                                          "+1" + good.substr(2),
                                          "\r\n" + good};
    for (const std::string& text : bad) {
        GameWorld world;
        world.Arrange({.columns = {{Card('S', 9)}}, .stock = {Card('C', 9)}});
        world.DragOnto(Card('C', 9), FirstColumnBase + 2);
        const std::string order = OrderText(world);
        world.platform.files["/app/bad.gam"] = text;
        world.platform.chosenFiles.push_back("/app/bad.gam");
        const auto files = world.platform.files;
        std::vector<std::string> told;
        Answer(world, "Ok", told);
        world.Press(world.form.cmdLoadGame);
        ASSERT_EQ(told.size(), 1U);
        EXPECT_NE(told[0].find("/app/bad.gam"), std::string::npos);
        EXPECT_EQ(OrderText(world), order);
        EXPECT_EQ(world.Cards(2), std::vector<int>{Card('C', 9)});
        EXPECT_EQ(world.form.undo.Count(), 1U);
        EXPECT_EQ(world.platform.files, files);
        EXPECT_FALSE(world.platform.busy);
    }
    // LF alone ends a line too, and what follows the fiftieth does not count.
    std::string lines;
    for (const char c : good) {
        lines += c == '\r' ? std::string() : std::string(1, c);
    }
    EXPECT_EQ(FaultOfGame(SplitLines(lines + "and more\n00\n")), "");
}

TEST(GameCommandsTest, NewGameAsksAndCounts)
{
    GameWorld world;
    const std::string deal = OrderText(world);
    std::vector<std::string> told;
    Answer(world, "No", told);
    world.Press(world.form.cmdnewgame);
    EXPECT_EQ(OrderText(world), deal);
    EXPECT_EQ(world.form.Score1.ThisSession[1].Caption(), "0");
    Answer(world, "Yes", told);
    world.Press(world.form.cmdnewgame);
    EXPECT_EQ(told.back(), "Abandon current game?");
    EXPECT_NE(OrderText(world), deal);
    EXPECT_EQ(world.platform.files["/app/tempgame.txt"], OrderText(world));
    EXPECT_EQ(world.form.Score1.AllSessions[4].Caption(), "1");
    EXPECT_EQ(world.TakeSounds(), (std::vector<std::string>{"_menu.wav", "_menu.wav", "_shuf.wav"}));
}

TEST(ProgramCommandsTest, ExitStoresAndEnds)
{
    GameWorld world;
    world.form.scaling.ScaleTable(2.0F);
    std::vector<std::string> told;
    const auto before = world.platform.files;
    Answer(world, "No", told);
    world.Press(world.form.cmdexit);
    EXPECT_FALSE(world.platform.ended);
    EXPECT_EQ(world.platform.files, before);
    Answer(world, "Yes", told);
    world.Press(world.form.cmdhelp);
    world.ForgetSounds();
    world.Press(world.form.cmdexit);
    EXPECT_EQ(told.back(), "Exit?");
    EXPECT_TRUE(world.platform.ended);
    EXPECT_NE(world.platform.files["/app/tessarine.cfg"].find("\r\n 2 \r\n"), std::string::npos);
    EXPECT_EQ(world.TakeSounds(), (std::vector<std::string>{"_menu.wav", "_exit.wav"}));
    EXPECT_TRUE(world.form.AllForms().Loaded().empty());
}

TEST(ProgramCommandsTest, ClosingEndsAtOnceAndWritesNothing)
{
    GameWorld world;
    world.form.scaling.ScaleTable(2.0F);
    const auto before = world.platform.files;
    world.form.FeedClose();
    EXPECT_TRUE(world.platform.ended);
    EXPECT_EQ(world.platform.files, before);
    EXPECT_TRUE(world.platform.modalCaptions.empty());
    EXPECT_TRUE(world.platform.sounds.empty());
}

TEST(ProgramCommandsTest, ScoresPanelLeavesTheTableLive)
{
    GameWorld world;
    world.Press(world.form.cmdscore);
    EXPECT_TRUE(world.form.Score1.Visible());
    EXPECT_EQ(world.table.Picture2.Children().back(), &world.form.Score1);
    world.Press(world.form.NextCard[1]);
    EXPECT_EQ(world.TakeSounds(), (std::vector<std::string>{"_menu.wav", "_nextcard.wav"}));
    world.Press(world.form.Score1.Command1);
    EXPECT_FALSE(world.form.Score1.Visible());
}

/// A file is the old one, the new one, or was never there: whole in any case.
bool IsWhole(const std::string& path, const std::string& bytes)
{
    if (path.ends_with(".gam") || path.ends_with("tempgame.txt")) {
        return FaultOfGame(SplitLines(bytes)).empty() && bytes.size() == 200;
    }
    if (path.ends_with(".cfg")) {
        return SplitLines(bytes).size() == 10 && bytes.ends_with("arial\r\n");
    }
    if (path.ends_with(".sco")) {
        return bytes.ends_with("\r\n") && bytes.size() > 30;
    }
    return path.ends_with("all.col");
}

/// Presses the first button of each box, Yes or Ok, and holds what the box claims against the table and
/// the disk.
class Witness
{
public:
    explicit Witness(GameWorld& world) : world_(world)
    {
        for (int box = 0; box < 9; ++box) {
            world.platform.OnNextModal([this](Form& form) { See(static_cast<MsgForm&>(form)); });
        }
    }

private:
    void See(MsgForm& box)
    {
        const std::string text = box.Label1.Caption();
        const std::string file = text.substr(text.find('\n') + 1);
        EXPECT_FALSE(world_.platform.busy) << text;
        if (text == "Restore current game?") {
            deal_ = OrderText(world_);
        } else if (text == "Game restored") {
            EXPECT_EQ(OrderText(world_), deal_);
        } else if (text.starts_with("Game saved to") || text.starts_with("Game restored from")) {
            EXPECT_EQ(OrderText(world_), world_.platform.files[file]) << text;
        }
        world_.platform.Click(box.cmd[0]);
    }

    GameWorld& world_;
    std::string deal_;
};

TEST(DiskTest, WhateverFailsNothingIsLostAndWhatIsToldIsTrue)
{
    using Command = std::function<void(GameWorld&)>;
    const std::vector<Command> commands = {
        [](GameWorld& w) { // Save and Restore of a deal that may not be on the disk
            w.Press(w.form.cmdnewgame);
            w.platform.failsFromThere = false;
            w.Press(w.form.cmdSaveGame);
            w.Press(w.form.cmdreset);
            w.Press(w.form.cmdSaveGame);
        },
        [](GameWorld& w) {
            w.platform.chosenFiles.push_back("/app/old.gam");
            w.Press(w.form.cmdLoadGame);
            w.Press(w.form.cmdreset);
        },
        [](GameWorld& w) { w.Press(w.form.cmdexit); },
        [](GameWorld& w) {
            w.platform.plainAnswers = {true};
            w.Press(w.form.cmdscore);
            w.Press(w.form.Score1.Command2);
        },
        [](GameWorld& w) { w.form.configuration.ReadcfgFile(); },
        [](GameWorld& w) { w.form.gameCommands.GameWon(); },
    };
    const std::string old = OrderText(GameWorld(7));
    const auto tryOut = [&](const Command& command, int failing, bool fromThere, FileFault why) {
        GameWorld world;
        world.platform.files["/app/old.gam"] = old;
        const auto before = world.platform.files;
        const Witness witness(world);
        world.platform.ResetFileOperations(failing, fromThere, why);
        command(world);
        for (const auto& [path, bytes] : world.platform.files) {
            EXPECT_TRUE(IsWhole(path, bytes)) << path << ", failure " << failing;
        }
        for (const auto& [path, bytes] : before) {
            EXPECT_TRUE(world.platform.files.contains(path)) << path;
        }
        EXPECT_EQ(world.Fault(), "");
        return world.platform.fileOperations > failing;
    };
    for (const Command& command : commands) {
        for (const FileFault why :
             {FileFault::Full, FileFault::Forbidden, FileFault::Missing, FileFault::Other}) {
            bool reached = true;
            for (int failing = 0; reached; ++failing) {
                reached = tryOut(command, failing, false, why);
                tryOut(command, failing, true, why);
            }
        }
    }
}

TEST(DiskTest, TellsWhichFileAndWhy)
{
    const std::vector<std::pair<FileFault, std::string>> cases = {{FileFault::Full, "full"},
                                                                  {FileFault::Forbidden, "protected"},
                                                                  {FileFault::IsFolder, "folder"},
                                                                  {FileFault::Missing, "not there"}};
    for (const auto& [why, words] : cases) {
        // The copy can't be written; the snapshot can neither be read nor written.
        for (const auto& [failing, file] :
             {std::pair{2, "/app/savedgame;01.gam"}, std::pair{0, "/app/tempgame.txt"}}) {
            GameWorld world;
            std::vector<std::string> told;
            Answer(world, "Ok", told);
            world.platform.ResetFileOperations(failing, true, why);
            world.Press(world.form.cmdSaveGame);
            ASSERT_EQ(told.size(), 1U);
            EXPECT_NE(told[0].find(file), std::string::npos) << told[0];
            EXPECT_NE(told[0].find(words), std::string::npos) << told[0];
        }
    }
}

} // namespace
} // namespace tessarine::test
