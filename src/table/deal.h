// Puts a game on the table.
#pragma once

#include "table/table.h"

#include <functional>

namespace tessarine
{

/// Freezes the drawing of a surface, or thaws it so that all changes appear at once.
void LockWindow(Platform& platform, const Control& surface, bool lock);

enum class Replay { Shuffle, PresentOrder };

class Deal
{
public:
    /// `clearUndo` empties the history of moves, which no deal survives.
    Deal(Table& table, std::function<void()> clearUndo) : table_(table), clearUndo_(std::move(clearUndo))
    {
    }

    /// Lays a shuffled order, or the 50 entries that CardOrder holds. Positions are those of the
    /// table at design size; whoever deals lays the table out afterwards and shows the first stock
    /// card. Nothing may read the table before.
    void DealCards(Replay replay);

    /// A shuffled deal that appears at once. Ends with the normal mouse pointer.
    void NewDeal();

private:
    void TurnAllFaceDown();
    void Shuffle();
    void ClearStacks();
    void DealColumns();
    void PlaceColumnBase(int column, Twips left, Twips top);
    void PlaceSlots();
    void FillStock();
    void ShowExposedCards();

    Table& table_;
    std::function<void()> clearUndo_;
};

} // namespace tessarine
