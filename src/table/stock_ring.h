// The stock: a ring that turns either way for ever.
#pragma once

#include "table/table.h"

namespace tessarine
{

/// The last entry of the stock's list is the showing one; the marker rides among the cards.
class StockRing
{
public:
    explicit StockRing(Table& table) : table_(table) {}

    void NextStockCard();
    void PrevStockCard();

    /// The buttons beside the stock: 0 turns it back, 1 forward.
    void NextCard_MouseUp(int index);

private:
    TextList& ring() { return table_.Stacks[StockStack]; }
    bool HoldsOnlyMarker() { return ring().Count() == 1; }
    void ShowUsedUp();
    void ShowLastEntry();

    Table& table_;
};

} // namespace tessarine
