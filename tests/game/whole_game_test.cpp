#include "support/game_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarine::test
{
namespace
{

TEST(MiddleOfAMoveTest, WhatTheOptionsApplyInTheMiddleOfALayoutIsWorn)
{
    GameWorld world;
    world.Arrange({.stock = {C1}, .piles = {{S0}}});
    world.platform.OnNextModal([&](Form& options) {
        world.platform.meanwhile.emplace_back([&] {
            world.form.form6.List2.UserPicks(1);
            world.Press(world.form.form6.command3);
        });
        world.form.FeedResize({7920, 7710});
        world.platform.Advance(100);
        options.Hide();
    });
    world.Press(world.form.cmdopts);
    EXPECT_EQ(world.form.shared.CardFont, "Courier New");
    EXPECT_EQ(world.table.cardy[S0].Font().name, "Courier New");
}

TEST(StartTest, FirstRunTellsOnceAndWritesItsFiles)
{
    HeadlessPlatform platform;
    platform.files["/app/all.col"] = "";
    std::vector<std::string> told;
    Answer(platform, "Ok", told);
    Answer(platform, "Ok", told);
    Form1 form(platform, "/app", "tessarine");
    form.Start();
    EXPECT_EQ(
        told,
        (std::vector<std::string>{
            "Critical: Configuration file:\r\n/app/tessarine.cfg\r\ncould not be accessed, new file "
            "will be created",
            "Critical: Colour Scheme: default.col not found"}));
    EXPECT_EQ(platform.files["/app/tempgame.txt"].size(), 200U);
    EXPECT_TRUE(platform.files.contains("/run/tessarine.sco"));
    EXPECT_NE(form.shared.Background(), form.shared.Button()) << "a usable table all the same";
    EXPECT_TRUE(form.IsShown());
}

TEST(StartTest, AFolderThatCanNotBeWrittenIsToldAndPlayedIn)
{
    HeadlessPlatform platform;
    platform.readOnlyFolders = {"/app", "/run"};
    std::vector<std::string> told;
    for (int box = 0; box < 3; ++box) { // the configuration, the scheme, the deal
        Answer(platform, "Ok", told);
    }
    Form1 form(platform, "/app", "tessarine");
    form.Start();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_NE(told[2].find("/app/tempgame.txt"), std::string::npos);
    EXPECT_TRUE(platform.files.empty());
    EXPECT_EQ(form.table.Stacks[7].Count(), 7U);
    EXPECT_EQ(form.Score1.AllSessions[1].Caption(), "0");
}

TEST(StartTest, ComesUpAtTheStoredSizeAndNeverWithTheOldDeal)
{
    GameWorld first;
    first.form.scaling.ScaleTable(1.5F);
    first.platform.AnswerModal("Yes");
    first.Press(first.form.cmdexit);
    ASSERT_TRUE(first.platform.ended);

    HeadlessPlatform platform(99);
    platform.files = first.platform.files;
    Form1 again(platform, "/app/", "tessarine");
    again.Start();
    EXPECT_EQ(again.shared.AppDir, "/app/");
    EXPECT_EQ(again.shared.CardWidth, 608);    // 607.5 to the even
    EXPECT_EQ(again.table.StackLeft[7], 5104); // 3400 x 608 / 405
    EXPECT_NE(platform.files["/app/tempgame.txt"], first.Order());
    EXPECT_EQ(platform.unscriptedModals, 0);
}

} // namespace
} // namespace tessarine::test
