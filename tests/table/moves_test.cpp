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
    GameWorld world({.columns = {{H6}, {H5, H4, H3}, {S2}}});
    world.DragOnto(H5, H6);
    EXPECT_EQ(world.Cards(0), (std::vector<int>{H6, H5, H4, H3}));
    for (int row = 1; row <= 3; ++row) {
        EXPECT_EQ(world.Place(H6 - row), (Point{40, 700 + 375.0 * row}));
    }
    EXPECT_EQ(world.TakeSounds(), Sounds{"_droponstack.wav"});

    world.DragOnto(H3, FirstColumnBase + 5);
    EXPECT_EQ(world.Cards(5), std::vector<int>{H3});
    EXPECT_EQ(world.Place(H3), (Point{2440, 700}));
    EXPECT_EQ(world.TakeSounds(), Sounds{"_dropone.wav"});
}

TEST(MovesTest, IllegalDropsGoHomeWithASoundAndTheOwnColumnIsSilent)
{
    GameWorld world({.columns = {{H6}, {S5, S4}, {S7}}});
    world.DragOnto(S5, H6);            // wrong suit
    world.DragOnto(S5, S7);            // not one lower
    world.DragToPoint(S5, 4100, 2000); // over nothing
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_error.wav", "_error.wav", "_error.wav"}));
    world.DragToPoint(S5, 560, 3000); // its own column
    world.DragToPoint(S5, 100, 120);  // the stock's place
    EXPECT_EQ(world.TakeSounds(), Sounds{});
    EXPECT_EQ(world.Cards(0), std::vector<int>{H6});
    EXPECT_EQ(world.Cards(1), (std::vector<int>{S5, S4}));
    EXPECT_EQ(world.Place(S5), (Point{520, 700}));
    EXPECT_EQ(world.Place(S4), (Point{520, 1075}));
}

TEST(MovesTest, FinishedPilesTakeASuitFromZeroUp)
{
    GameWorld world({.columns = {{D1}, {D0}, {C0}}});
    world.DragOnto(D1, FirstPileBase + 3);
    EXPECT_EQ(world.TakeSounds(), Sounds{"_error.wav"});
    world.DragOnto(D0, FirstPileBase + 3);
    world.DragOnto(C0, FirstPileBase + 3);
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_droponsol.wav", "_error.wav"}));
    world.DragOnto(D1, FirstPileBase + 3);
    EXPECT_TRUE(world.table.cardy[D1].Font().underline);
    // What lies there stays there.
    world.DragOnto(D1, FirstColumnBase + 6);
    world.RightClick(D1);
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_droponsol.wav", "_error.wav"}));
    EXPECT_EQ(world.Cards(FirstPile + 3), (std::vector<int>{D0, D1}));
}

TEST(MovesTest, ARunFollowsItsLastCardOntoThePile)
{
    GameWorld world({.columns = {{O2, O1, O0}, {S9}}});
    world.DragOnto(O2, FirstPileBase);
    EXPECT_EQ(world.Cards(FirstPile), (std::vector<int>{O0, O1, O2}));
    EXPECT_TRUE(world.Cards(0).empty());
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_droponsol.wav", "_droponsol.wav", "_droponsol.wav"}));
    EXPECT_EQ(world.table.Picture2.FrontMostAt(100, 760), &world.table.cardy[FirstColumnBase]);
}

TEST(MovesTest, AutomoveTurnsUpTestsAndStops)
{
    // Face-down but for the last: each follower is turned up before it is tested.
    GameWorld world(
        {.columns = {{H9, S3, S2, S1}}, .stock = {S4}, .piles = {{S0}}, .faceDownInEachColumn = 3});
    world.RightClick(S1);
    EXPECT_EQ(world.Cards(FirstPile), (std::vector<int>{S0, S1, S2, S3}));
    EXPECT_EQ(world.Cards(0), std::vector<int>{H9});
    EXPECT_TRUE(world.table.IsFaceUp(H9));
    EXPECT_EQ(world.Cards(StockStack).back(), S4) << "the stock takes no part";
}

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

