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

TEST(MovesTest, ACardOrARunGoesOnTheNextHigherOfItsSuit)
{
    GameWorld world;
    world.Arrange(
        {.columns = {{Card('H', 6)}, {Card('H', 5), Card('H', 4), Card('H', 3)}, {Card('S', 2)}}});
    world.DragOnto(Card('H', 5), Card('H', 6));
    EXPECT_EQ(world.Cards(0), (std::vector<int>{16, 15, 14, 13}));
    for (int card = 15; card >= 13; --card) {
        EXPECT_EQ(world.table.cardy[At(card)].Left(), 40);
        EXPECT_EQ(world.table.cardy[At(card)].Top(), 700 + 375 * (16 - card));
    }
    EXPECT_EQ(world.TakeSounds(), Sounds{"_droponstack.wav"});

    world.DragOnto(Card('H', 3), FirstColumnBase + 5);
    EXPECT_EQ(world.Cards(5), std::vector<int>{13});
    EXPECT_EQ(world.table.cardy[13].Top(), 700);
    EXPECT_EQ(world.TakeSounds(), Sounds{"_dropone.wav"});
}

TEST(MovesTest, IllegalDropsGoHomeWithASoundAndTheOwnColumnIsSilent)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('H', 6)}, {Card('S', 5), Card('S', 4)}, {Card('S', 7)}}});
    const std::vector<std::vector<int>> before = {world.Cards(0), world.Cards(1), world.Cards(2)};
    world.DragOnto(Card('S', 5), Card('H', 6));  // wrong suit
    world.DragOnto(Card('S', 5), Card('S', 7));  // not one lower
    world.DragToPoint(Card('S', 5), 4100, 2000); // over nothing
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_error.wav", "_error.wav", "_error.wav"}));
    world.DragToPoint(Card('S', 5), 560, 3000); // its own column
    world.DragToPoint(Card('S', 5), 100, 120);  // the stock's place
    EXPECT_EQ(world.TakeSounds(), Sounds{});
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(world.Cards(column), before[At(column)]);
    }
    EXPECT_EQ(world.table.cardy[5].Top(), 700);
    EXPECT_EQ(world.table.cardy[4].Top(), 1075);
    EXPECT_EQ(world.table.cardy[4].Left(), 520);
}

TEST(MovesTest, FinishedPilesTakeASuitFromZeroUp)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('D', 1)}, {Card('D', 0)}, {Card('C', 0)}}});
    world.DragOnto(Card('D', 1), FirstPileBase + 3);
    EXPECT_EQ(world.TakeSounds(), Sounds{"_error.wav"});
    world.DragOnto(Card('D', 0), FirstPileBase + 3);
    world.DragOnto(Card('C', 0), FirstPileBase + 3);
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_droponsol.wav", "_error.wav"}));
    world.DragOnto(Card('D', 1), FirstPileBase + 3);
    EXPECT_EQ(world.Cards(FirstPile + 3), (std::vector<int>{20, 21}));
    EXPECT_TRUE(world.table.cardy[21].Font().underline);
    // What lies there stays there.
    world.ForgetSounds();
    world.DragOnto(Card('D', 1), FirstColumnBase + 6);
    EXPECT_EQ(world.TakeSounds(), Sounds{});
    world.RightClick(Card('D', 1));
    EXPECT_EQ(world.TakeSounds(), Sounds{"_error.wav"});
    EXPECT_EQ(world.Cards(FirstPile + 3), (std::vector<int>{20, 21}));
}

TEST(MovesTest, ARunFollowsItsLastCardOntoThePile)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('O', 2), Card('O', 1), Card('O', 0)}, {Card('S', 9)}}});
    world.DragOnto(Card('O', 2), FirstPileBase);
    EXPECT_EQ(world.Cards(FirstPile), (std::vector<int>{40, 41, 42}));
    EXPECT_TRUE(world.Cards(0).empty());
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_droponsol.wav", "_droponsol.wav", "_droponsol.wav"}));
    EXPECT_EQ(world.table.Picture2.FrontMostAt(100, 760), &world.table.cardy[At(FirstColumnBase)]);
}

