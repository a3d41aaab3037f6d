// The rules of the game a second time, as simply as can be: whatever a hand does, the table must show
// what these make of it.
#include "support/game_world.h"

#include "store/scramble.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <sstream>

namespace tessarine::test
{
namespace
{

using Row = std::vector<int>;
constexpr int Gap = -1;     ///< in the ring
constexpr int Nowhere = 14; ///< a stack that nothing is ever in
constexpr auto Snapshot = "/app/tempgame.txt";

/// A game on a table of size 1, and the hand that plays it.
struct Model {
    explicit Model(unsigned seed)
        : world(seed), random(seed), saved(seed % 4 == 0 ? 95 : 0), isRestless(saved > 0)
    {
        for (int number = 1; number <= saved; ++number) {
            world.platform.files[SavedGame(number)] = "mine";
        }
        disk = world.platform.files;
        Deal(world.Order());
        sounds.clear();
        world.platform.milliseconds = 0;
        CompareWhatAListenerIsTold();
    }

    GameWorld world;
    std::mt19937 random;
    Numbered<Row, 20> stacks;                 ///< columns 0 to 7, the ring 10, piles 15 to 19
    Numbered<int, 20> closed;                 ///< how many cards of a column are face-down
    std::vector<std::pair<int, int>> history; ///< where cards of the stock went
    std::vector<std::string> sounds;
    std::int64_t milliseconds = 0;    ///< that the cards slide
    Numbered<std::string, 80> heard;  ///< by a listener, of each item
    std::function<void()> letGoLater; ///< of a button that was pressed in the middle of something
    std::string gap;                  ///< what the ring's gap says
    bool isNewDeal = false;
    std::map<std::string, std::string> disk;
    int saved;                                      ///< deals, each under the next number
    bool isRestless;                                ///< the others play their games to the end
    std::array<int, 4> counts{};                    ///< played, won, drawn, lost
    std::vector<std::string> expected, told, asked; ///< by boxes

    static std::string SavedGame(int number) { return "/app/savedgame;" + TwoDigits(number) + ".gam"; }
    void Deal(const std::string& deal)
    {
        std::istringstream order(disk[Snapshot] = deal);
        stacks = {};
        stacks[10] = {Gap};
        for (int card = 0, column = 1; order >> card; column += std::ssize(stacks[column]) == column) {
            stacks[column < 8 ? column : 10].push_back(card);
            closed[column] = column < 8 ? column - 1 : 0;
        }
        history.clear();
        gap = "...";
        sounds.emplace_back("_shuf.wav");
    }
    int StackOf(int card)
    {
        const auto holds = [card](const Row& row) { return std::ranges::count(row, card) > 0; };
        return static_cast<int>(std::ranges::find_if(stacks, holds) - stacks.begin());
    }
    bool Fits(int card, int to)
    {
        const Row& on = stacks[to];
        return on.empty()
                   ? to < 8 || (to >= 15 && card % 10 == 0)
                   : to != 10 && card == on.back() + (to < 8 ? -1 : 1) && card / 10 == on.back() / 10;
    }
    void Rotate(bool forward)
    {
        Row& ring = stacks[10];
        gap = ring.size() == 1 ? "X" : gap;
        std::rotate(ring.begin(), forward ? ring.end() - 1 : ring.begin() + 1, ring.end());
    }
    void Move(int from, int count, int to)
    {
        Row& source = stacks[from];
        stacks[to].insert(stacks[to].end(), source.end() - count, source.end());
        source.erase(source.end() - count, source.end());
        milliseconds += count == 1 ? 30 : 0; // a run jumps
        sounds.emplace_back(to >= 15     ? "_droponsol.wav"
                            : count == 1 ? "_dropone.wav"
                                         : "_droponstack.wav");
        if (from == 10) {
            history.emplace_back(to, stacks[to].back());
            Rotate(true);
        }
        closed[from] = std::clamp(static_cast<int>(source.size()) - 1, 0, closed[from]);
    }
    void AfterMove(int from, int to)
    {
        while (from < 8 && to >= 15 && !stacks[from].empty() && Fits(stacks[from].back(), to)) {
            Move(from, 1, to);
        }
        if (from < 8) {
            history.clear();
        }
        if (std::accumulate(stacks.begin() + 15, stacks.end(), 0UL,
                            [](auto sum, auto& row) { return sum + row.size(); }) == 50) {
            sounds.emplace_back("_done.wav");
            Box("Happy: Its all done!", "Ok");
            Count(1);
        }
    }
    void Drop(int from, int count, int to)
    {
        const Row& source = stacks[from];
        if (to == 10) {
            return; // the stock takes nothing back
        }
        if (Fits(to >= 15 ? source.back() : *(source.end() - count), to)) {
            Move(from, to >= 15 ? 1 : count, to);
        } else if (to != from) {
            sounds.emplace_back("_error.wav");
        }
        if (to != Nowhere) {
            AfterMove(from, to);
        }
    }
    void RightClick(int item)
    {
        const int from = item < 50 ? StackOf(item) : item == 50 ? 10 : Nowhere;
        const bool isExposed = from < Nowhere && stacks[from].back() == item;
        if (from == 10 && stacks[10].back() == Gap) {
            return;
        }
        for (const int kind : {15, 0, 1}) { // the piles, columns with cards, empty columns
            for (int to = kind == 15 ? 15 : 0; isExposed && to < (kind == 15 ? 20 : 8); ++to) {
                const bool isKind = kind == 15 || (kind == 1) == stacks[to].empty();
                const bool isOfUse = kind != 1 || from == 10 || stacks[from].size() > 1;
                if (isKind && isOfUse && Fits(item, to)) {
                    Move(from, 1, to);
                    if (from == 10) {
                        Rotate(true);
                    }
                    return AfterMove(from, to);
                }
            }
        }
        sounds.emplace_back("_error.wav");
    }
    static int LeftOf(int stack)
    {
        return stack >= 15 ? 1632 + 442 * (stack - 15) : stack < 8 ? 40 + 480 * stack : 40;
    }
    /// The stack whose zone the corner of a dragged card is in.
    static int Under(Point corner)
    {
        for (const int stack : {10, 15, 16, 17, 18, 19, 0, 1, 2, 3, 4, 5, 6, 7}) {
            const Twips across = corner.x - LeftOf(stack) + (stack < 8 ? 101 : 202);
            const bool isIn = across > 0 && across < (stack < 8 ? 445.5 : 607.5);
            if (isIn && (stack < 8 || (corner.y > -88 && corner.y < 474.5))) {
                return stack;
            }
        }
        return Nowhere;
    }

