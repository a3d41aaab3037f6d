#include "table/rules.h"

#include <algorithm>
#include <vector>

namespace tessarine
{

Whole CanPickUp(const Table& table, int card)
{
    const auto doesNotFollow = [&table](int onto, int next) {
        return !FollowsInColumn(table, next, onto);
    };
    const std::vector<int> run = table.RunFrom(card);
    const bool isWhole = std::ranges::adjacent_find(run, doesNotFollow) == run.end();
    return isWhole && !IsPile(table.StackOf(card)) ? Yes : No;
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
