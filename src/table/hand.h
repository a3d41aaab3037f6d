// The move in hand, from pick-up to the end of its drop.
#pragma once

#include "runtime/platform.h"
#include "table/table.h"

#include <optional>
#include <vector>

namespace tessarine
{

/// Every move goes through the hand, also a single card that a right click or the automove sends. It is
/// filled and forgotten as a whole; while it is filled a move is under way.
class Hand
{
public:
    explicit Hand(Table& table) : table_(table) {}

    bool IsEmpty() const { return DragCards_.empty(); }
    /// The cards, head of the run first.
    const std::vector<int>& DragCards() const { return DragCards_; }
    int Head() const { return DragCards_.front(); }
    int Last() const { return DragCards_.back(); }
    /// From a pick-up to the release: the cards follow the mouse.
    bool Dragging() const { return dragging_; }

    /// Takes up a card with all those behind it in its stack, brings them to the front in that order and
    /// keeps their place as the way home. `cursor` is on the screen.
    void PickUp(int card, PixelPoint cursor);
    /// Moves the cards by the change of the cursor on the screen since the last step, so that they keep
    /// their places to one another.
    void Follow(PixelPoint cursor);
    /// The mouse let go of the cards; they stay in the hand until their drop is over.
    void Release() { dragging_ = false; }
    /// Takes one card where it lies. It has no way home.
    void Take(int card);

    /// Puts the cards back where the drag began; false without a drag, and then nothing moves.
    bool GoHome();
    void Forget();

private:
    Table& table_;
    std::vector<int> DragCards_;
    std::optional<Whole> DragHomeLeft; ///< of the head, when a drag began
    Whole DragHomeTop = 0;
    Whole DragCursorX = 0; ///< on the screen, at the last step
    Whole DragCursorY = 0;
    bool dragging_ = false;
};

} // namespace tessarine
