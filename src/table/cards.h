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

// Items on the table: 0 to 49 are the cards themselves.
inline constexpr int ItemCount = 70;
inline constexpr int StockItem = 50; ///< the stock's place; no card
inline constexpr int FirstPileBase = 55;
inline constexpr int FirstColumnBase = 60;
inline constexpr int SlotCount = 91;

inline constexpr int NoCard = -1;
/// The number that a base counts as; no card has it.
inline constexpr int BaseNumber = 10;

/// The entry of the stock's ring that is no card: the gap between two passes.
inline constexpr std::string_view Marker = "...";
/// What the stock's place says when the stock is used up.
inline constexpr std::string_view UsedUp = "X";

// How the deal falls.
inline constexpr int DealtToColumns = 28;

/// Where the base of a stack has its slot.
constexpr int SlotOf(int stack)
{
    return stack < StockStack ? stack + FirstColumnBase : stack + 40;
}
constexpr bool IsColumn(int stack)
{
    return stack >= 0 && stack < Columns;
}
constexpr bool IsPile(int stack)
{
    return stack >= FirstPile && stack < FirstPile + Piles;
}
constexpr std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace tessarine
