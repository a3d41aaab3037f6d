#include "support/game_world.h"
#include "support/random_play.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace tessarine::test
{
namespace
{

TEST(WholeGameTest, RandomPlayKeepsTheTableInOrder)
{
    for (unsigned seed = 0; seed < 20; ++seed) {
        GameWorld world(seed);
        std::mt19937 random(seed);
        const auto choice = [&random](int bound) {
            return static_cast<int>(random() % static_cast<unsigned>(bound));
        };
        for (int gesture = 0; gesture < 400; ++gesture) {
            PlayOneGesture(world, choice);
            ASSERT_EQ(world.Fault(), "") << "seed " << seed << ", gesture " << gesture;
            ASSERT_TRUE(world.platform.plainMessages.empty());
        }
        EXPECT_FALSE(world.platform.HasWork());
    }
}

/// A deal that plays itself to the win: each column and the stock hold the suits in order.
GameWorld::Position AlmostDone()
{
    GameWorld::Position position;
    for (const char suit : {'S', 'H', 'D', 'C'}) {
        std::vector<int> pile;
        for (int number = 0; number < CardsInSuit; ++number) {
            pile.push_back(Card(suit, number));
        }
        position.piles.push_back(pile);
    }
    position.piles.push_back({Card('O', 0), Card('O', 1), Card('O', 2), Card('O', 3), Card('O', 4),
                              Card('O', 5), Card('O', 6)});
    return position;
}

void ExpectWon(GameWorld& world)
{
    EXPECT_EQ(world.platform.modalCaptions, std::vector<std::string>{"Tessarine"});
    EXPECT_EQ(world.form.Score1.ThisSession[1].Caption(), "1");
    EXPECT_EQ(world.form.Score1.AllSessions[2].Caption(), "1");
    EXPECT_EQ(world.form.Score1.AllSessions[4].Caption(), "0");
    EXPECT_EQ(world.Cards(7).size(), 7U) << "the next game is dealt";
    EXPECT_EQ(world.Fault(), "");
    std::string order;
    for (const std::string& card : world.table.CardOrder) {
        order += card + "\r\n";
    }
    EXPECT_EQ(world.platform.files["/app/tempgame.txt"], order);
}

TEST(WholeGameTest, EveryWayToTheWinEndsOnce)
{
    const auto play = [](const std::vector<int>& column, const std::vector<int>& stock, auto&& gesture) {
        GameWorld world;
        GameWorld::Position position = AlmostDone();
        position.columns = {column};
        position.stock = stock;
        world.Arrange(position);
        std::string message;
        world.platform.OnNextModal([&](Form& form) {
            message = static_cast<MsgForm&>(form).Label1.Caption();
            world.platform.Click(static_cast<MsgForm&>(form).cmd[0]);
        });
        gesture(world);
        EXPECT_EQ(message, "Its all done!");
        ExpectWon(world);
    };
    constexpr int last = FirstPileBase + 4;
    // A press in the events after the message begins nothing: the game counts once.
    play({Card('O', 9), Card('O', 8), Card('O', 7)}, {}, [](GameWorld& w) {
        for (int pump = 0; pump < 400; ++pump) {
            w.platform.meanwhile.emplace_back([&w] {
                w.form.cmdnewgame.UserActivates();
                w.Press(w.form.cmdnewgame);
            });
        }
        w.RightClick(Card('O', 7));
        w.platform.meanwhile.clear();
    });
    // By automove, by the right click and the drag of a last card, from a column and from the stock.
    play({Card('O', 9), Card('O', 8), Card('O', 7)}, {},
         [](GameWorld& w) { w.RightClick(Card('O', 7)); });
    play({Card('O', 9), Card('O', 8), Card('O', 7)}, {},
         [](GameWorld& w) { w.DragOnto(Card('O', 9), last); });
    const auto toLastOfStock = [](GameWorld& w) {
        w.RightClick(Card('O', 7));
        w.RightClick(Card('O', 8));
    };
    play({Card('O', 8), Card('O', 7)}, {Card('O', 9)}, [&](GameWorld& w) {
        toLastOfStock(w);
        w.RightClick(Card('O', 9));
    });
    play({Card('O', 8), Card('O', 7)}, {Card('O', 9)}, [&](GameWorld& w) {
        toLastOfStock(w);
        w.DragOnto(Card('O', 9), last);
    });
}

/// Input at each step of a slide, when the card is between two places.
TEST(MiddleOfAMoveTest, InputChangesNothing)
{
    for (int step = 0; step < 10; ++step) {
        GameWorld world;
        world.Arrange({.columns = {{Card('H', 6)}, {Card('H', 5)}, {Card('S', 3)}, {Card('S', 2)}},
                       .stock = {Card('C', 1), Card('C', 2)}});
        const std::vector<int> stock = world.Cards(StockStack);
        // Each pump inside the move takes the next entry; the waits of the slide are ten of them.
        for (int before = 0; before < step; ++before) {
            world.platform.meanwhile.emplace_back([] {});
        }
        world.platform.meanwhile.emplace_back([&world] {
            world.RightClick(Card('S', 2));
            world.DragOnto(Card('S', 2), Card('S', 3));
            world.Press(world.form.NextCard[1]);
            world.Press(world.form.cmdnewgame);
            world.Press(world.form.cmdundo);
            world.form.NextCard[1].UserActivates();
            world.form.FeedResize({7920, 7710});
        });
        world.RightClick(Card('H', 5));
        EXPECT_EQ(world.Cards(0), (std::vector<int>{16, 15})) << step;
        EXPECT_EQ(world.Cards(3), std::vector<int>{Card('S', 2)}) << step;
        EXPECT_EQ(world.Cards(StockStack), stock) << step;
        EXPECT_EQ(world.table.cardy[15].Top(), 1075) << "not rescaled in the middle";
        EXPECT_TRUE(world.platform.modalCaptions.empty()) << step;
        EXPECT_FALSE(world.form.hand.Dragging());
        // The rescale that fell due comes after the move.
        world.platform.Advance(200);
        EXPECT_NEAR(world.form.shared.CardWidth, 405 * 8040.0 / 4080, 1) << step;
        EXPECT_EQ(world.table.cardy[15].Top(), world.table.StackTop[0] + world.form.shared.FanStep);
    }
}

/// A press and its release that a layout or a move comes between begin nothing, and leave no mark.
TEST(MiddleOfAMoveTest, APressAndItsReleaseBelongTogether)
{
    GameWorld world;
    world.Arrange({.columns = {{Card('H', 6)}, {Card('H', 5)}, {Card('S', 8), Card('D', 3)}},
                   .stock = {Card('C', 1)},
                   .piles = {{Card('S', 0)}}});
    const std::vector<int> ring = world.Cards(StockStack);
    BoxControl& turn = world.form.NextCard[1];
    const Point button = turn.PlaceOnForm();
    const Point card = world.Corner(Card('D', 3));
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
    world.RightClick(Card('H', 5)); // the press comes in its slide
    world.platform.Release(world.form, button.x + 50, button.y + 50);
    EXPECT_FALSE(turn.HasBorder());
    EXPECT_EQ(world.Cards(StockStack), ring);
    EXPECT_EQ(world.Cards(2).back(), Card('D', 3));
    EXPECT_EQ(world.Cards(0), (std::vector<int>{16, 15})) << "the move itself";

    // A rescale that falls due in the middle of a drag waits for its end.
    world.platform.Press(world.form, card.x + 50, card.y + 50);
    world.form.FeedResize({7920, 7710});
    world.platform.Advance(250);
    EXPECT_EQ(world.form.shared.CardWidth, 405);
    world.platform.Release(world.form, card.x + 50, card.y + 50);
    world.platform.Advance(100);
    EXPECT_GT(world.form.shared.CardWidth, 700);
}

/// Somebody reads the table whenever events run during a deal: every card has its stack, and every item
/// an answer.
TEST(MiddleOfAMoveTest, ADealIsWholeBeforeAnythingElseRuns)
{
    GameWorld world;
    int readings = 0;
    std::string fault;
    const std::function<void()> read = [&] {
        ++readings;
        for (int card = 0; card < CardCount; ++card) {
            int places = 0;
            for (int stack = 0; stack < StackCount; ++stack) {
                const std::vector<int> cards = world.Cards(stack);
                const bool isHere = std::ranges::find(cards, card) != cards.end();
                places += isHere ? 1 : 0;
                if (isHere != (world.table.CardStack[card] == stack)) {
                    fault = "card " + std::to_string(card);
                }
            }
            fault = places == 1 ? fault : "card " + std::to_string(card) + " is not in one place";
        }
        for (const Label& item : world.table.cardy) {
            const std::string name = item.AccessibleName();
            fault = item.Visible() || name.empty() ? fault : "hidden, yet told: " + name;
        }
    };
    for (int pump = 0; pump < 25; ++pump) {
        world.platform.meanwhile.emplace_back(read);
    }
    world.form.deal.NewDeal();
    EXPECT_EQ(fault, "");
    EXPECT_EQ(readings, 25) << "events run at each face that is drawn";
}

TEST(MiddleOfAMoveTest, ACloseEndsTheProgramAtOnce)
{
    for (int step = 0; step < 10; ++step) {
        GameWorld world;
        world.Arrange({.columns = {{Card('H', 6)}, {Card('H', 5)}, {Card('S', 3)}}});
        const auto files = world.platform.files;
        for (int before = 0; before < step; ++before) {
            world.platform.meanwhile.emplace_back([] {});
        }
        bool ended = false;
        world.platform.meanwhile.emplace_back([&] {
            world.form.FeedClose();
            ended = world.platform.ended;
        });
        world.RightClick(Card('H', 5));
        EXPECT_TRUE(ended) << step;
        EXPECT_EQ(world.platform.files, files) << step;
    }
}

TEST(StartTest, FirstRunTellsOnceAndWritesItsFiles)
{
    HeadlessPlatform platform;
    platform.files["/app/all.col"] = "";
    std::vector<std::string> told;
    for (int box = 0; box < 2; ++box) {
        platform.OnNextModal([&](Form& form) {
            told.push_back(static_cast<MsgForm&>(form).Label1.Caption());
            platform.Click(static_cast<MsgForm&>(form).cmd[0]);
        });
    }
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
        platform.OnNextModal([&](Form& form) {
            told.push_back(static_cast<MsgForm&>(form).Label1.Caption());
            platform.Click(static_cast<MsgForm&>(form).cmd[0]);
        });
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
    const std::string deal = first.platform.files["/app/tempgame.txt"];
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
    EXPECT_NE(platform.files["/app/tempgame.txt"], deal);
    EXPECT_EQ(platform.unscriptedModals, 0);
}

} // namespace
} // namespace tessarine::test
