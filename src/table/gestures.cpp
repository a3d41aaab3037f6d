#include "table/gestures.h"

#include "table/rules.h"

#include <utility>

namespace tessarine
{
namespace
{

/// The first of `count` stacks, from `first` on, of which `fits` holds; NoStack if there is none.
template <class Fits> int FirstStack(int first, int count, const Fits& fits)
{
    for (int stack = first; stack < first + count; ++stack) {
        if (fits(stack)) {
            return stack;
        }
    }
    return NoStack;
}

} // namespace

void Gestures::Attach(Door& door)
{
    for (int index = 0; index < ItemCount; ++index) {
        Label& item = rooms_.table.cardy[index];
        item.MouseDown = [this, index, &door](const MouseEvent& event) {
            door.Pass([&] { cardy_MouseDown(index, event.button, event.shift); });
        };
        item.MouseMove = [this](const MouseEvent&) { cardy_MouseMove(); };
        item.MouseUp = [this, index, &door](const MouseEvent& event) {
            door.Pass([&] { cardy_MouseUp(index, event.button); });
        };
        item.MouseLost = [this] { cardy_MouseLost(); };
    }
}

/// A second button during a drag changes nothing: the drag goes on.
void Gestures::cardy_MouseDown(int index, int button, int shift)
{
    Hand& hand = rooms_.hand;
    if (hand.Dragging()) {
        return;
    }
    hand.Forget();
    rightPressed_ = rightPressed_ || button == RightButton;
    if (IsCard(index) && rooms_.table.IsFaceUp(index) && shift == 0 && button == LeftButton &&
        CanPickUp(rooms_.table, index) == Yes) {
        hand.PickUp(index, rooms_.table.form().platform().Cursor());
        rightPressed_ = false;
    }
}

void Gestures::cardy_MouseMove()
{
    if (rooms_.hand.Dragging()) {
        rooms_.hand.Follow(rooms_.table.form().platform().Cursor());
    }
}

void Gestures::cardy_MouseUp(int index, int button)
{
    if (rooms_.hand.Dragging()) {
        if (button == LeftButton) {
            ReleaseDrag();
        }
    } else if (button == RightButton && std::exchange(rightPressed_, false)) {
        RightClick(index);
    }
}

void Gestures::cardy_MouseLost()
{
    rightPressed_ = false;
    if (rooms_.hand.Dragging()) {
        rooms_.hand.GoHome();
        rooms_.hand.Forget();
    }
}

void Gestures::ReleaseDrag()
{
    rooms_.hand.Release();
    CarryOut(FindDropTarget(rooms_.hand.Head()), Gesture::Drag);
}

/// Sends the exposed card of a stack to the best place.
void Gestures::RightClick(int index)
{
    const Table& table = rooms_.table;
    const int stack = table.StackOf(index);
    if (stack == StockStack && table.Stacks[stack].Back() == Marker) {
        return; // the gap between two passes
    }
    if (!IsCard(index) || stack >= FirstPile || table.TopCard(stack) != index) {
        rooms_.drops.ErrorBeep();
        return;
    }
    const DropTarget target = BestTarget(index);
    if (target.item == NoCard) {
        rooms_.drops.ErrorBeep();
        return;
    }
    rooms_.hand.Take(index);
    CarryOut(target, Gesture::RightClick);
}

/// A finished pile, then a column that fits, then an empty column, of which a card that is alone in its
/// own has nothing to gain.
DropTarget Gestures::BestTarget(int card) const
{
    const Table& table = rooms_.table;
    const int pile =
        FirstStack(FirstPile, Piles, [&](int stack) { return FitsOnPile(table, card, stack); });
    if (pile != NoStack) {
        return {DropTarget::Kind::Pile, SlotOf(pile)};
    }
    const int column = FirstStack(0, Columns, [&](int stack) {
        const int top = table.TopCard(stack);
        return top != NoCard && FollowsInColumn(table, card, top);
    });
    if (column != NoStack) {
        return {DropTarget::Kind::Column, table.TopCard(column)};
    }
    const int home = table.StackOf(card);
    const bool isAlone = IsColumn(home) && table.Stacks[home].Count() == 1;
    const int empty =
        isAlone ? NoStack
                : FirstStack(0, Columns, [&](int stack) { return table.Stacks[stack].IsEmpty(); });
    return {DropTarget::Kind::Column, empty == NoStack ? NoCard : SlotOf(empty)};
}

/// Drops the cards in the hand and does what follows a drop, legal or not. Only moves from the stock can
/// be taken back, and only until a card of a column has been let go over a place. A right click turns
/// the stock once more.
void Gestures::CarryOut(const DropTarget& target, Gesture gesture)
{
    if (target.item == NoCard || target.kind == DropTarget::Kind::Stock) {
        rooms_.drops.ReturnDrag(target.item == NoCard);
        return;
    }
    const int source = rooms_.table.StackOf(rooms_.hand.Head());
    const bool onPile = target.kind == DropTarget::Kind::Pile;
    if (onPile) {
        rooms_.drops.DropOnSol(target.item);
    } else {
        rooms_.drops.DropOnStack(target.item);
    }
    if (source != StockStack) {
        rooms_.undo.Clear();
    } else if (gesture == Gesture::RightClick) {
        rooms_.ring.NextStockCard();
    }
    if (onPile) {
        rooms_.automove.AutoMove(source, rooms_.table.StackOf(target.item));
    } else {
        rooms_.automove.EndTest();
    }
}

DropTarget Gestures::FindDropTarget(int card) const
{
    const Table& table = rooms_.table;
    const Whole x = RoundHalfEven(table.cardy[card].Left());
    const Whole y = RoundHalfEven(table.cardy[card].Top());
    if (IsNear(StockItem, x, y)) {
        return {DropTarget::Kind::Stock, StockItem};
    }
    for (int slot = FirstPileBase; slot < FirstPileBase + Piles; ++slot) {
        if (IsNear(slot, x, y)) {
            return {DropTarget::Kind::Pile, slot};
        }
    }
    const Whole width = table.shared().CardWidth;
    const int column = FirstStack(0, Columns, [&](int stack) {
        const Whole left = RoundHalfEven(table.StackLeft[stack] - width / 4.0);
        return x > left && x < left + width + width / 10.0;
    });
    if (column == NoStack) {
        return {};
    }
    const int top = table.TopCard(column);
    return {DropTarget::Kind::Column, top == NoCard ? SlotOf(column) : top};
}

/// From half a card to the left of a slot and above it to a card's size to the right and below.
bool Gestures::IsNear(int slot, Whole x, Whole y) const
{
    const Table& table = rooms_.table;
    const Whole width = table.shared().CardWidth;
    const Whole height = table.shared().CardHeight;
    const Whole left = RoundHalfEven(table.SlotLeft[slot] - width * 0.5);
    const Whole top = RoundHalfEven(table.SlotTop[slot] - height * 0.5);
    return x > left && x < left + width * 1.5 && y > top && y < top + height * 1.5;
}

} // namespace tessarine
