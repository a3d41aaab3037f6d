#include "support/game_world.h"

#include "table/rules.h"

#include <set>
#include <utility>

namespace tessarine::test
{
namespace
{

std::string SchemeFileText()
{
    std::string text = "default.col\r\n";
    for (int slot = 0; slot < 13; ++slot) {
        text += slot == 4 ? " 90; 140; 90\r\n" : " 120; 170; 120\r\n";
    }
    return text;
}

/// Puts the files of an installed program in place before the form is made.
HeadlessPlatform& Prepared(HeadlessPlatform& platform, const std::string& scale = "1")
{
    platform.files["/app/all.col"] = SchemeFileText();
    platform.files["/app/tessarine.cfg"] =
        "stamp\r\n 1 16777215 1 \r\n " + scale +
        " \r\n 0 \r\n 8388608 \r\n 32768 \r\n 32896 \r\n 128 \r\ndefault.col\r\narial\r\n";
    return platform;
}

} // namespace

int Card(char suit, int number)
{
    return static_cast<int>(SuitLetters.find(suit)) * CardsInSuit + number;
}

GameWorld::GameWorld(std::uint64_t seed) : platform(seed), form(Prepared(platform), "/app", "tessarine")
{
    form.Start();
    platform.sounds.clear();
}

GameWorld::GameWorld(Size screen, const std::string& scale)
    : form((platform.screen = screen, Prepared(platform, scale)), "/app", "tessarine")
{
    form.Start();
}

void GameWorld::Arrange(const Position& position)
{
    for (TextList& stack : table.Stacks) {
        stack.Clear();
    }
    for (int card = 0; card < CardCount; ++card) {
        table.cardy[At(card)].SetCaption({});
        table.cardy[At(card)].SetVisible(false);
    }
    const auto lay = [this](int stack, const std::vector<int>& cards, int faceDown) {
        for (const int card : cards) {
            table.LayOn(stack, card, 0, 0);
            table.cardy[At(card)].SetVisible(true);
            if (--faceDown < 0) {
                table.ShowCardFace(card);
            }
        }
    };
    for (std::size_t column = 0; column < position.columns.size(); ++column) {
        lay(static_cast<int>(column), position.columns[column], position.faceDownInEachColumn);
    }
    for (std::size_t pile = 0; pile < position.piles.size(); ++pile) {
        lay(FirstPile + static_cast<int>(pile), position.piles[pile], 0);
    }
    table.Stacks[At(StockStack)].Add(std::string(Marker));
    lay(StockStack, position.stock, 0);
    form.undo.Clear();
    form.scaling.ScaleTable(1.0F);
    platform.sounds.clear();
}

void GameWorld::DealFrom(const std::vector<int>& order)
{
    std::string text;
    for (const int card : order) {
        text += TwoDigits(card) + "\r\n";
    }
    platform.files["/app/tempgame.txt"] = text;
    form.gameFile.LoadCardOrder("/app/tempgame.txt");
    form.undo.Clear();
}

std::vector<int> GameWorld::Cards(int stack) const
{
    std::vector<int> cards;
    for (const std::string& entry : table.Stacks[At(stack)]) {
        cards.push_back(entry == Marker ? -1 : CardOfEntry(entry));
    }
    return cards;
}

Point GameWorld::Corner(int item) const
{
    return table.cardy[At(item)].PlaceOnForm();
}

void GameWorld::DragToPoint(int item, Twips left, Twips top)
{
    const Point from = Corner(item);
    const Point to{left + table.Picture2.Left(), top + table.Picture2.Top()};
    // A grip near the corner is on the card also where the next one of a run covers the rest.
    const Twips grip = 60;
    platform.Press(form, from.x + grip, from.y + grip);
    platform.MoveMouse(form, (from.x + to.x) / 2 + grip, (from.y + to.y) / 2 + grip);
    platform.MoveMouse(form, to.x + grip, to.y + grip);
    platform.Release(form, to.x + grip, to.y + grip);
}

void GameWorld::DragOnto(int item, int target)
{
    const Label& place = table.cardy[At(target)];
    DragToPoint(item, place.Left(), place.Top());
}

void GameWorld::RightClick(int item)
{
    const Point corner = Corner(item);
    platform.Press(form, corner.x + 60, corner.y + 60, RightButton);
    platform.Release(form, corner.x + 60, corner.y + 60, RightButton);
}

std::vector<std::string> GameWorld::TakeSounds()
{
    constexpr std::string_view folder = "/app/";
    for (std::string& sound : platform.sounds) {
        sound.erase(0, sound.starts_with(folder) ? folder.size() : 0);
    }
    return std::exchange(platform.sounds, {});
}

std::string GameWorld::FaultOfColumn(int column) const
{
    const TextList& entries = table.Stacks[At(column)];
    for (std::size_t i = 0; i < entries.Count(); ++i) {
        const int card = CardOfEntry(entries.At(i));
        const bool isLast = i + 1 == entries.Count();
        if (isLast && !table.IsFaceUp(card)) {
            return "the last card of a column is face-down";
        }
        if (!isLast && table.IsFaceUp(card)) {
            const int next = CardOfEntry(entries.At(i + 1));
            if (!table.IsFaceUp(next) || !FollowsInColumn(table, next, card)) {
                return "a face-up card of a column is followed by one that does not fit";
            }
        }
    }
    return {};
}

std::string GameWorld::FaultOfPile(int pile) const
{
    int number = 0;
    for (const int card : Cards(pile)) {
        if (table.CardNumber(card) != number++ ||
            table.CardSuit(card) != table.CardSuit(Cards(pile)[0])) {
            return "a finished pile has a gap or two suits";
        }
        if (!table.cardy[At(card)].Font().underline) {
            return "a card of a finished pile is not underlined";
        }
    }
    return {};
}

std::string GameWorld::Fault() const
{
    std::multiset<std::string> seen;
    for (int stack = 0; stack < StackCount; ++stack) {
        for (const std::string& entry : table.Stacks[At(stack)]) {
            seen.insert(entry);
            if (entry == Marker ? stack != StockStack
                                : table.CardStack[At(CardOfEntry(entry))] != stack) {
                return "entry " + entry + " stands in the wrong stack";
            }
        }
        const bool inPlay = IsColumn(stack) || IsPile(stack) || stack == StockStack;
        if (!inPlay && !table.Stacks[At(stack)].IsEmpty()) {
            return "a spare stack holds something";
        }
    }
    if (seen.size() != CardCount + 1 ||
        std::set<std::string>(seen.begin(), seen.end()).size() != seen.size()) {
        return "a card or the marker is missing or there twice";
    }
    for (int column = 0; column < Columns; ++column) {
        if (const std::string fault = FaultOfColumn(column); !fault.empty()) {
            return fault;
        }
    }
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        if (const std::string fault = FaultOfPile(pile); !fault.empty()) {
            return fault;
        }
    }
    for (const int card : Cards(StockStack)) {
        if (card >= 0 && !table.IsFaceUp(card)) {
            return "a card of the stock is face-down";
        }
    }
    // The front-most item at the stock's place is the last entry of the ring.
    const int last = Cards(StockStack).back();
    const Control* showing = table.Picture2.FrontMostAt(table.StackLeft[At(StockStack)] + 60.0,
                                                        table.StackTop[At(StockStack)] + 60.0);
    if (!form.hand.Dragging() && showing != &table.cardy[At(last < 0 ? StockItem : last)]) {
        return "what shows at the stock is not the last entry of the ring";
    }
    return {};
}

} // namespace tessarine::test