    void Count(int how)
    {
        ++counts[0];
        ++counts.at(static_cast<std::size_t>(how));
        isNewDeal = true;
    }
    void Box(const std::string& text, const std::string& answer)
    {
        expected.push_back(text);
        Answer(world.platform, answer, told);
    }
    bool Asks(const std::string& question)
    {
        const bool agrees = isRestless && Choose(2) == 0;
        Box(question, agrees ? "Yes" : "No");
        return agrees;
    }
    /// The user chooses a file that holds a game, or a little less than one.
    void Load()
    {
        const std::string path = "/else/x.gam";
        Row cards(50);
        std::iota(cards.begin(), cards.end(), 0);
        std::ranges::shuffle(cards, random);
        std::string order;
        for (const int card : cards) {
            order += TwoDigits(card) + "\r\n";
        }
        std::string unixOrder = order + "and more\n00\n";
        std::erase(unixOrder, '\r');
        const std::vector<std::pair<std::string, std::string>> files = {
            {"", "It has fewer than 50 lines"},
            {order.substr(0, 196), "It has fewer than 50 lines"},
            {"50" + order.substr(2), "Line 1 is no card from 00 to 49"},
            {order.substr(0, 4) + "+1" + order.substr(6), "Line 2 is no card from 00 to 49"},
            {order.substr(0, 4) + order, "Line 2 holds a card a second time"},
            {order, ""},
            {unixOrder, ""}};
        const auto& [bytes, fault] = files[random() % (isRestless ? 7 : 5)];
        world.platform.files[path] = disk[path] = bytes;
        world.platform.chosenFiles.push_back(path);
        if (fault.empty()) {
            Box("Information: Game restored from file:\r\n" + path, "Ok");
            Deal(order);
        } else {
            Box("Critical: Game could not be loaded from file:\r\n" + path + "\r\nIt is no game file. " +
                    fault + ". The game on the table goes on.",
                "Ok");
        }
    }
    void Command()
    {
        Form1& form = world.form;
        sounds.emplace_back("_menu.wav");
        switch (Choose(6)) {
        case 0:
            if (Asks("Question: Abandon current game?")) {
                Count(3);
            }
            return world.Press(form.cmdnewgame);
        case 1:
            if (Asks("Question: Restore current game?")) {
                Box("Information: Game restored", "Ok");
                Deal(disk[Snapshot]);
                world.platform.files.erase(Snapshot); // and is written anew
            }
            return world.Press(form.cmdreset);
        case 2:
            if (saved == 99) {
                Box("Critical: Game could not be saved:\r\n/app/\r\nAll 99 names are taken. Remove a "
                    "game that "
                    "you "
                    "no longer need. The game on the table goes on.",
                    "Ok");
            } else {
                if (Choose(2) == 0) {
                    world.platform.files[Snapshot] = "of another program in this folder";
                }
                disk[SavedGame(++saved)] = disk[Snapshot];
                Box("Information: Game saved to file:\r\n" + SavedGame(saved), "Ok");
            }
            return world.Press(form.cmdSaveGame);
        case 3:
            if (Choose(4) > 0) { // or a cancel
                Load();
            }
            return world.Press(form.cmdLoadGame);
        case 4:
            Box("Question: Exit?", "No");
            return world.Press(form.cmdexit);
        default:
            world.Press(form.cmdscore);
            EXPECT_TRUE(form.Score1.Visible());
            world.platform.plainAnswers = {Choose(3) == 0};
            counts = world.platform.plainAnswers[0] ? std::array<int, 4>{} : counts;
            asked.emplace_back("Clear ALL scores");
            world.Press(form.Score1.Command2);
            world.Press(form.Score1.Command1);
            EXPECT_FALSE(form.Score1.Visible());
        }
    }

