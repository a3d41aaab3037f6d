#include "support/game_world.h"

#include "store/scramble.h"
#include "store/value_stream.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tessarine::test
{
namespace
{

TEST(ConfigurationTest, ReadsValuesNotLinesAndGivesUpWhatEndsEarly)
{
    const std::string rest = "9\r\n8\r\n7\r\n6\r\n5\r\n";
    using Case = std::tuple<std::string, bool, float, std::string>;
    const std::vector<Case> cases = {
        {"\r\n1\r\n2,3\r\n1.5\r\n" + rest + "a.col\r\nx y\r\n", true, 1.5F, "x y"},
        {"any, thing\n 1 2 3\n nonsense\n" + rest + "a.col\narial", true, 0, "arial"},
        {"\r\n1 2 3 1\r\n" + rest + "a,b.col\r\narial\r\n", true, 1, "b.col"},
        {"\r\n1 2 3 4\r\n" + rest + "a.col\r\n", false, 1, "arial"},
        {"", false, 1, "arial"},
        {"only a stamp\r\n", false, 1, "arial"}};
    for (const auto& [text, reads, scale, font] : cases) {
        GameWorld world;
        world.platform.files["/app/tessarine.cfg"] = text;
        world.platform.AnswerModal("Ok"); // of the box that there may be
        world.form.configuration.ReadcfgFile();
        EXPECT_EQ(world.platform.modalCaptions.size(), reads ? 0U : 1U) << text;
        EXPECT_EQ(world.form.shared.CardScale, scale) << text;
        EXPECT_EQ(world.form.shared.CardFont, font) << text;
    }
}

TEST(ScrambleTest, ComesBackWhateverTheLength)
{
    std::string text;
    for (int length = 0; length < 200; ++length) {
        EXPECT_EQ(UnscrambleLine(ScrambleLine(text)), text);
        EXPECT_EQ(ScrambleLine(text).size(), text.size() * 2);
        text += static_cast<char>(' ' + length % 95);
    }
    EXPECT_EQ(ScrambleLine("MIRTHN"), " 0 0 0 0 0 3");
    EXPECT_EQ(UnscrambleLine("zz 0"), "MI");
    EXPECT_EQ(UnscrambleLine(" 0 0 "), "MIR");
}

std::string Captions(const std::array<Label, ScoresBox::Rows>& labels)
{
    return labels[1].Caption() + ' ' + labels[2].Caption() + ' ' + labels[3].Caption() + ' ' +
           labels[4].Caption();
}

TEST(ScoresTest, OutliveTheProgramAndKeepTheDateOfTheLastRun)
{
    GameWorld world;
    world.form.Score1.SetLostSession(true);
    world.form.Score1.SetWonSession(false);
    HeadlessPlatform platform;
    platform.files = world.platform.files;
    platform.now.day = 5;
    ScoresBox again(platform, "tessarine");
    again.Start();
    EXPECT_EQ(Captions(again.AllSessions), "2 1 0 1");
    EXPECT_EQ(Captions(again.ThisSession), "0 0 0 0");
    again.SetDrawnSession(true);
    EXPECT_EQ(again.Label1.Caption(), "Last Update: 14Mar2008");
    platform.plainAnswers.push_back(true);
    again.Command2.MouseReleased({RightButton, 0, 0, 0});
    EXPECT_EQ(again.Label1.Caption(), "Last Update: 05Mar2008");
}

TEST(ScoresTest, FilesOfNonsense)
{
    // What stands in the file, what shows of it, and what after a game won in a month whose name begins
    // with a blank.
    const std::vector<std::array<std::string, 3>> cases = {
        {"hello\r\n", "0 0 0 0", "1 1 0 0"},
        {ScrambleLine("14Mar2008 1 2"), "0 0 0 0", "1 1 0 0"},
        {ScrambleLine("14Mar2008 x 2 3 4 more") + "\r\nsecond line", "x 2 3 4", "1 3 3 4"},
        {ScrambleLine("d 2147483647 99999999999 -1 4"), "2147483647 99999999999 -1 4",
         "2147483648 100000000000 -1 4"}};
    for (const auto& [file, shown, next] : cases) {
        HeadlessPlatform platform;
        platform.now.shortMonth = " de";
        platform.files["/run/tessarine.sco"] = file;
        ScoresBox scores(platform, "tessarine");
        scores.Start();
        EXPECT_EQ(Captions(scores.AllSessions), shown);
        EXPECT_EQ(platform.files["/run/tessarine.sco"], file) << "left alone until the next count";
        scores.SetWonSession(true);
        ScoresBox again(platform, "tessarine");
        again.Start();
        EXPECT_EQ(Captions(again.AllSessions), next);
    }
}

TEST(ScoresTest, AFileThatCanNotBeReadIsNeverReplaced)
{
    const std::string file = ScrambleLine("14Mar2008 9 9 0 0 ") + "\r\n";
    for (const bool atStart : {true, false}) {
        HeadlessPlatform platform;
        platform.files["/run/tessarine.sco"] = file;
        ScoresBox scores(platform, "tessarine");
        platform.ResetFileOperations(atStart ? 0 : 1, false, FileFault::Other);
        scores.Start();
        scores.SetWonSession(true);
        EXPECT_EQ(platform.files["/run/tessarine.sco"], file) << atStart;
        EXPECT_EQ(scores.AllSessions[1].Caption(), atStart ? "1" : "10");
    }
}

} // namespace
} // namespace tessarine::test
