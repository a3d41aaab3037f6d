#include "table/description.h"

namespace tessarine
{
namespace
{

std::string PlaceOf(int stack)
{
    if (IsColumn(stack)) {
        return "column " + std::to_string(stack + 1);
    }
    if (IsPile(stack)) {
        return "finished pile " + std::to_string(stack - FirstPile + 1);
    }
    return "stock";
}

std::string OfStockItem(const TextList& stock)
{
    if (stock.IsEmpty() || stock.Back() != Marker) {
        return {}; // a card lies in front of it
    }
    return stock.Count() == 1 ? "stock, used up" : "stock, between two passes";
}

} // namespace

std::string Description(const Table& table, int item)
{
    const int stack = table.StackOf(item);
    if (!table.cardy[item].Visible() || stack == NoStack) {
        return {};
    }
    const TextList& entries = table.Stacks[stack];
    if (item == StockItem) {
        return OfStockItem(entries);
    }
    if (!IsCard(item)) {
        return entries.IsEmpty() ? "empty " + PlaceOf(stack) : std::string();
    }
    const bool isTop = !entries.IsEmpty() && entries.Back() == EntryOfCard(item);
    if (!IsColumn(stack) && !isTop) {
        return {}; // covered by the card that shows
    }
    if (!table.IsFaceUp(item)) {
        return "face-down card, " + PlaceOf(stack);
    }
    return table.cardy[item].Caption() + " of " + table.CardSuit(item) + ", " + PlaceOf(stack);
}

void DescribeItems(Table& table)
{
    for (int item = 0; item < ItemCount; ++item) {
        table.cardy[item].Describe = [&table, item] { return Description(table, item); };
    }
}

} // namespace tessarine
