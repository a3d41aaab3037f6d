// The mouse on the table: drags of cards and runs, and the right click.
#pragma once

#include "runtime/door.h"
#include "table/automove.h"
#include "table/drops.h"
#include "table/hand.h"
#include "table/stock_ring.h"
#include "table/table.h"
#include "table/undo.h"

namespace tessarine
{

/// Where a move goes.
struct DropTarget {
    enum class Kind { Column, Stock, Pile };
    Kind kind = Kind::Column;
    int item = NoCard; ///< card or base; NoCard over nothing
};

class Gestures
{
public:
    /// What the gestures touch.
    struct Rooms {
        Table& table;
        Hand& hand;
        StockRing& ring;
        Drops& drops;
        Undo& undo;
        Automove& automove;
    };
    explicit Gestures(const Rooms& rooms) : rooms_(rooms) {}

    /// Listens to the items of the table. Presses and releases come in by the door.
    void Attach(Door& door);

    void cardy_MouseDown(int index, int button, int shift);
    void cardy_MouseMove();
    void cardy_MouseUp(int index, int button);
    /// The press comes to no release: cards in the hand go home, silent.
    void cardy_MouseLost();

    /// Judged by the upper left corner of a card alone, not by the cursor.
    DropTarget FindDropTarget(int card) const;

private:
    enum class Gesture { Drag, RightClick };

    void ReleaseDrag();
    void RightClick(int index);
    DropTarget BestTarget(int card) const;
    void CarryOut(const DropTarget& target, Gesture gesture);
    bool IsNear(int slot, Whole x, Whole y) const;

    Rooms rooms_;
    bool rightPressed_ =
        false; ///< a right click has begun; a drag that begins meanwhile takes its place
};

} // namespace tessarine
