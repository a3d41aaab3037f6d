// Plays one game on a platform in memory and tells how to play the same game in a real window: each
// gesture with its pixels in the client area, and what the window must show after it.
//
//   x11_plan FOLDER OUT   FOLDER holds the program's data; writes OUT/tempgame.txt and OUT/steps
//   x11_plan score FILE   prints the plain text of a scores file
//
// A line of steps is one of
//   click BUTTON X Y | drag X Y TOX TOY | resize WIDTH HEIGHT     what the hand does
//   answer N OF      a message box of so many buttons opens: press the n-th
//   see WIDTH HEIGHT X,Y=RRGGBB ...                               what then shows
//   say WORDS
#include "form1.h"
#include "headless/headless_platform.h"
#include "runtime/files.h"
#include "store/scramble.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tessarine
{
namespace
{

const std::string ProgramFolder = "/run/";
constexpr Twips NearAnEdge = 2 * TwipsPerPixel;

/// The card of a name such as "3H".
int Card(std::string_view name)
{
    return static_cast<int>(SuitLetters.find(name[1])) * CardsInSuit + (name[0] - '0');
}

/// A deal that anybody wins: in each column the numbers only fall towards the player, so that the
/// lowest card still in play can always be reached. The ends of the columns hold what runs are made of.
std::vector<int> EasyDeal()
{
    const std::array<std::string_view, 7> ends = {"0S", "0D", "3H", "2H", "1H", "0H", "4H"};
    std::vector<int> rest;
    for (int number = CardsInSuit - 1; number >= 0; --number) {
        for (const char suit : SuitLetters) {
            const std::string name = {static_cast<char>('0' + number), suit};
            if (std::ranges::find(ends, name) == ends.end()) {
                rest.push_back(Card(name));
            }
        }
    }
    std::array<std::vector<int>, Columns> columns;
    auto next = rest.begin();
    for (std::size_t depth = 0; depth + 2 < Columns; ++depth) {
        for (std::size_t column = depth + 2; column < Columns; ++column) {
            columns[column].push_back(*next++);
        }
    }
    std::vector<int> deal;
    for (std::size_t column = 1; column < Columns; ++column) {
        deal.insert(deal.end(), columns[column].begin(), columns[column].end());
        deal.push_back(Card(ends[column - 1]));
    }
    deal.insert(deal.end(), next, rest.end());
    return deal;
}

std::string FileOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error(path + " can't be read");
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

Whole Pixels(Twips length)
{
    return RoundHalfEven(length / TwipsPerPixel);
}

class Plan
{
public:
    Plan(const std::string& folder, const std::string& out)
        : steps_(out + "/steps"), form1_(World(folder), ProgramFolder, "tessarine"), table_(form1_.table)
    {
        Start();
        Restore(out);
        PlayBeginning();
        PlayToTheEnd();
        steps_.close();
        if (!steps_) {
            throw std::runtime_error(out + "/steps can't be written");
        }
    }

private:
    HeadlessPlatform& World(const std::string& folder)
    {
        platform_.files[ProgramFolder + "all.col"] = FileOf(folder + "/all.col");
        return platform_;
    }

    void Start()
    {
        platform_.AnswerModal("Ok");
        form1_.Start();
        Say("the notice of the first start");
        steps_ << "answer 1 1\n";
    }

    void Restore(const std::string& out)
    {
        std::vector<std::string> lines;
        for (const int card : EasyDeal()) {
            lines.push_back(EntryOfCard(card));
        }
        const std::string file = JoinLines(lines);
        std::ofstream(out + "/tempgame.txt", std::ios::binary) << file;
        platform_.files[ProgramFolder + "tempgame.txt"] = file;

        Say("the deal is restored");
        platform_.AnswerModal("Yes");
        platform_.AnswerModal("Ok");
        Press(form1_.cmdreset);
        steps_ << "answer 1 2\nanswer 1 1\n";
        See();
    }

    /// A bit of everything that a hand can do.
    void PlayBeginning()
    {
        Say("the stock turns forwards and backwards");
        Press(form1_.NextCard[1]);
        See();
        Press(form1_.NextCard[0]);
        See();

        Say("a stock card goes to the empty column, is taken back, and goes to a pile");
        const int shown = table_.TopCard(StockStack);
        Drag(shown, FirstColumnBase);
        Expect(table_.TopCard(0) == shown, "a card of the stock lies on the empty column");
        Press(form1_.cmdundo);
        See();
        Expect(table_.TopCard(StockStack) == shown, "the card is back");
        RightClick(shown);
        Expect(table_.StackOf(shown) == FirstPile, "the card lies on a pile");

        Say("a card that does not fit goes home");
        Drag(Card("4H"), Card("0D"));
        Expect(table_.TopCard(7) == Card("4H"), "the card is home");

        Say("a card and then runs go from column to column");
        Drag(Card("1H"), Card("2H"));
        Drag(Card("2H"), Card("3H"));
        Drag(Card("3H"), Card("4H"));
        Expect(table_.TopCard(7) == Card("1H"), "the run lies in the last column");

        Say("a wider window has larger cards");
        Resize(520, 600);
        Say("a run goes to a pile from its end");
        Drag(Card("0H"), FirstPileBase + 1);
        Drag(Card("4H"), FirstPileBase + 1);
        Expect(table_.TopCard(FirstPile + 1) == Card("4H"), "the whole run lies on the pile");
        Say("a narrower window has smaller cards");
        Resize(380, 500);
    }

    void PlayToTheEnd()
    {
        std::string lastMessage;
        platform_.OnNextModal([&](Form& box) {
            lastMessage = form1_.msgForm.Label1.Caption();
            platform_.Click(*HeadlessPlatform::FindShown(box, "Ok"));
        });
        Say("every card to its pile");
        const std::size_t modals = platform_.modalCaptions.size();
        while (platform_.modalCaptions.size() == modals) {
            if (const std::optional<int> card = PlayableCard()) {
                RightClick(*card);
            } else {
                Press(form1_.NextCard[StockTurnsForwards() ? 1 : 0]);
                See();
            }
        }
        Expect(lastMessage == "Its all done!" && platform_.unscriptedModals == 0, "the game is won");
    }

    // --- the hand ---

    void Press(Control& button)
    {
        const Point corner = button.PlaceOnForm();
        steps_ << "click 1 " << Pixels(corner.x + button.Width() / 2) << ' '
               << Pixels(corner.y + button.Height() / 2) << '\n';
        platform_.Click(button);
        platform_.Advance(1000);
    }

    void RightClick(int card)
    {
        const Point middle = MiddleOf(card);
        steps_ << "click 3 " << Pixels(middle.x) << ' ' << Pixels(middle.y) << '\n';
        const std::size_t modals = platform_.modalCaptions.size();
        platform_.Press(form1_, middle.x, middle.y, RightButton);
        platform_.Release(form1_, middle.x, middle.y, RightButton);
        if (platform_.modalCaptions.size() != modals) {
            steps_ << "answer 1 1\n"; // the next deal is nobody's to foretell
            return;
        }
        See();
    }

    /// Takes a card by its middle and lets go of it where it lies as the rules will lay it.
    void Drag(int card, int target)
    {
        const Point from = MiddleOf(card);
        const bool below = target < CardCount && IsColumn(table_.StackOf(target));
        const Control& head = table_.cardy[At(card)];
        const Control& goal = table_.cardy[At(target)];
        const Point to = {from.x + TwipsPerPixel * Pixels(goal.Left() - head.Left()),
                          from.y +
                              TwipsPerPixel *
                                  Pixels(goal.Top() + (below ? form1_.shared.FanStep : 0) - head.Top())};
        steps_ << "drag " << Pixels(from.x) << ' ' << Pixels(from.y) << ' ' << Pixels(to.x) << ' '
               << Pixels(to.y) << '\n';
        platform_.Press(form1_, from.x, from.y);
        platform_.MoveMouse(form1_, (from.x + to.x) / 2, (from.y + to.y) / 2);
        platform_.MoveMouse(form1_, to.x, to.y);
        platform_.Release(form1_, to.x, to.y);
        See();
    }

    void Resize(Whole width, Whole height)
    {
        steps_ << "resize " << width << ' ' << height << '\n';
        form1_.FeedResize(
            {static_cast<Twips>(width * TwipsPerPixel), static_cast<Twips>(height * TwipsPerPixel)});
        platform_.Advance(1000);
        Expect(Pixels(form1_.Width()) != width, "the window snaps to the table");
        See();
    }

    Point MiddleOf(int item) const
    {
        const Control& label = table_.cardy[At(item)];
        const Point corner = label.PlaceOnForm();
        const Point middle = {corner.x + label.Width() / 2, corner.y + label.Height() / 2};
        return {static_cast<Twips>(Pixels(middle.x) * TwipsPerPixel),
                static_cast<Twips>(Pixels(middle.y) * TwipsPerPixel)};
    }

    // --- what to play ---

    bool FitsAPile(int card) const
    {
        for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
            const int top = table_.TopCard(pile);
            if (top == NoCard ? table_.CardNumber(card) == 0
                              : card == top + 1 && card % CardsInSuit != 0) {
                return true;
            }
        }
        return false;
    }

    std::optional<int> PlayableCard() const
    {
        for (int column = 0; column < Columns; ++column) {
            const int card = table_.TopCard(column);
            if (card != NoCard && FitsAPile(card)) {
                return card;
            }
        }
        const std::string& shown = table_.Stacks[StockStack].Back();
        if (shown != Marker && FitsAPile(CardOfEntry(shown))) {
            return CardOfEntry(shown);
        }
        return {};
    }

    /// Which way the nearest card lies that could be played.
    bool StockTurnsForwards() const
    {
        const TextList& ring = table_.Stacks[StockStack];
        const auto fits = [&](std::size_t position) {
            return ring.At(position) != Marker && FitsAPile(CardOfEntry(ring.At(position)));
        };
        for (std::size_t turns = 1; turns < ring.Count(); ++turns) {
            if (fits(ring.Count() - 1 - turns)) {
                return true;
            }
            if (fits(turns - 1)) {
                return false;
            }
        }
        throw std::runtime_error("no card can be played");
    }

    // --- what shows ---

    /// The colours at places that tell one position from another: on each item where it shows, and
    /// on the table below each column. Places near an edge or where a number may stand are left out.
    void See()
    {
        steps_ << "see " << Pixels(form1_.Width()) << ' ' << Pixels(form1_.Height());
        for (const Label& item : table_.cardy) {
            SeeItem(item);
        }
        for (int column = 0; column < Columns; ++column) {
            const TextList& cards = table_.Stacks[At(column)];
            const int last = cards.IsEmpty() ? FirstColumnBase + column : table_.TopCard(column);
            const Label& end = table_.cardy[At(last)];
            SeePoint(end.Left() + end.Width() * 0.15, end.Top() + end.Height() * 1.5, &table_.Picture2);
        }
        steps_ << '\n';
    }

    void SeeItem(const Label& item)
    {
        if (item.Visible()) {
            SeePoint(item.Left() + item.Width() * 0.15, item.Top() + item.Height() * 0.17, &item);
            SeePoint(item.Left() + item.Width() * 0.15, item.Top() + item.Height() * 0.85, &item);
        }
    }

    /// A point on the table's surface, if it is this control that shows there and all around.
    void SeePoint(Twips x, Twips y, const Control* expected)
    {
        for (const auto& [dx, dy] : {std::pair{-NearAnEdge, 0.0}, std::pair{NearAnEdge, 0.0},
                                     std::pair{0.0, -NearAnEdge}, std::pair{0.0, NearAnEdge}}) {
            const Control* there = table_.Picture2.FrontMostAt(x + dx, y + dy);
            if ((there == nullptr ? &table_.Picture2 : there) != expected ||
                y + dy > table_.Picture2.Height()) {
                return;
            }
        }
        const Point corner = table_.Picture2.PlaceOnForm();
        const Colour colour = TranslateColor(expected->BackColor());
        std::array<char, 8> hex{};
        std::snprintf(hex.data(), hex.size(), "%02X%02X%02X", static_cast<unsigned>(clrRed(colour)),
                      static_cast<unsigned>(clrGreen(colour)), static_cast<unsigned>(clrBlue(colour)));
        steps_ << ' ' << Pixels(corner.x + x) << ',' << Pixels(corner.y + y) << '=' << hex.data();
    }

    void Say(std::string_view words) { steps_ << "say " << words << '\n'; }

    static void Expect(bool holds, const char* what)
    {
        if (!holds) {
            throw std::runtime_error(std::string("not so: ") + what);
        }
    }

    HeadlessPlatform platform_;
    std::ofstream steps_;
    Form1 form1_;
    Table& table_;
};

} // namespace
} // namespace tessarine

int main(int count, char** arguments)
{
    try {
        if (count != 3) {
            throw std::runtime_error("x11_plan FOLDER OUT | x11_plan score FILE");
        }
        const std::string first = arguments[1];
        if (first == "score") {
            const auto lines = tessarine::SplitLines(tessarine::FileOf(arguments[2]));
            std::cout << tessarine::UnscrambleLine(lines.at(0)) << '\n';
        } else {
            const tessarine::Plan plan(first, arguments[2]);
        }
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