TEST(MovesTest, AutomoveTurnsUpTestsAndStops)
{
    GameWorld world;
    // Face-down but for the last: each follower is turned up before it is tested.
    world.Arrange({.columns = {{Card('H', 9), Card('S', 3), Card('S', 2), Card('S', 1)}},
                   .stock = {Card('S', 4)},
                   .piles = {{Card('S', 0)}},
                   .faceDownInEachColumn = 3});
    world.RightClick(Card('S', 1));
    EXPECT_EQ(world.Cards(FirstPile), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(world.Cards(0), std::vector<int>{Card('H', 9)});
    EXPECT_TRUE(world.table.IsFaceUp(Card('H', 9)));
    EXPECT_EQ(world.Cards(StockStack).back(), Card('S', 4)) << "the stock takes no part";
}

TEST(MovesTest, ASlideTakesTenStepsToItsPlace)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('H', 6)}, {Card('H', 5)}, {Card('S', 1)}}});
    const auto start = world.platform.milliseconds;
    world.RightClick(Card('H', 5));
    EXPECT_EQ(world.platform.milliseconds - start, 30);
    EXPECT_EQ(world.table.cardy[15].Top(), 1075);
    world.form.shared.MoveSteps = 0;
    world.Arrange({.columns = {{Card('H', 6)}, {Card('H', 5)}, {Card('S', 1)}}});
    world.RightClick(Card('H', 5));
    EXPECT_EQ(world.platform.milliseconds - start, 30);
    EXPECT_EQ(world.Cards(0), (std::vector<int>{16, 15}));
}

TEST(MovesTest, RightClickPrefersPilesThenFittingColumnsThenEmptyOnes)
{
    GameWorld world;
    world.Arrange({.columns = {{}, {Card('H', 2)}, {Card('H', 1)}, {Card('S', 3)}},
                   .stock = {Card('C', 8), Card('C', 9)},
                   .piles = {{}, {Card('H', 0)}}});
    world.RightClick(Card('H', 1));
    EXPECT_EQ(world.Cards(FirstPile + 1), (std::vector<int>{10, 11}));
    world.ForgetSounds();
    world.RightClick(Card('S', 3)); // alone in its column: no move to another empty one
    EXPECT_EQ(world.TakeSounds(), Sounds{"_error.wav"});
    world.RightClick(Card('C', 9));
    EXPECT_EQ(world.Cards(0), std::vector<int>{Card('C', 9)});
    world.RightClick(Card('C', 8));
    EXPECT_EQ(world.Cards(0), (std::vector<int>{Card('C', 9), Card('C', 8)}));
    world.ForgetSounds();
    world.RightClick(Card('C', 9)); // covered
    world.RightClick(FirstColumnBase + 5);
    world.RightClick(StockItem);
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_error.wav", "_error.wav"}));
}

TEST(MovesTest, RightClickOnAZeroTakesTheFirstEmptyPile)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('O', 1), Card('O', 0)}, {Card('D', 0)}, {Card('C', 5)}}});
    world.RightClick(Card('O', 0));
    world.RightClick(Card('D', 0));
    EXPECT_EQ(world.Cards(FirstPile), (std::vector<int>{40, 41}));
    EXPECT_EQ(world.Cards(FirstPile + 1), std::vector<int>{20});
}

TEST(GesturesTest, OnlyAPlainLeftPressOnAPlayableCardPicksUp)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('H', 6), Card('H', 5)}, {}, {Card('S', 1), Card('S', 8)}},
                   .stock = {Card('C', 8)},
                   .faceDownInEachColumn = 1});
    const auto picksUp = [&](int item, int button, int shift) {
        const Point corner = world.Corner(item);
        world.platform.Press(world.form, corner.x + 60, corner.y + 60, button, shift);
        const bool dragging = world.form.hand.Dragging();
        world.platform.Release(world.form, corner.x + 60, corner.y + 60, button, shift);
        return dragging;
    };
    EXPECT_TRUE(picksUp(Card('H', 5), LeftButton, 0));
    EXPECT_TRUE(picksUp(Card('C', 8), LeftButton, 0));
    EXPECT_FALSE(picksUp(Card('H', 5), LeftButton, ShiftKey));
    EXPECT_FALSE(picksUp(Card('H', 5), MiddleButton, 0));
    EXPECT_FALSE(picksUp(Card('H', 6), LeftButton, 0)) << "face-down";
    EXPECT_FALSE(picksUp(FirstColumnBase + 1, LeftButton, 0));
    EXPECT_FALSE(world.form.hand.Dragging());
}

