#include "table/deal.h"

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace tessarine
{
namespace
{

/// Random keys lie in 0 to 997 and have four digits in the list that sorts them.
constexpr int KeyRange = 998;
constexpr std::size_t KeyDigits = 4;

std::string SortedEntry(int key, int card)
{
    const std::string digits = std::to_string(key);
    return std::string(KeyDigits - digits.size(), '0') + digits + EntryOfCard(card);
}

} // namespace

void LockWindow(Platform& platform, const Control& surface, bool lock)
{
    platform.FreezeSurface(lock ? &surface : nullptr);
}

void Deal::NewDeal()
{
    Platform& platform = table_.form().platform();
    LockWindow(platform, table_.Picture2, true);
    DealCards(Replay::Shuffle);
    LockWindow(platform, table_.Picture2, false);
    platform.SetBusyPointer(false);
}

void Deal::DealCards(Replay replay)
{
    const InputHold hold(table_.form());
    TurnAllFaceDown();
    if (replay == Replay::Shuffle) {
        Shuffle();
    }
    ClearStacks();
    DealColumns();
    PlaceSlots();
    FillStock();
    ShowExposedCards();
    table_.cardy[At(StockItem)].SetVisible(false);
    table_.sound().PlayWav("_shuf.wav");
    clearUndo_();
}

void Deal::TurnAllFaceDown()
{
    const Colour background = table_.shared().Background();
    for (int card = 0; card < CardCount; ++card) {
        Label& label = table_.cardy[At(card)];
        label.SetBackColor(background);
        label.SetCaption({});
        label.SetFontUnderline(false);
    }
}

/// Sorts the cards by an independent random key each. Cards that draw the same key stay in ascending
/// order, since the list sorts by key and card.
void Deal::Shuffle()
{
    Platform& platform = table_.form().platform();
    std::vector<std::string> keyed;
    keyed.reserve(CardCount);
    for (int card = CardCount - 1; card >= 0; --card) {
        table_.CardStack[At(card)] = -1;
        platform.SeedRandom(platform.SecondsSinceMidnight());
        keyed.push_back(SortedEntry(static_cast<int>(platform.RandomDraw() * KeyRange), card));
    }
    TextList List2(TextList::Order::Sorted);
    List2.AddAll(std::move(keyed));

    table_.CardOrder.Clear();
    for (const std::string& entry : List2) {
        table_.CardOrder.Add(entry.substr(KeyDigits));
    }
}

void Deal::ClearStacks()
{
    for (TextList& stack : table_.Stacks) {
        stack.Clear();
    }
}

/// Column c, counted from 1, gets c - 1 cards.
void Deal::DealColumns()
{
    const Module1& shared = table_.shared();
    const double shortStep = shared.FanStep / 3.0;
    std::size_t next = 0;
    for (int column = 0; column < Columns; ++column) {
        const Twips x = (shared.ColumnGap + shared.CardWidth) * column + shared.TableLeft;
        double y = shared.TableTop + 100 + shared.FanStep + shortStep;
        PlaceColumnBase(column, x, y);
        for (int k = 0; k < column; ++k) {
            const int card = CardOfEntry(table_.CardOrder.At(next++));
            table_.LayOn(column, card, x, y);
            table_.cardy[At(card)].SetVisible(true);
            y += shortStep;
        }
    }
}

void Deal::PlaceColumnBase(int column, Twips left, Twips top)
{
    const int slot = FirstColumnBase + column;
    Label& base = table_.cardy[At(slot)];
    base.Move(left, top);
    base.SendToBack();
    base.SetVisible(true);
    table_.CardStack[At(slot)] = column;
    table_.SlotLeft[At(slot)] = RoundHalfEven(left);
    table_.SlotTop[At(slot)] = RoundHalfEven(top);
}

/// The stock stands at the left, the finished piles right-aligned with the last column, each half a
/// gap from the next.
void Deal::PlaceSlots()
{
    const Module1& shared = table_.shared();
    for (int i = 0; i < Piles; ++i) {
        table_.CardStack[At(StockItem + i)] = StockStack + i;
        table_.CardStack[At(FirstPileBase + i)] = FirstPile + i;
        table_.SlotTop[At(FirstPileBase + i)] = shared.TableTop;
        table_.cardy[At(StockItem + i)].SetFontUnderline(false);
        table_.cardy[At(FirstPileBase + i)].SetFontUnderline(false);
    }
    table_.SlotLeft[At(StockItem)] = shared.TableLeft;
    table_.SlotTop[At(StockItem)] = shared.TableTop;

    constexpr int lastPileBase = FirstPileBase + Piles - 1;
    table_.SlotLeft[At(lastPileBase)] =
        (shared.ColumnGap + shared.CardWidth) * (Columns - 1) + shared.TableLeft;
    for (int slot = lastPileBase - 1; slot >= FirstPileBase; --slot) {
        table_.SlotLeft[At(slot)] =
            RoundHalfEven(table_.SlotLeft[At(slot + 1)] - shared.CardWidth - shared.ColumnGap / 2.0);
    }
}

void Deal::FillStock()
{
    TextList& stock = table_.Stacks[At(StockStack)];
    for (std::size_t n = DealtToColumns; n < CardCount; ++n) {
        const std::string& entry = table_.CardOrder.At(n);
        const int card = CardOfEntry(entry);
        table_.cardy[At(card)].Move(table_.SlotLeft[At(StockItem)], table_.SlotTop[At(StockItem)]);
        table_.CardStack[At(card)] = StockStack;
        stock.Add(entry);
        table_.ShowCardFace(card);
    }
    stock.Add(std::string(Marker));
}

void Deal::ShowExposedCards()
{
    for (int column = 1; column < Columns; ++column) {
        table_.ShowCardFace(table_.TopCard(column));
    }
}

} // namespace tessarine
