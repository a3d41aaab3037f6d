#include "table/hand.h"

#include "table/module1.h"

namespace tessarine
{

void Hand::PickUp(int card, PixelPoint cursor)
{
    const TextList& entries = table_.Stacks[table_.StackOf(card)];
    const auto position = entries.Find(EntryOfCard(card));
    if (!position) {
        return;
    }
    Forget();
    for (std::size_t i = *position; i < entries.Count(); ++i) {
        DragCards_.push_back(CardOfEntry(entries.At(i)));
        table_.cardy[DragCards_.back()].BringToFront();
    }
    const Label& head = table_.cardy[card];
    DragHomeLeft = RoundHalfEven(head.Left());
    DragHomeTop = RoundHalfEven(head.Top());
    DragCursorX = cursor.x;
    DragCursorY = cursor.y;
    dragging_ = true;
}

void Hand::Follow(PixelPoint cursor)
{
    const Whole dx = (cursor.x - DragCursorX) * table_.shared().TwipsX;
    const Whole dy = (cursor.y - DragCursorY) * table_.shared().TwipsY;
    DragCursorX = cursor.x;
    DragCursorY = cursor.y;
    for (const int card : DragCards_) {
        Label& label = table_.cardy[card];
        label.Move(label.Left() + dx, label.Top() + dy);
    }
}

void Hand::Take(int card)
{
    Forget();
    DragCards_.push_back(card);
}

bool Hand::GoHome()
{
    if (!DragHomeLeft) {
        return false;
    }
    Whole top = DragHomeTop;
    for (const int card : DragCards_) {
        table_.cardy[card].Move(*DragHomeLeft, top);
        top += table_.shared().FanStep;
    }
    return true;
}

void Hand::Forget()
{
    DragCards_.clear();
    DragHomeLeft.reset();
    dragging_ = false;
}

} // namespace tessarine
