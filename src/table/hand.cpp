#include "table/hand.h"

#include "table/module1.h"

namespace tessarine
{

void Hand::PickUp(int card, PixelPoint cursor)
{
    Forget();
    DragCards_ = table_.RunFrom(card);
    for (const int taken : DragCards_) {
        table_.cardy[taken].BringToFront();
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
