// Carries out a move, or sends its cards home.
#pragma once

#include "table/slide.h"
#include "table/stock_ring.h"
#include "table/table.h"
#include "table/undo.h"

namespace tessarine
{

/// The move is in the table's DragCards. Each drop is the judge of its own move: the caller only says
/// where the cards are to go. Input rests until the move is over.
class Drops
{
public:
    Drops(Table& table, StockRing& ring, Undo& undo)
        : table_(table), ring_(ring), undo_(undo), slide_(table)
    {
    }

    /// `card` is the head of the move, `target` a card or the base of a column.
    void DropOnStack(int card, int target);
    /// `target` is the base of a finished pile. The last card of the move goes there; the rest of a
    /// run is left to the automove.
    void DropOnSol(int card, int target);
    /// Puts the cards of a drag back where it began; without a drag nothing moves. Silent, or with
    /// the error sound.
    void ReturnDrag(bool withError);
    void ErrorBeep() const;

private:
    void LayOneCard(int card, int target, int source, int destination);
    void LayRun(int target, int destination);
    void RemoveCard(int card);

    Table& table_;
    StockRing& ring_;
    Undo& undo_;
    Slide slide_;
};

} // namespace tessarine
