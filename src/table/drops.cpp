#include "table/drops.h"

#include "table/rules.h"

namespace tessarine
{

void Drops::DropOnStack(int card, int target)
{
    const InputHold hold(table_.form());
    const int source = table_.StackOf(card);
    const int destination = table_.StackOf(target);
    const int head = table_.DragCards[1];
    if (source == destination) {
        ReturnDrag(false);
        return;
    }
    // A base takes any run.
    const bool fits = target >= FirstColumnBase || FollowsInColumn(table_, head, target);
    if (!fits) {
        ReturnDrag(true);
        return;
    }
    if (table_.DragCards[0] == 1) {
        LayOneCard(head, target, source, destination);
        table_.sound().PlayWav("_dropone.wav");
    } else {
        LayRun(target, destination);
        table_.sound().PlayWav("_droponstack.wav");
    }
}

void Drops::LayOneCard(int card, int target, int source, int destination)
{
    if (source == StockStack) {
        undo_.Record(source, destination, card);
    }
    slide_.SlideCard(card, target);
    RemoveCard(card);
    const Label& onto = table_.cardy[At(target)];
    const Whole below = target >= FirstColumnBase ? 0 : table_.shared().FanStep;
    table_.LayOn(destination, card, onto.Left(), onto.Top() + below);
}

/// A run jumps. On a base its head lies exactly on it, on a card one step below.
void Drops::LayRun(int target, int destination)
{
    const Label& onto = table_.cardy[At(target)];
    const Twips left = onto.Left();
    Twips top = onto.Top();
    if (target < FirstColumnBase) {
        top += table_.shared().FanStep;
    }
    for (int i = 1; i <= table_.DragCards[0]; ++i) {
        const int card = table_.DragCards[At(i)];
        RemoveCard(card);
        table_.LayOn(destination, card, left, top);
        top += table_.shared().FanStep;
    }
}

void Drops::DropOnSol(int card, int target)
{
    const InputHold hold(table_.form());
    const int source = table_.StackOf(card);
    const int destination = table_.StackOf(target);
    const int last = table_.DragCards[At(table_.DragCards[0])];
    if (!FitsOnPile(table_, last, destination)) {
        ReturnDrag(true);
        return;
    }
    if (source == StockStack) {
        undo_.Record(source, destination, last);
    }
    slide_.SlideCard(last, target);
    RemoveCard(last);
    const Label& base = table_.cardy[At(target)];
    table_.LayOn(destination, last, base.Left(), base.Top());
    table_.cardy[At(last)].SetFontUnderline(true);
    table_.sound().PlayWav("_droponsol.wav");
}

/// Takes a card out of its stack; the next card of a column turns face-up, the stock turns.
void Drops::RemoveCard(int card)
{
    const int stack = table_.StackOf(card);
    TextList& entries = table_.Stacks[At(stack)];
    const auto position = entries.Find(EntryOfCard(card));
    if (!position) {
        table_.form().platform().PlainMessage(NumberText(card) + " not in stack" + NumberText(stack) +
                                                  ", cannot be removed",
                                              PlainButtons::Ok);
        return;
    }
    entries.RemoveAt(*position);
    if (entries.IsEmpty()) {
        return;
    }
    if (stack == StockStack) {
        ring_.NextStockCard();
    } else {
        table_.ShowCardFace(table_.TopCard(stack));
    }
}

void Drops::ReturnDrag(bool withError)
{
    if (withError) {
        ErrorBeep();
    }
    if (table_.DragHomeLeft == -1) {
        return;
    }
    Twips top = table_.DragHomeTop;
    for (int i = 1; i <= table_.DragCards[0]; ++i) {
        table_.cardy[At(table_.DragCards[At(i)])].Move(table_.DragHomeLeft, top);
        top += table_.shared().FanStep;
    }
    table_.LetEventsRun();
}

void Drops::ErrorBeep() const
{
    table_.sound().PlayWav("_error.wav");
}

} // namespace tessarine
