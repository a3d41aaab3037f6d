#include "support/game_world.h"

#include "runtime/files.h"

#include <gtest/gtest.h>

#include <utility>

namespace tessarine::test
{
namespace
{

using Texts = std::vector<std::string>;

/// Presses a command whose boxes are answered with these buttons; what they told.
Texts Press(GameWorld& world, BoxControl& command, const Texts& answers)
{
    Texts told;
    for (const std::string& answer : answers) {
        Answer(world.platform, answer, told);
    }
    world.Press(command);
    EXPECT_EQ(told.size(), answers.size());
    told.resize(answers.size());
    return told;
}

TEST(ProgramCommandsTest, ExitStoresAndEndsAndAClosedWindowWritesNothing)
{
    GameWorld world;
    world.form.scaling.ScaleTable(2.0F);
    const auto before = world.platform.files;
    Press(world, world.form.cmdexit, {"No"});
    EXPECT_FALSE(world.platform.ended);
    world.ForgetSounds();
    world.form.FeedClose();
    EXPECT_TRUE(std::exchange(world.platform.ended, false));
    EXPECT_EQ(world.platform.files, before);
    EXPECT_TRUE(world.platform.modalCaptions.size() == 1 && world.platform.sounds.empty());
    world.Press(world.form.cmdhelp);
    world.ForgetSounds();
    EXPECT_EQ(Press(world, world.form.cmdexit, {"Yes"}), Texts{"Question: Exit?"});
    EXPECT_TRUE(world.platform.ended);
    EXPECT_NE(world.platform.files["/app/tessarine.cfg"].find("\r\n 2 \r\n"), std::string::npos);
    EXPECT_EQ(world.TakeSounds(), (Texts{"_menu.wav", "_exit.wav"}));
    EXPECT_TRUE(world.form.AllForms().Loaded().empty());
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
            deal_ = world_.Order();
        } else if (text == "Game restored") {
            EXPECT_EQ(world_.Order(), deal_);
        } else if (text.starts_with("Game saved to") || text.starts_with("Game restored from")) {
            EXPECT_EQ(world_.Order(), world_.platform.files[file]) << text;
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
    const std::string old = GameWorld(7).Order();
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
    const std::map<FileFault, std::string> cases = {
        {FileFault::Full, "The disk is full"},
        {FileFault::Forbidden, "The file or its folder is protected"},
        {FileFault::IsFolder, "A folder has this name"},
        {FileFault::Missing, "The file or its folder is not there"},
        {FileFault::InUse, "Another program has the file open"},
        {FileFault::TooLarge, "The file is too large to be one of this program"},
        {FileFault::Other, "It is no plain file, or the disk is at fault"}};
    for (const auto& [why, words] : cases) {
        // The copy can't be written; the snapshot can neither be read nor written.
        for (const auto& [failing, file] :
             {std::pair{2, "/app/savedgame;01.gam"}, std::pair{0, "/app/tempgame.txt"}}) {
            GameWorld world;
            world.platform.ResetFileOperations(failing, true, why);
            const std::string told = Press(world, world.form.cmdSaveGame, {"Ok"})[0];
            EXPECT_NE(told.find(file), std::string::npos) << told;
            EXPECT_NE(told.find(words), std::string::npos) << told;
        }
    }
}

} // namespace
} // namespace tessarine::test