    int Choose(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }
    template <class Choices> auto AnyOf(const Choices& choices)
    {
        return choices.at(random() % choices.size());
    }
    /// A card that can be touched, or a base that no card covers.
    int AnyItemInSight()
    {
        const int stack = AnyOf(Row{0, 1, 2, 3, 4, 5, 6, 7, 10, 15, 16, 17, 18, 19});
        const Row& row = stacks[stack];
        return row.empty() || row.back() == Gap ? stack + (stack < 8 ? 60 : 40)
               : stack < 8                      ? AnyOf(row)
                                                : row.back();
    }
    /// A card and a stack that takes it, a stack with cards rather than an empty one.
    std::pair<int, int> AnyMove()
    {
        std::vector<std::pair<int, int>> moves = {{AnyItemInSight(), Choose(20)}};
        for (int from = 0; from <= 10; ++from) {
            const Row& row = stacks[from];
            for (int place = from == 10 ? static_cast<int>(row.size()) - 1 : closed[from];
                 place < std::ssize(row); ++place) {
                const int card = *(row.begin() + place);
                for (int to = 0; to < 20; ++to) {
                    const bool isOfUse = card != Gap && (to >= 15 ? card == row.back()
                                                                  : place > 0 || !stacks[to].empty());
                    moves.insert(moves.end(),
                                 !isOfUse || !Fits(card, to) ? 0
                                 : stacks[to].empty()        ? 1
                                                             : 5,
                                 {card, to});
                }
            }
        }
        return AnyOf(moves);
    }
    void PressOnly(Point at)
    {
        const int button = AnyOf(Row{LeftButton, RightButton});
        world.platform.Press(world.form, at.x + 60, at.y + 60, button);
        letGoLater = [this, at, button] {
            world.platform.Release(world.form, at.x + 60, at.y + 60, button);
        };
    }
    /// What the user can begin in the middle of a move, and begins nothing.
    void Disturb()
    {
        Form1& form = world.form;
        const std::array<BoxControl*, 4> buttons = {&form.NextCard[1], &form.cmdundo, &form.cmdnewgame,
                                                    &form.cmdabout};
        BoxControl& button = *AnyOf(buttons);
        switch (Choose(6)) {
        case 0:
            return world.RightClick(AnyItemInSight());
        case 1:
            return world.DragOnto(AnyItemInSight(), Choose(70));
        case 2:
            return PressOnly(world.Corner(AnyItemInSight()));
        case 3:
            PressOnly(button.PlaceOnForm());
            break;
        case 4:
            world.Press(button);
            break;
        default:
            static_cast<Control&>(button).UserActivates();
        }
        EXPECT_FALSE(button.HasBorder());
    }
    /// In the middle of a drag, whose cards go home.
    void LoseMouse()
    {
        switch (Choose(3)) {
        case 0:
            return world.form.FeedMouseLost();
        case 1: // as an assistive tool presses it
            sounds.emplace_back("_nextcard.wav");
            Rotate(true);
            return world.form.NextCard[1].UserActivates();
        default:
            world.form.Score1.SetVisible(true);
            world.form.Score1.Command1.UserReleases(LeftButton);
        }
    }
    /// Brings the item's corner there and lets go, with another button beside the left one or the mouse
    /// taken away at times.
    void Drag(int item, Twips left, Twips top)
    {
        const int from = item < 50 ? StackOf(item) : Nowhere;
        const Row& row = stacks[from];
        const auto place = static_cast<int>(std::ranges::find(row, item) - row.begin());
        const int count = static_cast<int>(row.size()) - place;
        const int shift = Choose(15) == 0 ? ShiftKey : 0;
        const bool picksUp = from < Nowhere && place >= closed[from] && shift == 0;
        const Point home = world.Place(item);
        const Point corner = world.Corner(item);
        const Point end{corner.x + left - home.x + 60, corner.y + top - home.y + 60};
        int other = picksUp ? AnyOf(Row{RightButton, MiddleButton, 0, 0}) : 0;
        const auto letGoOfOther = [&] {
            world.platform.Release(world.form, end.x, end.y, std::exchange(other, 0));
        };
        world.platform.Press(world.form, corner.x + 60, corner.y + 60, LeftButton, shift);
        if (other != 0) {
            world.platform.Press(world.form, corner.x + 60, corner.y + 60, other);
            if (Choose(2) == 0) {
                letGoOfOther();
            }
        }
        world.platform.MoveMouse(world.form, end.x, end.y);
        const Point head = world.Place(item);
        if (!picksUp) {
            EXPECT_EQ(head, home);
        } else if (Choose(10) == 0) {
            LoseMouse();
        } else {
            EXPECT_TRUE(std::abs(head.x - left) < 15 && std::abs(head.y - top) < 15)
                << "it follows the hand";
            for (int i = 0; i < count; ++i) {
                EXPECT_EQ(world.Place(*(row.begin() + place + i)), (Point{head.x, head.y + 375.0 * i}));
            }
            Drop(from, count, Under(head));
        }
        world.platform.Release(world.form, end.x, end.y, LeftButton);
        letGoOfOther();
    }
    void PlayOneGesture()
    {
        const int kind = Choose(12);
        if (Choose(15) == 0) {
            Command();
        } else if (kind < 2) {
            sounds.emplace_back("_nextcard.wav");
            const bool forward = Choose(4) > 0;
            Rotate(forward);
            world.Press(world.form.NextCard[forward ? 1 : 0]);
        } else if (kind == 2) {
            if (!history.empty()) {
                sounds.emplace_back("_undo.wav");
                stacks[10].push_back(history.back().second);
                stacks[history.back().first].pop_back();
                history.pop_back();
            }
            world.Press(world.form.cmdundo);
        } else if (kind < 6) {
            const int item = AnyItemInSight();
            if (Choose(10) == 0) {
                PressOnly(world.Corner(item));
                world.form.FeedMouseLost();
            } else {
                RightClick(item);
                world.RightClick(item);
            }
        } else if (kind == 6) { // to where the zone of a stack begins or ends
            const int stack = AnyOf(Row{0, 3, 7, 10, 15, 17, 19});
            const Row edges = stack < 8 ? Row{-101, 344} : Row{-202, 405};
            Drag(AnyItemInSight(), LeftOf(stack) + AnyOf(edges) + Choose(60) - 30,
                 stack < 8 ? 1000 : AnyOf(Row{-88, 474}) + Choose(60) - 30);
        } else if (kind == 7) {
            Drag(AnyItemInSight(), Choose(5000) - 400, Choose(4000) - 200);
        } else {
            const auto [card, to] = AnyMove();
            Drag(card, LeftOf(to), to < 15 ? 600 + Choose(2000) : 100);
        }
    }
    /// The names of all items, and what is news since the last gesture.
    void CompareWhatAListenerIsTold()
    {
        Numbered<std::string, 70> names;
        auto before = std::exchange(heard, {});
        bool isDealt = false;
        for (const int stack : {0, 1, 2, 3, 4, 5, 6, 7, 10, 15, 16, 17, 18, 19}) {
            const std::string place = stack < 8    ? "column " + std::to_string(stack + 1)
                                      : stack < 15 ? "stock"
                                                   : "finished pile " + std::to_string(stack - 14);
            const Row& row = stacks[stack];
            for (int n = 0; n < std::ssize(row) && row.back() != Gap; ++n) {
                const int card = *(row.begin() + n);
                if (stack < 8 && n < closed[stack]) {
                    names[card] = heard[card] = "face-down card, " + place;
                    isDealt = isDealt || before[card] != heard[card];
                } else if (stack != 10 || card == row.back()) {
                    heard[card] = std::to_string(card % 10) + " of " + "SHDCO"[card / 10] + ", " + place;
                    names[card] = stack < 8 || card == row.back() ? heard[card] : "";
                }
            }
            if (row.empty()) {
                names[stack + (stack < 8 ? 60 : 40)] = "empty " + place;
                heard[stack + 60] = "empty " + place;
            } else if (row.back() == Gap) {
                names[50] = heard[50] = row.size() == 1 ? "stock, used up" : "stock, between two passes";
            }
        }
        std::set<std::string> news;
        for (int item = 0; item < 70; ++item) {
            EXPECT_EQ(world.table.cardy[item].AccessibleName(), names[item]) << item;
            if ((isDealt || before[item] != heard[item]) && !heard[item].starts_with("face-down")) {
                news.insert(heard[item]);
            }
        }
        news.erase("");
        std::string text = std::exchange(world.platform.announced, {});
        EXPECT_EQ(text.starts_with("new deal: "), isDealt);
        std::istringstream announced(text.substr(isDealt ? 10 : 0));
        std::set<std::string> announcements;
        for (std::string one; std::getline(announced, one, ';');) {
            announcements.insert(one.substr(one.find_first_not_of(' ')));
        }
        EXPECT_EQ(announcements, news);
    }
    void Compare()
    {
        EXPECT_EQ(std::exchange(told, {}), std::exchange(expected, {}));
        EXPECT_EQ(std::exchange(world.platform.plainMessages, {}), std::exchange(asked, {}));
        std::string line = "14Mar2008 ";
        for (std::size_t i = 0; i < counts.size(); ++i) {
            const std::string count = std::to_string(counts[i]);
            line += count + ' ';
            EXPECT_EQ(world.form.Score1.ThisSession[i + 1].Caption(), count);
            EXPECT_EQ(world.form.Score1.AllSessions[i + 1].Caption(), count);
        }
        std::string& scores = disk["/run/tessarine.sco"] = world.platform.files["/run/tessarine.sco"];
        EXPECT_TRUE(UnscrambleLine(scores).starts_with(line)) << UnscrambleLine(scores);
        EXPECT_EQ(world.platform.files, disk);
        EXPECT_FALSE(world.platform.busy);
        EXPECT_EQ(world.platform.unscriptedModals, 0);
        EXPECT_EQ(world.TakeSounds(), std::exchange(sounds, {}));
        EXPECT_EQ(std::exchange(world.platform.milliseconds, 0), std::exchange(milliseconds, 0));
        CompareWhatAListenerIsTold();
        for (int stack = 0; stack < 20; ++stack) {
            EXPECT_EQ(world.Cards(stack), stacks[stack]) << stack;
            Twips top = stack < 8 ? 700 : 100;
            for (int place = 0; const int card : stacks[stack]) {
                const bool isOpen = stack >= 8 || place++ >= closed[stack];
                if (card != Gap) {
                    const Label& shown = world.table.cardy[card];
                    EXPECT_EQ(world.Place(card), (Point{static_cast<Twips>(LeftOf(stack)), top}))
                        << card;
                    EXPECT_EQ(shown.Caption().empty(), !isOpen) << card;
                    EXPECT_TRUE(!isOpen || shown.Font().name == "arial") << "as it is stored";
                    EXPECT_EQ(shown.BackColor(), isOpen ? world.form.shared.SuitColor.at(
                                                              static_cast<std::size_t>(card) / 10)
                                                        : world.form.shared.Button())
                        << card;
                }
                top += stack >= 8 ? 0 : isOpen ? 375 : 125;
            }
        }
        EXPECT_EQ(world.table.cardy[50].Caption(), gap);
        EXPECT_EQ(world.Fault(), "");
    }
};

TEST(ModelTest, WhateverAHandDoesTheTableShowsWhatTheRulesMakeOfIt)
{
    int wins = 0;
    for (unsigned seed = 0; seed < 38; ++seed) {
        Model model(seed);
        for (int gesture = model.isRestless ? 550 : 0; gesture < 900 && !HasFailure(); ++gesture) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", gesture " + std::to_string(gesture));
            model.world.platform.meanwhile.assign(
                static_cast<std::size_t>(model.Choose(model.Choose(2) == 0 ? 3 : 30)), [] {});
            model.world.platform.meanwhile.emplace_back([&model] { model.Disturb(); });
            const int won = model.counts[1];
            model.PlayOneGesture();
            model.world.platform.meanwhile.clear();
            if (const auto letGo = std::exchange(model.letGoLater, {})) {
                letGo();
            }
            if (std::exchange(model.isNewDeal, false)) {
                EXPECT_NE(model.world.Order(), model.disk[Snapshot]);
                model.Deal(model.world.Order());
            }
            model.Compare();
            wins += model.counts[1] > won ? 1 : 0;
        }
    }
    EXPECT_GT(wins, 3) << "the games must come far enough";
}

} // namespace
} // namespace tessarine::test
