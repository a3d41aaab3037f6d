#include "table/deal.h"

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
/// From the top of the table to the columns, beside a full and a short step of the fan.
constexpr Whole AboveColumns = 100;

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
    if (replay == Replay::Shuffle) {
        Shuffle();
    }
    hand_.Forget();
    undo_.Clear();
    FillStacks();
    NameStacksOfBases();

    TurnAllFaceDown();
    LayColumns();
    PlaceSlots();
    LayStock();
    ShowFaces();
    table_.sound().PlayWav("_shuf.wav");
}

/// Sorts the cards by an independent random key each. Cards that draw the same key stay in ascending
/// order, since the list sorts by key and card.
void Deal::Shuffle()
{
    Platform& platform = table_.form().platform();
    std::vector<std::string> keyed;
    keyed.reserve(CardCount);
    for (int card = CardCount - 1; card >= 0; --card) {
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

/// Column c, counted from 1, gets c - 1 cards, and the stock the rest with the marker behind it.
void Deal::FillStacks()
{
    for (TextList& stack : table_.Stacks) {
        stack.Clear();
    }
    std::size_t next = 0;
    const auto deal = [&](int stack) {
        const std::string& entry = table_.CardOrder.At(next++);
        table_.Stacks[stack].Add(entry);
        table_.CardStack[CardOfEntry(entry)] = stack;
    };
    for (int column = 0; column < Columns; ++column) {
        for (int k = 0; k < column; ++k) {
            deal(column);
        }
    }
    while (next < CardCount) {
        deal(StockStack);
    }
    table_.Stacks[StockStack].Add(std::string(Marker));
}

void Deal::NameStacksOfBases()
{
    for (int stack = 0; stack < StackCount; ++stack) {
        if (IsColumn(stack) || stack >= StockStack) {
            table_.CardStack[SlotOf(stack)] = stack;
        }
    }
}

void Deal::TurnAllFaceDown()
{
    const Colour background = table_.shared().Background();
    for (int item = 0; item < FirstColumnBase; ++item) {
        Label& label = table_.cardy[item];
        label.SetFontUnderline(false);
        if (IsCard(item)) {
            label.SetBackColor(background);
            label.SetCaption({});
        }
    }
}

void Deal::LayColumns()
{
    const Module1& shared = table_.shared();
    const double shortStep = shared.FanStep / 3.0;
    for (int column = 0; column < Columns; ++column) {
        const Twips x = (shared.ColumnGap + shared.CardWidth) * column + shared.TableLeft;
        double y = shared.TableTop + AboveColumns + shared.FanStep + shortStep;
        PlaceColumnBase(column, x, y);
        for (const std::string& entry : table_.Stacks[column]) {
            Label& card = table_.cardy[CardOfEntry(entry)];
            card.Move(x, y);
            card.SetVisible(true);
            card.BringToFront();
            y += shortStep;
        }
    }
    // The bases behind the columns are sunken, which tells an empty column from a face-down card.
    for (int item = FirstColumnBase; item < ItemCount; ++item) {
        table_.cardy[item].SetSunken(true);
    }
}

void Deal::PlaceColumnBase(int column, Twips left, Twips top)
{
    const int slot = SlotOf(column);
    Label& base = table_.cardy[slot];
    base.Move(left, top);
    base.SendToBack();
    base.SetVisible(true);
    table_.SlotLeft[slot] = RoundHalfEven(left);
    table_.SlotTop[slot] = RoundHalfEven(top);
}

/// The stock stands at the left, the finished piles right-aligned with the last column, each half a
/// gap from the next.
void Deal::PlaceSlots()
{
    const Module1& shared = table_.shared();
    table_.SlotLeft[StockItem] = shared.TableLeft;
    table_.SlotTop[StockItem] = shared.TableTop;

    constexpr int lastPileBase = FirstPileBase + Piles - 1;
    table_.SlotLeft[lastPileBase] =
        (shared.ColumnGap + shared.CardWidth) * (Columns - 1) + shared.TableLeft;
    for (int slot = lastPileBase; slot >= FirstPileBase; --slot) {
        table_.SlotTop[slot] = shared.TableTop;
        if (slot < lastPileBase) {
            table_.SlotLeft[slot] =
                RoundHalfEven(table_.SlotLeft[slot + 1] - shared.CardWidth - shared.ColumnGap / 2.0);
        }
    }
}

void Deal::LayStock()
{
    for (const std::string& entry : table_.Stacks[StockStack]) {
        if (entry != Marker) {
            table_.cardy[CardOfEntry(entry)].Move(table_.SlotLeft[StockItem], table_.SlotTop[StockItem]);
        }
    }
    table_.cardy[StockItem].SetVisible(false);
}

/// All of the stock and the last card of each column. Each face lets events run: by number, since a
/// window that closes meanwhile must not find a walk through a list half done.
void Deal::ShowFaces()
{
    for (std::size_t n = DealtToColumns; n < CardCount; ++n) {
        table_.ShowCardFace(CardOfEntry(table_.CardOrder.At(n)));
    }
    for (int column = 1; column < Columns; ++column) {
        table_.ShowCardFace(table_.TopCard(column));
    }
}

} // namespace tessarine
