// The numbers of the game: cards, stacks and the items that show them.
#pragma once

#include <cstddef>
#include <string_view>

namespace tessarine
{

// Cards are numbered (suit number - 1) x 10 + number; the suits are S, H, D, C and O.
inline constexpr int CardCount = 50;
inline constexpr int CardsInSuit = 10;
inline constexpr std::string_view SuitLetters = "SHDCO";

// Stacks.
inline constexpr int StackCount = 20;
inline constexpr int Columns = 8; ///< stacks 0 to 7
inline constexpr int StockStack = 10;
inline constexpr int FirstPile = 15;
inline constexpr int Piles = 5; ///< stacks 15 to 19

// Items on the table: 0 to 49 are the cards themselves, the others show the places of stacks.
inline constexpr int ItemCount = 70;
inline constexpr int StockItem = 50; ///< the stock's place; no card
inline constexpr int FirstPileBase = 55;
inline constexpr int FirstColumnBase = 60;

inline constexpr int NoCard = -1;
inline constexpr int NoStack = -1;
/// The number that a base counts as; no card has it.
inline constexpr int BaseNumber = 10;

/// The entry of the stock's ring that is no card: the gap between two passes.
inline constexpr std::string_view Marker = "...";
/// What the stock's place says when the stock is used up.
inline constexpr std::string_view UsedUp = "X";

// How the deal falls.
inline constexpr std::size_t DealtToColumns = 28;

constexpr bool IsCard(int item)
{
    return item >= 0 && item < CardCount;
}
constexpr bool IsColumn(int stack)
{
    return stack >= 0 && stack < Columns;
}
constexpr bool IsPile(int stack)
{
    return stack >= FirstPile && stack < FirstPile + Piles;
}

/// Where the base of a stack has its slot: the bases of the stacks from the stock on stand before those
/// of the columns.
constexpr int SlotOf(int stack)
{
    return stack < StockStack ? stack + FirstColumnBase : stack + (StockItem - StockStack);
}
/// An item that no stack in play has its place at: never to be seen.
constexpr bool IsSpare(int item)
{
    return (item > StockItem && item < FirstPileBase) || item >= FirstColumnBase + Columns;
}

} // namespace tessarine
