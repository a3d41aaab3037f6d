#include "support/game_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <utility>

namespace tessarine::test
{
namespace
{

using Sounds = std::vector<std::string>;

TEST(MovesTest, ASlideTakesTenStepsOfWholeTwipsInFrontOfAll)
{
    GameWorld world({.columns = {{H6}, {}, {S7, H5}}});
    std::vector<Point> seen;
    Timer watch(world.platform);
    watch.OnTick = [&] {
        EXPECT_EQ(world.table.Picture2.Children().back(), &world.table.cardy[H5]);
        seen.push_back(world.Place(H5));
    };
    watch.SetInterval(3);
    watch.SetEnabled(true);
    const auto start = world.platform.milliseconds;
    world.RightClick(H5);
    watch.SetEnabled(false);
    EXPECT_EQ(world.platform.milliseconds - start, 30);
    std::vector<Point> expected; // an exact half goes to the even neighbour
    for (const Twips y : {1038, 1000, 962, 924, 886, 848, 810, 772, 734, 696}) {
        expected.push_back({1000 - 96 * (static_cast<Twips>(expected.size()) + 1), y});
    }
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(world.Place(H5), (Point{40, 1075}));
    world.form.shared.MoveSteps = 0;
    world.DragOnto(H5, FirstColumnBase + 1);
    world.RightClick(H5);
    EXPECT_EQ(world.platform.milliseconds - start, 30);
}

/// Whatever takes the mouse away in the middle of a drag ends it as a whole: cards home, silent, and the
/// next gesture and the next rescale find nothing of it.
TEST(GesturesTest, ADragThatLosesTheMouseEnds)
{
    const std::vector<std::function<void(GameWorld&)>> disturbances = {
        [](GameWorld& w) { w.form.NextCard[1].UserActivates(); },
        [](GameWorld& w) { w.form.cmdabout.UserActivates(); },
        [](GameWorld& w) { w.form.Score1.Command2.UserReleases(LeftButton); },
        [](GameWorld& w) { w.platform.PlainMessage("a box of the system", PlainButtons::Ok); },
        [](GameWorld& w) { w.form.FeedMouseLost(); }};
    for (std::size_t i = 0; i < disturbances.size(); ++i) {
        GameWorld world({.columns = {{}, {H5, H4}}, .stock = {C1, C2}});
        const Point at = world.Corner(H5);
        world.Grab(H5, 840, 840);
        disturbances[i](world);
        EXPECT_EQ(world.Place(H5), (Point{520, 700})) << i;
        EXPECT_EQ(world.Place(H4), (Point{520, 1075})) << i;
        EXPECT_EQ(std::ranges::count(world.platform.sounds, "/app/_error.wav"), 0) << i;
        world.platform.Release(world.form, at.x + 900, at.y + 900);
        EXPECT_EQ(world.Cards(1), (std::vector<int>{H5, H4})) << i;
        world.form.FeedResize({7920, 7710});
        world.platform.Advance(100);
        EXPECT_GT(world.form.shared.CardWidth, 700) << "the rescale comes " << i;
        world.DragOnto(H5, FirstColumnBase);
        EXPECT_EQ(world.Cards(0), (std::vector<int>{H5, H4})) << i;
    }
    // A deal leaves nothing of it either.
    GameWorld world;
    const int card = world.table.TopCard(7);
    const Point at = world.Corner(card);
    world.Grab(card, 840, 840);
    world.form.deal.NewDeal();
    world.form.scaling.ScaleTable(1.0F);
    world.form.ring.NextStockCard();
    const Twips top = world.table.cardy[card].Top();
    world.platform.MoveMouse(world.form, at.x, at.y + 2000);
    world.platform.Release(world.form, at.x, at.y + 2000);
    EXPECT_EQ(world.table.cardy[card].Top(), top);
    EXPECT_EQ(world.Fault(), "");
}

TEST(MovesTest, ADropJudgesForItself)
{
    GameWorld world({.columns = {{H6}, {S5}}});
    world.form.hand.Take(S5);
    world.form.drops.DropOnStack(FirstColumnBase); // the base under a card of another suit
    EXPECT_EQ(world.Cards(1), std::vector<int>{S5});
    EXPECT_EQ(world.TakeSounds(), Sounds{"_error.wav"});
    EXPECT_TRUE(world.form.hand.IsEmpty());
    EXPECT_THROW(world.table.cardy[ItemCount].Caption(), std::out_of_range);
    EXPECT_THROW(world.table.Stacks[NoStack].Count(), std::out_of_range);
}

} // namespace
} // namespace tessarine::test
