#include "support/game_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

namespace tessarine::test
{
namespace
{

TEST(DealTest, LaysTheTriangleAndTheRing)
{
    GameWorld world;
    Table& table = world.table;
    std::size_t next = 0;
    for (int column = 0; column < Columns; ++column) {
        const std::vector<int> cards = world.Cards(column);
        ASSERT_EQ(cards.size(), At(column));
        for (std::size_t i = 0; i < cards.size(); ++i) {
            EXPECT_EQ(EntryOfCard(cards[i]), table.CardOrder.At(next++));
            EXPECT_EQ(table.IsFaceUp(cards[i]), i + 1 == cards.size());
        }
    }
    const std::vector<int> stock = world.Cards(StockStack);
    ASSERT_EQ(stock.size(), 23U);
    EXPECT_EQ(stock.front(), -1);
    EXPECT_EQ(EntryOfCard(stock.back()), table.CardOrder.At(49));
    EXPECT_EQ(world.Fault(), "");
    EXPECT_EQ(world.form.undo.Count(), 0U);
}

TEST(DealTest, PlacesAtDesignSize)
{
    GameWorld world;
    Table& table = world.table;
    const std::vector<Whole> columns(table.StackLeft.begin(), table.StackLeft.begin() + Columns);
    EXPECT_EQ(columns, (std::vector<Whole>{40, 520, 1000, 1480, 1960, 2440, 2920, 3400}));
    const std::vector<Whole> piles(table.StackLeft.begin() + FirstPile, table.StackLeft.end());
    EXPECT_EQ(piles, (std::vector<Whole>{1632, 2074, 2516, 2958, 3400}));
    EXPECT_EQ(table.StackTop[0], 700);
    EXPECT_EQ(table.StackTop[At(StockStack)], 100);
    EXPECT_EQ(world.form.OuterWidth(), 4080);
    EXPECT_EQ(table.Picture2.Width(), 3905);
    EXPECT_EQ(world.form.NextCard[0].Left(), 445);
    EXPECT_EQ(world.form.NextCard[1].Left(), 647.5);
    EXPECT_EQ(world.form.NextCard[0].Top(), 193.75);
    EXPECT_EQ(table.cardy[0].Font().size, 13);
}

TEST(DealTest, AnOrderDealsTheSameGameAgain)
{
    GameWorld world;
    const auto stacks = [&world] {
        std::vector<std::vector<int>> all;
        for (int stack = 0; stack < StackCount; ++stack) {
            all.push_back(world.Cards(stack));
        }
        return all;
    };
    const auto before = stacks();
    world.Press(world.form.NextCard[1]);
    world.RightClick(world.table.TopCard(7));
    world.form.gameFile.LoadCardOrder("/app/tempgame.txt");
    EXPECT_EQ(stacks(), before);
    EXPECT_EQ(world.Fault(), "");
}

TEST(DealTest, ShufflesDifferUnderOneClockReadingAndAreFair)
{
    GameWorld world;
    // How often each card falls on the first place: 50 shuffles of a fair deck give none 12 times.
    std::array<int, CardCount> first{};
    std::set<std::string> orders;
    for (int i = 0; i < 50; ++i) {
        world.form.deal.NewDeal();
        world.form.ring.NextStockCard();
        ++first[At(CardOfEntry(world.table.CardOrder.At(0)))];
        orders.insert(world.Order());
    }
    EXPECT_EQ(orders.size(), 50U);
    EXPECT_LT(std::ranges::max(first), 12);
}

TEST(DealTest, ADealIsDrawnAtOnce)
{
    GameWorld world;
    bool frozenDuringDeal = false;
    world.platform.meanwhile.push_back(
        [&] { frozenDuringDeal = world.platform.frozen == &world.table.Picture2; });
    world.form.deal.NewDeal();
    EXPECT_TRUE(frozenDuringDeal);
    EXPECT_EQ(world.platform.frozen, nullptr);
}

TEST(StockRingTest, TurnsWithoutEndBothWays)
{
    GameWorld world;
    const std::vector<int> start = world.Cards(StockStack);
    for (const std::size_t way : {1U, 0U}) {
        for (int press = 0; press < 23; ++press) {
            world.Press(world.form.NextCard[way]);
            EXPECT_EQ(world.Fault(), "");
            EXPECT_EQ(world.Cards(StockStack).back(), start[At(way == 1 ? (44 - press) % 23 : press)]);
        }
        EXPECT_EQ(world.Cards(StockStack), start);
    }
}

TEST(StockRingTest, PlayingACardTurnsOnAndARightClickOnceMore)
{
    GameWorld world({.stock = {C8, C9, O0, O1}});
    world.DragOnto(O1, FirstColumnBase + 2);
    EXPECT_EQ(world.Cards(StockStack), (std::vector<int>{O0, -1, C8, C9}));
    world.RightClick(C9);
    EXPECT_EQ(world.Cards(StockStack), (std::vector<int>{-1, C8, O0}));
}

TEST(StockRingTest, UsedUpShowsUntilTheNextLayout)
{
    GameWorld world({.columns = {{S5}}, .stock = {S4}});
    world.DragOnto(S4, S5);
    const Label& place = world.table.cardy[At(StockItem)];
    EXPECT_EQ(place.Caption(), "X");
    EXPECT_TRUE(place.Visible());
    world.form.scaling.ScaleTable(1.0F);
    EXPECT_EQ(place.Caption(), "...");
    world.ForgetSounds();
    world.Press(world.form.NextCard[0]);
    EXPECT_EQ(place.Caption(), "X");
    EXPECT_EQ(world.Cards(StockStack), std::vector<int>{-1});
    EXPECT_EQ(world.TakeSounds(), std::vector<std::string>{"_nextcard.wav"});
    // An undo puts the card in front of it again.
    world.Press(world.form.cmdundo);
    EXPECT_EQ(world.Cards(StockStack), (std::vector<int>{-1, S4}));
    EXPECT_EQ(world.table.Picture2.FrontMostAt(100, 160), &world.table.cardy[At(S4)]);
}

} // namespace
} // namespace tessarine::test