/// Left and another button over one drag, in every order of their releases: the drag alone counts.
TEST(GesturesTest, ASecondButtonDuringADragIsIgnoredWithItsRelease)
{
    for (const int button : {RightButton, MiddleButton}) {
        for (const char* const order : {"2L+-", "L2+-", "L+2-", "L2-+", "2L-+"}) {
            for (const bool legal : {true, false}) {
                GameWorld world;
                world.Arrange({.columns = {{Card('H', legal ? 6 : 7)}, {Card('S', 9), Card('H', 5)}},
                               .faceDownInEachColumn = 1});
                world.table.ShowCardFace(Card('H', legal ? 6 : 7));
                const Point at = world.Corner(Card('H', 5));
                Point pointer{at.x + 60, at.y + 60};
                for (const char* step = order; *step != 0; ++step) {
                    if (*step == 'L') {
                        world.platform.Press(world.form, pointer.x, pointer.y);
                        pointer = {at.x - 420, at.y + 600};
                        world.platform.MoveMouse(world.form, pointer.x, pointer.y);
                    } else if (*step == '2') {
                        world.platform.Press(world.form, pointer.x, pointer.y, button);
                    } else {
                        world.platform.Release(world.form, pointer.x, pointer.y,
                                               *step == '-' ? LeftButton : button);
                    }
                }
                const std::string told = std::string(order) + (legal ? " legal" : " illegal");
                EXPECT_EQ(world.TakeSounds(), Sounds{legal ? "_dropone.wav" : "_error.wav"}) << told;
                EXPECT_EQ(world.Cards(legal ? 0 : 1).back(), Card('H', 5)) << told;
                EXPECT_EQ(world.table.cardy[15].Left(), legal ? 40 : 520) << told;
                EXPECT_EQ(world.table.cardy[15].Top(), legal ? 1075 : 825) << told;
            }
        }
    }
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
        GameWorld world;
        world.Arrange(
            {.columns = {{}, {Card('H', 5), Card('H', 4)}}, .stock = {Card('C', 1), Card('C', 2)}});
        const Point at = world.Corner(Card('H', 5));
        world.platform.Press(world.form, at.x + 60, at.y + 60);
        world.platform.MoveMouse(world.form, at.x + 900, at.y + 900);
        disturbances[i](world);
        EXPECT_EQ(world.table.cardy[15].Left(), 520) << i;
        EXPECT_EQ(world.table.cardy[15].Top(), 700) << i;
        EXPECT_EQ(world.table.cardy[14].Top(), 1075) << i;
        const Sounds sounds = world.TakeSounds();
        EXPECT_EQ(std::ranges::count(sounds, "_error.wav"), 0) << i;
        world.platform.Release(world.form, at.x + 900, at.y + 900);
        EXPECT_EQ(world.Cards(1), (std::vector<int>{15, 14})) << i;
        world.form.FeedResize({7920, 7710});
        world.platform.Advance(100);
        EXPECT_GT(world.form.shared.CardWidth, 700) << "the rescale comes " << i;
        world.DragOnto(Card('H', 5), FirstColumnBase);
        EXPECT_EQ(world.Cards(0), (std::vector<int>{15, 14})) << i;
    }
    // A deal leaves nothing of it either.
    GameWorld world;
    const int card = world.table.TopCard(7);
    const Point at = world.Corner(card);
    world.platform.Press(world.form, at.x + 60, at.y + 60);
    world.platform.MoveMouse(world.form, at.x + 900, at.y + 900);
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
    GameWorld world;
    world.Arrange({.columns = {{Card('H', 6)}, {Card('S', 5)}}});
    world.form.hand.Take(Card('S', 5));
    world.form.drops.DropOnStack(FirstColumnBase); // the base under a card of another suit
    EXPECT_EQ(world.Cards(1), std::vector<int>{Card('S', 5)});
    EXPECT_EQ(world.TakeSounds(), Sounds{"_error.wav"});
    EXPECT_TRUE(world.form.hand.IsEmpty());
    EXPECT_THROW(world.table.cardy[ItemCount].Caption(), std::out_of_range);
    EXPECT_THROW(world.table.Stacks[NoStack].Count(), std::out_of_range);
}

