// Carries out a move, or sends its cards home.
#pragma once

#include "table/hand.h"
#include "table/slide.h"
#include "table/stock_ring.h"
#include "table/table.h"
#include "table/undo.h"

namespace tessarine
{

/// The move is what the hand holds; each of these ends it and leaves the hand empty. A drop is the judge
/// of its own move: the caller only says where the cards are to go.
class Drops
{
public:
    Drops(Table& table, Hand& hand, StockRing& ring, Undo& undo)
        : table_(table), hand_(hand), ring_(ring), undo_(undo), slide_(table)
    {
    }

    /// `target` is a card of a column or the base of one.
    void DropOnStack(int target);
    /// `target` is the base of a finished pile. The last card of the move goes there; the rest of a
    /// run is left to the automove.
    void DropOnSol(int target);
    /// Puts the cards of a drag back where it began; without a drag nothing moves. Silent, or with
    /// the error sound.
    void ReturnDrag(bool withError);
    void ErrorBeep() const;

private:
    bool GoesOnColumn(int target) const;
    void LayOneCard(int target);
    void LayRun(int target);
    void RemoveCard(int card);

    Table& table_;
    Hand& hand_;
    StockRing& ring_;
    Undo& undo_;
    Slide slide_;
};

} // namespace tessarine
