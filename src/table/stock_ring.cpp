#include "table/stock_ring.h"

namespace tessarine
{

/// Turns the ring one step forward: the showing entry goes to the front of the list and the one
/// before it shows. With the marker alone in the ring the stock is used up, and its place says so.
void StockRing::NextStockCard()
{
    if (HoldsOnlyMarker()) {
        ShowUsedUp();
        return;
    }
    ring().PushFront(ring().PopBack());
    ShowLastEntry();
}

/// One step backward: the entry at the front of the list shows.
void StockRing::PrevStockCard()
{
    if (HoldsOnlyMarker()) {
        ShowUsedUp();
        return;
    }
    ring().Add(ring().PopFront());
    ShowLastEntry();
}

void StockRing::NextCard_MouseUp(int index)
{
    table_.sound().PlayWav("_nextcard.wav");
    if (index == 0) {
        PrevStockCard();
    } else {
        NextStockCard();
    }
}

void StockRing::ShowUsedUp()
{
    Label& place = table_.cardy[StockItem];
    place.SetCaption(std::string(UsedUp));
    place.SetVisible(true);
}

void StockRing::ShowLastEntry()
{
    const std::string& entry = ring().Back();
    Label& shown = table_.cardy[entry == Marker ? StockItem : CardOfEntry(entry)];
    shown.SetVisible(true);
    shown.BringToFront();
}

} // namespace tessarine
