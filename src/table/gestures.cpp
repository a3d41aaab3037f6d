#include "table/gestures.h"

#include "table/rules.h"

namespace tessarine
{
namespace
{

constexpr int NoStack = -1;

} // namespace

void Gestures::Attach()
{
    for (int index = 0; index < ItemCount; ++index) {
        Label& item = table_.cardy[At(index)];
        item.MouseDown = [this, index](const MouseEvent& event) {
            cardy_MouseDown(index, event.button, event.shift);
        };
        item.MouseMove = [this](const MouseEvent&) { cardy_MouseMove(); };
        item.MouseUp = [this, index](const MouseEvent& event) { cardy_MouseUp(index, event.button); };
    }
}

/// A second button during a drag changes nothing: the drag goes on.
void Gestures::cardy_MouseDown(int index, int button, int shift)
{
    if (table_.Dragging) {
        return;
    }
    table_.DragHomeLeft = -1;
    table_.DragHomeTop = -1;
    const bool isCard = !table_.CardName[At(index)].empty();
    if (isCard && table_.IsFaceUp(index) && shift == 0 && button == LeftButton &&
        CanPickUp(table_, index) == Yes) {
        PickUp(index);
    }
}

void Gestures::PickUp(int index)
{
    const TextList& entries = table_.Stacks[At(table_.StackOf(index))];
    const auto position = entries.Find(EntryOfCard(index));
    if (!position) {
        return;
    }
    table_.DragCards[0] = static_cast<Whole>(entries.Count() - *position);
    for (int i = 1; i <= table_.DragCards[0]; ++i) {
        const int card = CardOfEntry(entries.At(*position + At(i - 1)));
        table_.DragCards[At(i)] = card;
        table_.cardy[At(card)].BringToFront();
    }
    const PixelPoint cursor = table_.form().platform().Cursor();
    table_.shared().DragCursorX = cursor.x;
    table_.shared().DragCursorY = cursor.y;
    table_.Dragging = true;
    table_.DragHomeLeft = RoundHalfEven(table_.cardy[At(index)].Left());
    table_.DragHomeTop = RoundHalfEven(table_.cardy[At(index)].Top());
}

/// The cards follow the cursor on the screen by its change since the last step, so that they keep
/// their places to one another.
void Gestures::cardy_MouseMove()
{
    if (!table_.Dragging) {
        return;
    }
    Module1& shared = table_.shared();
    const PixelPoint cursor = table_.form().platform().Cursor();
    const Whole dx = (cursor.x - shared.DragCursorX) * shared.TwipsX;
    const Whole dy = (cursor.y - shared.DragCursorY) * shared.TwipsY;
    shared.DragCursorX = cursor.x;
    shared.DragCursorY = cursor.y;
    for (int i = 1; i <= table_.DragCards[0]; ++i) {
        Label& card = table_.cardy[At(table_.DragCards[At(i)])];
        card.Move(card.Left() + dx, card.Top() + dy);
    }
}

void Gestures::cardy_MouseUp(int index, int button)
{
    if (button == RightButton && !table_.Dragging) {
        RightClick(index);
    } else if (button == LeftButton && table_.Dragging) {
        ReleaseDrag(index);
    }
}

void Gestures::ReleaseDrag(int index)
{
    table_.Dragging = false;
    const int source = table_.StackOf(index);
    const DropTarget target = FindDropTarget(index);
    if (target.item == NoCard) {
        drops_.ReturnDrag(true);
        return;
    }
    switch (target.kind) {
    case DropTarget::Kind::Stock:
        drops_.ReturnDrag(false);
        break;
    case DropTarget::Kind::Pile:
        drops_.DropOnSol(index, target.item);
        if (source == StockStack) {
            automove_.EndTest();
        } else {
            undo_.Clear();
            automove_.AutoMove(source, table_.StackOf(target.item));
        }
        break;
    case DropTarget::Kind::Column:
        drops_.DropOnStack(index, target.item);
        if (source != StockStack) {
            undo_.Clear();
        }
        automove_.EndTest();
        break;
    }
}

DropTarget Gestures::FindDropTarget(int card) const
{
    const Whole x = RoundHalfEven(table_.cardy[At(card)].Left());
    const Whole y = RoundHalfEven(table_.cardy[At(card)].Top());
    if (IsNear(StockItem, x, y)) {
        return {DropTarget::Kind::Stock, StockItem};
    }
    for (int slot = FirstPileBase; slot < FirstPileBase + Piles; ++slot) {
        if (IsNear(slot, x, y)) {
            return {DropTarget::Kind::Pile, slot};
        }
    }
    const Whole width = table_.shared().CardWidth;
    for (int column = 0; column < Columns; ++column) {
        const Whole left = RoundHalfEven(table_.StackLeft[At(column)] - width / 4.0);
        if (x > left && x < left + width + width / 10.0) {
            const int top = table_.TopCard(column);
            return {DropTarget::Kind::Column, top == NoCard ? SlotOf(column) : top};
        }
    }
    return {};
}

/// From half a card to the left of a slot and above it to a card's size to the right and below.
bool Gestures::IsNear(int slot, Whole x, Whole y) const
{
    const Whole width = table_.shared().CardWidth;
    const Whole height = table_.shared().CardHeight;
    const Whole left = RoundHalfEven(table_.SlotLeft[At(slot)] - width * 0.5);
    const Whole top = RoundHalfEven(table_.SlotTop[At(slot)] - height * 0.5);
    return x > left && x < left + width * 1.5 && y > top && y < top + height * 1.5;
}

/// Sends the exposed card of a stack to the best place: a finished pile, then a column that fits, then
/// an empty column.
void Gestures::RightClick(int index)
{
    if (index > FirstPileBase) {
        drops_.ReturnDrag(true);
        return;
    }
    const int stack = table_.StackOf(index);
    const TextList& entries = table_.Stacks[At(stack)];
    if (entries.IsEmpty()) {
        drops_.ReturnDrag(true);
        return;
    }
    if (stack >= FirstPile) {
        drops_.ErrorBeep();
        return;
    }
    if (entries.Back() != Marker && entries.Back() != EntryOfCard(index)) {
        drops_.ReturnDrag(true);
        return;
    }
    if (stack == StockStack) {
        SendFromStock(index);
    } else {
        SendFromColumn(index, stack);
    }
}

void Gestures::SendFromStock(int card)
{
    if (card == StockItem) {
        return;
    }
    table_.TakeInHand(card);
    if (const int pile = PileThatFits(card); pile != NoStack) {
        drops_.DropOnSol(card, SlotOf(pile));
    } else if (const int column = ColumnThatFits(card); column != NoStack) {
        drops_.DropOnStack(card, table_.TopCard(column));
    } else if (const int empty = EmptyColumn(); empty != NoStack) {
        drops_.DropOnStack(card, SlotOf(empty));
    } else {
        drops_.ErrorBeep();
        return;
    }
    ring_.NextStockCard();
    automove_.EndTest();
}

void Gestures::SendFromColumn(int card, int column)
{
    table_.TakeInHand(card);
    if (const int pile = PileThatFits(card); pile != NoStack) {
        drops_.DropOnSol(card, SlotOf(pile));
        undo_.Clear();
        automove_.AutoMove(column, pile);
        return;
    }
    // A card alone in its column has nothing to gain from another empty one.
    const bool isAlone = table_.Stacks[At(column)].Count() == 1;
    if (const int other = ColumnThatFits(card); other != NoStack) {
        drops_.DropOnStack(card, table_.TopCard(other));
    } else if (const int empty = EmptyColumn(); empty != NoStack && !isAlone) {
        drops_.DropOnStack(card, SlotOf(empty));
    } else {
        drops_.ReturnDrag(true);
        return;
    }
    undo_.Clear();
    automove_.EndTest();
}

int Gestures::PileThatFits(int card) const
{
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        if (FitsOnPile(table_, card, pile)) {
            return pile;
        }
    }
    return NoStack;
}

int Gestures::ColumnThatFits(int card) const
{
    for (int column = 0; column < Columns; ++column) {
        if (const int top = table_.TopCard(column);
            top != NoCard && FollowsInColumn(table_, card, top)) {
            return column;
        }
    }
    return NoStack;
}

int Gestures::EmptyColumn() const
{
    for (int column = 0; column < Columns; ++column) {
        if (table_.Stacks[At(column)].IsEmpty()) {
            return column;
        }
    }
    return NoStack;
}

} // namespace tessarine
