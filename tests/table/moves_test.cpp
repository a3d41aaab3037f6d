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

TEST(MovesTest, ASlideTakesTenStepsToItsPlace)
{
    GameWorld world({.columns = {{H6}, {H5}, {S7, S1}}});
    const auto start = world.platform.milliseconds;
    world.RightClick(H5);
    EXPECT_EQ(world.platform.milliseconds - start, 30);
    EXPECT_EQ(world.Place(H5), (Point{40, 1075}));
    world.form.shared.MoveSteps = 0;
    world.RightClick(S1);
    EXPECT_EQ(world.platform.milliseconds - start, 30);
    EXPECT_EQ(world.Place(S1), (Point{520, 700}));
}

TEST(GesturesTest, OnlyAPlainLeftPressOnAPlayableCardPicksUp)
{
    GameWorld world({.columns = {{H6, H5}, {}, {S1, S8}}, .stock = {C8}, .faceDownInEachColumn = 1});
    const auto picksUp = [&](int item, int button = LeftButton, int shift = 0) {
        const Point corner = world.Corner(item);
        world.platform.Press(world.form, corner.x + 60, corner.y + 60, button, shift);
        const bool dragging = world.form.hand.Dragging();
        world.platform.Release(world.form, corner.x + 60, corner.y + 60, button, shift);
        return dragging;
    };
    EXPECT_TRUE(picksUp(H5));
    EXPECT_TRUE(picksUp(C8));
    EXPECT_FALSE(picksUp(H5, LeftButton, ShiftKey));
    EXPECT_FALSE(picksUp(H5, MiddleButton));
    EXPECT_FALSE(picksUp(H6)) << "face-down";
    EXPECT_FALSE(picksUp(FirstColumnBase + 1));
    EXPECT_FALSE(world.form.hand.Dragging());
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

TEST(GesturesTest, ZonesOfStockPilesAndColumns)
{
    GameWorld world({.columns = {{H6}}});
    const auto over = [&](Whole left, Whole top) {
        world.table.cardy[H6].Move(left, top);
        return world.form.gestures.FindDropTarget(H6).item;
    };
    EXPECT_EQ(over(-161, 100), StockItem); // 40 - 202 = -162 is still outside
    EXPECT_EQ(over(-162, 100), NoCard);
    EXPECT_EQ(over(40, 474), StockItem);
    EXPECT_EQ(over(40, 475), H6); // below the stock: column 0 and its last card
    // Where the zones of two piles meet the one further left wins.
    EXPECT_EQ(over(2037, 100), FirstPileBase); // 1632 - 202 + 607.5 = 2037.5
    EXPECT_EQ(over(2038, 100), FirstPileBase + 1);
    EXPECT_EQ(over(3400, 100), FirstPileBase + 4);
    // A column reaches from a quarter card to the left, 445.5 twips wide, at any height.
    EXPECT_EQ(over(520 - 101, 5000), NoCard);
    EXPECT_EQ(over(520 - 100, 5000), FirstColumnBase + 1);
    EXPECT_EQ(over(520 - 101 + 445, 5000), FirstColumnBase + 1);
    EXPECT_EQ(over(520 - 101 + 446, 5000), NoCard);
}

} // namespace
} // namespace tessarine::test
