#include "table/description.h"

#include <algorithm>
#include <utility>
#include <vector>

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

/// A face-down card says that there is one, which a deal leaves to be known.
bool IsFaceDownCard(const Table& table, int item)
{
    return IsCard(item) && !table.IsFaceUp(item);
}

/// The piles come first, then the columns and the stock; of each stack its place, and its cards from
/// there on.
std::vector<int> ItemsByPlace(const Table& table)
{
    std::vector<int> items;
    for (int n = 0; n < StackCount; ++n) {
        const int stack = (FirstPile + n) % StackCount;
        items.push_back(SlotOf(stack));
        for (const std::string& entry : table.Stacks[stack]) {
            if (entry != Marker) {
                items.push_back(CardOfEntry(entry));
            }
        }
    }
    return items;
}

std::string FaceOf(const Table& table, int card)
{
    return table.cardy[card].Caption() + " of " + table.CardSuit(card);
}

/// What there is to tell of an item: on a finished pile of every card, since several may come at once.
std::string Tidings(const Table& table, int item)
{
    const int stack = table.StackOf(item);
    if (IsPile(stack)) {
        return IsCard(item) ? FaceOf(table, item) + ", " + PlaceOf(stack) : std::string();
    }
    return Description(table, item);
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
    return FaceOf(table, item) + ", " + PlaceOf(stack);
}

void DescribeItems(Table& table)
{
    for (int item = 0; item < ItemCount; ++item) {
        table.cardy[item].Describe = [&table, item] { return Description(table, item); };
    }
}

/// Nothing but a deal lays a card face-down.
bool News::WasDealt() const
{
    for (int card = 0; card < CardCount; ++card) {
        if (IsFaceDownCard(table_, card) && told_[card] != Tidings(table_, card)) {
            return true;
        }
    }
    return false;
}

void News::Tell()
{
    const bool dealt = WasDealt();
    if (dealt) {
        told_ = {};
    }
    std::string moved;
    std::string shown;
    for (const int item : ItemsByPlace(table_)) {
        const std::string now = Tidings(table_, item);
        const std::string before = std::exchange(told_[item], now);
        if (now != before && !now.empty() && !IsFaceDownCard(table_, item)) {
            const bool isElsewhere = before.starts_with(table_.cardy[item].Caption() + " of ");
            (isElsewhere ? moved : shown) += now + "; ";
        }
    }
    std::string news = moved + shown;
    if (!news.empty()) {
        news.resize(news.size() - 2);
        table_.form().platform().Announce(table_.form(), (dealt ? "new deal: " : "") + news);
    }
}

} // namespace tessarine
