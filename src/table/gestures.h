// The mouse on the table: drags of cards and runs, and the right click.
#pragma once

#include "table/automove.h"
#include "table/drops.h"
#include "table/stock_ring.h"
#include "table/table.h"
#include "table/undo.h"

namespace tessarine
{

/// Where the head of a move lies.
struct DropTarget {
    enum class Kind { Column, Stock, Pile };
    Kind kind = Kind::Column;
    int item = NoCard; ///< card or base; NoCard over nothing
};

class Gestures
{
public:
    Gestures(Table& table, StockRing& ring, Drops& drops, Undo& undo, Automove& automove)
        : table_(table), ring_(ring), drops_(drops), undo_(undo), automove_(automove)
    {
    }

    /// Listens to the items of the table.
    void Attach();

    void cardy_MouseDown(int index, int button, int shift);
    void cardy_MouseMove();
    void cardy_MouseUp(int index, int button);

    /// Judged by the upper left corner of a card alone, not by the cursor.
    DropTarget FindDropTarget(int card) const;

private:
    void PickUp(int index);
    void ReleaseDrag(int index);
    void RightClick(int index);
    void SendFromStock(int card);
    void SendFromColumn(int card, int column);
    int PileThatFits(int card) const;
    int ColumnThatFits(int card) const;
    int EmptyColumn() const;
    bool IsNear(int slot, Whole x, Whole y) const;

    Table& table_;
    StockRing& ring_;
    Drops& drops_;
    Undo& undo_;
    Automove& automove_;
};

} // namespace tessarine