TEST(GesturesTest, ZonesOfStockPilesAndColumns)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('H', 6)}}, .piles = {}});
    const auto over = [&](Whole left, Whole top) {
        world.table.cardy[16].Move(left, top);
        return world.form.gestures.FindDropTarget(16).item;
    };
    EXPECT_EQ(over(-161, 100), StockItem); // 40 - 202 = -162 is still outside
    EXPECT_EQ(over(-162, 100), NoCard);
    EXPECT_EQ(over(40, 474), StockItem);
    EXPECT_EQ(over(40, 475), 16); // below the stock: column 0 and its last card
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

TEST(UndoTest, TakesBackStockMovesNewestFirst)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('S', 9)}}, .stock = {Card('D', 0), Card('C', 8), Card('C', 9)}});
    world.DragOnto(Card('C', 9), FirstColumnBase + 3);
    world.DragOnto(world.Cards(StockStack).back(), FirstPileBase + 2); // the 0 of D
    ASSERT_EQ(world.Cards(FirstPile + 2), std::vector<int>{20});
    world.Press(world.form.NextCard[1]);
    world.ForgetSounds();
    world.Press(world.form.cmdundo);
    EXPECT_EQ(world.Cards(StockStack).back(), 20);
    EXPECT_FALSE(world.table.cardy[20].Font().underline);
    EXPECT_TRUE(world.Cards(FirstPile + 2).empty());
    world.Press(world.form.cmdundo);
    EXPECT_EQ(world.Cards(StockStack).back(), Card('C', 9));
    EXPECT_TRUE(world.Cards(3).empty());
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_undo.wav", "_undo.wav"}));
    world.Press(world.form.cmdundo);
    EXPECT_EQ(world.TakeSounds(), Sounds{});
}

TEST(UndoTest, WhatClearsTheHistory)
{
    const std::vector<std::pair<std::function<void(GameWorld&)>, bool>> gestures = {
        {[](GameWorld& w) { w.DragToPoint(Card('S', 9), 40, 1000); }, true},    // over its own column
        {[](GameWorld& w) { w.DragOnto(Card('S', 9), FirstPileBase); }, true},  // illegal, on a pile
        {[](GameWorld& w) { w.DragToPoint(Card('S', 9), 4200, 900); }, false},  // over nothing
        {[](GameWorld& w) { w.DragToPoint(Card('S', 9), 60, 110); }, false},    // the stock's place
        {[](GameWorld& w) { w.RightClick(Card('S', 9)); }, false},              // finds no place
        {[](GameWorld& w) { w.RightClick(Card('H', 3)); }, true},               // moves
        {[](GameWorld& w) { w.DragOnto(Card('C', 8), Card('C', 9)); }, false}}; // from the stock
    for (std::size_t i = 0; i < gestures.size(); ++i) {
        GameWorld world;
        world.Arrange({.columns = {{Card('S', 9)}, {Card('H', 4)}, {Card('H', 3)}},
                       .stock = {Card('C', 8), Card('C', 7), Card('C', 9)}});
        world.DragOnto(Card('C', 9), FirstColumnBase + 6);
        ASSERT_EQ(world.form.undo.Count(), 1U);
        gestures[i].first(world);
        EXPECT_EQ(world.form.undo.Count() == 0, gestures[i].second) << i;
    }
}

} // namespace
} // namespace tessarine::test
