#include "table/rules.h"

namespace tessarine
{

Whole CanPickUp(const Table& table, int card)
{
    const int stack = table.StackOf(card);
    if (stack >= FirstPile) {
        return No;
    }
    const TextList& entries = table.Stacks[stack];
    const auto position = entries.Find(EntryOfCard(card));
    if (!position) {
        return No;
    }
    for (std::size_t i = *position; i + 1 < entries.Count(); ++i) {
        if (!FollowsInColumn(table, CardOfEntry(entries.At(i + 1)), CardOfEntry(entries.At(i)))) {
            return No;
        }
    }
    return Yes;
}

bool FollowsInColumn(const Table& table, int card, int onto)
{
    return table.CardSuit(card) == table.CardSuit(onto) &&
           table.CardNumber(card) == table.CardNumber(onto) - 1;
}

bool FollowsOnPile(const Table& table, int card, int top)
{
    return table.CardSuit(card) == table.CardSuit(top) &&
           table.CardNumber(card) == table.CardNumber(top) + 1;
}

bool FitsOnPile(const Table& table, int card, int pile)
{
    const int top = table.TopCard(pile);
    return top == NoCard ? table.CardNumber(card) == 0 : FollowsOnPile(table, card, top);
}

} // namespace tessarine