TEST(MovesTest, RightClickPrefersPilesThenFittingColumnsThenEmptyOnes)
{
    GameWorld world({.columns = {{}, {H2}, {H1}, {S3}}, .stock = {C8, C9}, .piles = {{}, {H0}}});
    world.RightClick(H1);
    EXPECT_EQ(world.Cards(FirstPile + 1), (std::vector<int>{H0, H1}));
    world.RightClick(S3); // alone in its column: no move to another empty one
    EXPECT_EQ(world.TakeSounds().back(), "_error.wav");
    world.RightClick(C9);
    world.RightClick(C8);
    EXPECT_EQ(world.Cards(0), (std::vector<int>{C9, C8}));
    world.ForgetSounds();
    world.RightClick(C9); // covered
    world.RightClick(FirstColumnBase + 5);
    world.RightClick(StockItem);
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_error.wav", "_error.wav"}));

    world.Arrange({.columns = {{O1, O0}, {D0}, {C5}}});
    world.RightClick(O0); // to the first empty pile, and the next
    world.RightClick(D0);
    EXPECT_EQ(world.Cards(FirstPile), (std::vector<int>{O0, O1}));
    EXPECT_EQ(world.Cards(FirstPile + 1), std::vector<int>{D0});
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

/// Left and another button over one drag, in every order of their releases: the drag alone counts.
TEST(GesturesTest, ASecondButtonDuringADragIsIgnoredWithItsRelease)
{
    for (const int button : {RightButton, MiddleButton}) {
        for (const char* const order : {"2L+-", "L2+-", "L+2-", "L2-+", "2L-+"}) {
            for (const bool legal : {true, false}) {
                const int higher = legal ? H6 : H7;
                GameWorld world({.columns = {{higher}, {S9, H5}}, .faceDownInEachColumn = 1});
                world.table.ShowCardFace(higher);
                const Point at = world.Corner(H5);
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
                EXPECT_EQ(world.Cards(legal ? 0 : 1).back(), H5) << told;
                EXPECT_EQ(world.Place(H5), (legal ? Point{40, 1075} : Point{520, 825})) << told;
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

TEST(UndoTest, TakesBackStockMovesNewestFirst)
{
    GameWorld world({.columns = {{S9}}, .stock = {D0, C8, C9}});
    world.DragOnto(C9, FirstColumnBase + 3);
    world.DragOnto(world.Cards(StockStack).back(), FirstPileBase + 2); // the 0 of D
    ASSERT_EQ(world.Cards(FirstPile + 2), std::vector<int>{D0});
    world.Press(world.form.NextCard[1]);
    world.ForgetSounds();
    world.Press(world.form.cmdundo);
    EXPECT_EQ(world.Cards(StockStack).back(), D0);
    EXPECT_FALSE(world.table.cardy[D0].Font().underline);
    EXPECT_TRUE(world.Cards(FirstPile + 2).empty());
    world.Press(world.form.cmdundo);
    EXPECT_EQ(world.Cards(StockStack).back(), C9);
    EXPECT_TRUE(world.Cards(3).empty());
    world.Press(world.form.cmdundo); // nothing is left
    EXPECT_EQ(world.TakeSounds(), (Sounds{"_undo.wav", "_undo.wav"}));
}

TEST(UndoTest, WhatClearsTheHistory)
{
    const std::vector<std::pair<std::function<void(GameWorld&)>, bool>> gestures = {
        {[](GameWorld& w) { w.DragToPoint(S9, 40, 1000); }, true},   // over its own column
        {[](GameWorld& w) { w.DragOnto(S9, FirstPileBase); }, true}, // illegal, on a pile
        {[](GameWorld& w) { w.DragToPoint(S9, 4200, 900); }, false}, // over nothing
        {[](GameWorld& w) { w.DragToPoint(S9, 60, 110); }, false},   // the stock's place
        {[](GameWorld& w) { w.RightClick(S9); }, false},             // finds no place
        {[](GameWorld& w) { w.RightClick(H3); }, true},              // moves
        {[](GameWorld& w) { w.DragOnto(C8, C9); }, false}};          // from the stock
    for (std::size_t i = 0; i < gestures.size(); ++i) {
        GameWorld world({.columns = {{S9}, {H4}, {H3}}, .stock = {C8, C7, C9}});
        world.DragOnto(C9, FirstColumnBase + 6);
        ASSERT_EQ(world.form.undo.Count(), 1U);
        gestures[i].first(world);
        EXPECT_EQ(world.form.undo.Count() == 0, gestures[i].second) << i;
    }
}

} // namespace
} // namespace tessarine::test
