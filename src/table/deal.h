// Puts a game on the table.
#pragma once

#include "table/hand.h"
#include "table/table.h"
#include "table/undo.h"

namespace tessarine
{

/// Freezes the drawing of a surface, or thaws it so that all changes appear at once.
void LockWindow(Platform& platform, const Control& surface, bool lock);

enum class Replay { Shuffle, PresentOrder };

class Deal
{
public:
    Deal(Table& table, Hand& hand, Undo& undo) : table_(table), hand_(hand), undo_(undo) {}

    /// Lays a shuffled order, or the 50 entries that CardOrder holds. The hand and the history of moves
    /// are empty then. Positions are those of the table at design size; whoever deals lays the table out
    /// afterwards and shows the first stock card. Events run only when every card has its stack.
    void DealCards(Replay replay);

    /// A shuffled deal that appears at once. Ends with the normal mouse pointer.
    void NewDeal();

private:
    void Shuffle();
    void FillStacks();
    void NameStacksOfBases();
    void TurnAllFaceDown();
    void LayColumns();
    void PlaceColumnBase(int column, Twips left, Twips top);
    void PlaceSlots();
    void LayStock();
    void ShowFaces();

    Table& table_;
    Hand& hand_;
    Undo& undo_;
};

} // namespace tessarine
