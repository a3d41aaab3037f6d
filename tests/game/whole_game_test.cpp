#include "support/game_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarine::test
{
namespace
{

/// A press and its release that a layout or a move comes between begin nothing, and leave no mark.
TEST(MiddleOfAMoveTest, APressAndItsReleaseBelongTogether)
{
    GameWorld world({.columns = {{H6}, {H5}, {S8, D3}}, .stock = {C1}, .piles = {{S0}}});
    const std::vector<int> ring = world.Cards(StockStack);
    BoxControl& turn = world.form.NextCard[1];
    const Point button = turn.PlaceOnForm();
    const Point card = world.Corner(D3);
    const auto pressThenLetGoInALayout = [&](const Point& at, int which) {
        world.platform.Press(world.form, at.x + 50, at.y + 50, which);
        world.platform.meanwhile.emplace_back(
            [&, which] { world.platform.Release(world.form, at.x + 50, at.y + 50, which); });
        world.form.Command2.SetValue(true);
        ASSERT_TRUE(world.platform.meanwhile.empty());
    };
    pressThenLetGoInALayout(button, LeftButton);
    pressThenLetGoInALayout(card, RightButton);
    world.platform.meanwhile.emplace_back(
        [&] { world.platform.Press(world.form, button.x + 50, button.y + 50); });
    world.RightClick(H5); // the press comes in its slide
    world.platform.Release(world.form, button.x + 50, button.y + 50);
    EXPECT_FALSE(turn.HasBorder());
    EXPECT_EQ(world.Cards(StockStack), ring);
    EXPECT_EQ(world.Cards(2).back(), D3);
    EXPECT_EQ(world.Cards(0), (std::vector<int>{H6, H5})) << "the move itself";

    // A rescale that falls due in the middle of a drag waits for its end.
    world.platform.Press(world.form, card.x + 50, card.y + 50);
    world.form.FeedResize({7920, 7710});
    world.platform.Advance(250);
    EXPECT_EQ(world.form.shared.CardWidth, 405);
    world.platform.Release(world.form, card.x + 50, card.y + 50);
    world.platform.Advance(100);
    EXPECT_GT(world.form.shared.CardWidth, 700);
}

TEST(MiddleOfAMoveTest, ALayoutWaitsForTheReleaseOfAPress)
{
    GameWorld world;
    world.Arrange({.stock = {C1}, .piles = {{S0}}});
    const Point at = world.form.NextCard[1].PlaceOnForm();
    const std::vector<int> ring = world.Cards(StockStack);
    world.platform.Press(world.form, at.x + 50, at.y + 50);
    world.form.FeedResize({7920, 7710});
    world.platform.meanwhile.emplace_back(
        [&] { world.platform.Release(world.form, at.x + 50, at.y + 50); });
    world.platform.Advance(200);
    EXPECT_EQ(world.form.shared.CardWidth, 405);
    world.platform.RunPendingEvents();
    EXPECT_NE(world.Cards(StockStack), ring) << "the press is not lost";
    world.platform.Advance(100);
    EXPECT_NEAR(world.form.shared.CardWidth, 405 * 8040.0 / 4080, 1);
}

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

TEST(MiddleOfAMoveTest, ACloseEndsTheProgramAtOnce)
{
    for (std::size_t step = 0; step < 10; ++step) {
        GameWorld world({.columns = {{H6}, {H5}, {S3}}});
        const auto files = world.platform.files;
        world.platform.meanwhile.assign(step, [] {});
        bool ended = false;
        world.platform.meanwhile.emplace_back([&] {
            world.form.FeedClose();
            ended = world.platform.ended;
        });
        world.RightClick(H5);
        EXPECT_TRUE(ended) << step;
        EXPECT_EQ(world.platform.files, files) << step;
    }
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
    EXPECT_EQ(told, (std::vector<std::string>{
                        "Configuration file:\r\n/app/tessarine.cfg\r\ncould not be accessed, new file "
                        "will be created",
                        "Colour Scheme: default.col not found"}));
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
