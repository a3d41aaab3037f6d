#include "table/undo.h"

namespace tessarine
{

void Undo::cmdundo_MouseUp()
{
    if (!UndoList.empty()) {
        UndoMove();
    }
}

/// Puts the card back as the showing one of the stock and leaves the ring as it has been turned
/// since. Nothing lies on the card: the history would have been cleared.
void Undo::UndoMove()
{
    table_.sound().PlayWav("_undo.wav");
    const auto [destination, card] = UndoList.back();
    UndoList.pop_back();
    table_.Stacks[destination].PopBack();
    table_.LayOn(StockStack, card, table_.StackLeft[StockStack], table_.StackTop[StockStack]);
    table_.cardy[card].SetFontUnderline(false);
    table_.ShowCardFace(card);
}

} // namespace tessarine
