#include "support/game_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <tuple>

namespace tessarine::test
{
namespace
{

TEST(DealTest, IsDrawnAtOnce)
{
    GameWorld world;
    bool isFrozen = false;
    world.platform.meanwhile.push_back(
        [&] { isFrozen = world.platform.frozen == &world.table.Picture2; });
    world.form.deal.NewDeal();
    EXPECT_TRUE(isFrozen && world.platform.frozen == nullptr);
}

TEST(DealTest, ShufflesDifferUnderOneClockReadingAndAreFair)
{
    GameWorld world;
    // How often each card falls on the first place: 50 shuffles of a fair deck give none 12 times.
    Numbered<int, CardCount> first;
    std::set<std::string> orders;
    for (int i = 0; i < 50; ++i) {
        world.form.deal.NewDeal();
        world.form.ring.NextStockCard();
        ++first[CardOfEntry(world.table.CardOrder.At(0))];
        orders.insert(world.Order());
    }
    EXPECT_EQ(orders.size(), 50U);
    EXPECT_LT(std::ranges::max(first), 12);
}

TEST(LayoutTest, TheFirstTableFitsTheScreenAndShowsTheWholeCommandRow)
{
    using Start =
        std::tuple<std::string, Twips, Twips>; // the stored scale, the screen, the whole window
    const std::vector<Start> starts = {{"1", 12000, 4080},
                                       {"2.5", 12000, 9780},
                                       {"3", 11000, 11000},
                                       {"1e9", 12000, 12000},
                                       // The end of the row at 3630, the margin and the frame.
                                       {"0", 12000, 4080},
                                       {"1", 3990, 3990},
                                       {".2", 12000, 3780}};
    for (const auto& [stored, screen, width] : starts) {
        GameWorld world({screen, 9000}, stored);
        EXPECT_NEAR(world.form.OuterWidth(), width, TwipsPerPixel) << stored;
        EXPECT_LE(world.form.OuterWidth(), screen);
        EXPECT_GE(world.form.Width(), world.form.cmdundo.Left() + 360);
        EXPECT_EQ(world.form.shared.CardScale, std::stof(stored)) << "kept until Exit";
        EXPECT_EQ(world.Fault(), "");
        world.form.scaling.ScaleTable(0.5F); // later sizes are the user's
        EXPECT_LT(world.form.Width(), width * 0.6);
    }
}

TEST(ResizingTest, TheWindowSnapsToTheTable)
{
    GameWorld world;
    const auto resizeTo = [&](Twips outerWidth, Twips outerHeight) {
        world.form.FeedResize({outerWidth - FrameWidth, outerHeight - FrameHeight});
    };
    resizeTo(5100, 8115);
    EXPECT_EQ(world.form.shared.CardWidth, 405) << "only after the wait";
    resizeTo(6000, 8115); // dropped: the first of the period counts
    world.platform.Advance(100);
    EXPECT_EQ(world.form.shared.CardWidth, 506);
    EXPECT_EQ(world.form.shared.CardHeight, 469);
    EXPECT_EQ(world.table.SlotLeft[59], 4250);
    EXPECT_EQ(world.table.Picture2.Width(), 4856);
    EXPECT_EQ(world.form.OuterWidth(), 5025) << "5031 brought to whole pixels";
    EXPECT_FALSE(world.platform.HasWork()) << "the snap starts no further rescale";

    resizeTo(5025, 5000);
    world.platform.Advance(100);
    EXPECT_EQ(world.form.shared.CardWidth, 506);
    EXPECT_EQ(world.table.Picture2.Height(), 4000);
    EXPECT_FALSE(world.platform.HasWork());
}

TEST(MovesTest, ASlideTakesTenStepsOfWholeTwipsInFrontOfAll)
{
    constexpr int card = 15; // goes to the next of its suit
    GameWorld world({.columns = {{16}, {}, {7, card}}});
    std::vector<Point> seen;
    Timer watch(world.platform);
    watch.OnTick = [&] {
        EXPECT_EQ(world.table.Picture2.Children().back(), &world.table.cardy[card]);
        seen.push_back(world.Place(card));
    };
    watch.SetInterval(3);
    watch.SetEnabled(true);
    const auto start = world.platform.milliseconds;
    world.RightClick(card);
    watch.SetEnabled(false);
    EXPECT_EQ(world.platform.milliseconds - start, 30);
    std::vector<Point> expected; // an exact half goes to the even neighbour
    for (const Twips y : {1038, 1000, 962, 924, 886, 848, 810, 772, 734, 696}) {
        expected.push_back({1000 - 96 * (static_cast<Twips>(expected.size()) + 1), y});
    }
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(world.Place(card), (Point{40, 1075}));
    world.form.shared.MoveSteps = 0;
    world.DragOnto(card, FirstColumnBase + 1);
    world.RightClick(card);
    EXPECT_EQ(world.platform.milliseconds - start, 30);
}

} // namespace
} // namespace tessarine::test
