#include "table/drops.h"

#include "table/rules.h"

namespace tessarine
{
namespace
{

/// What is laid on a base lies exactly on it; on a card it lies one step below.
bool OnBase(int target)
{
    return !IsCard(target);
}

} // namespace

void Drops::DropOnStack(int target)
{
    if (table_.StackOf(hand_.Head()) == table_.StackOf(target)) {
        ReturnDrag(false);
        return;
    }
    if (!GoesOnColumn(target)) {
        ReturnDrag(true);
        return;
    }
    if (hand_.DragCards().size() == 1) {
        LayOneCard(target);
        table_.sound().PlayWav("_dropone.wav");
    } else {
        LayRun(target);
        table_.sound().PlayWav("_droponstack.wav");
    }
    hand_.Forget();
}

/// An empty column takes any run, and its base stands for it; a base under cards is of no suit.
bool Drops::GoesOnColumn(int target) const
{
    const bool isEmpty = table_.Stacks[table_.StackOf(target)].IsEmpty();
    return isEmpty || FollowsInColumn(table_, hand_.Head(), target);
}

void Drops::LayOneCard(int target)
{
    const int card = hand_.Head();
    const int destination = table_.StackOf(target);
    if (table_.StackOf(card) == StockStack) {
        undo_.Record(destination, card);
    }
    slide_.SlideCard(card, target);
    RemoveCard(card);
    const Label& onto = table_.cardy[target];
    const Whole below = OnBase(target) ? 0 : table_.shared().FanStep;
    table_.LayOn(destination, card, onto.Left(), onto.Top() + below);
}

/// A run jumps.
void Drops::LayRun(int target)
{
    const int destination = table_.StackOf(target);
    const Label& onto = table_.cardy[target];
    const Twips left = onto.Left();
    Twips top = onto.Top() + (OnBase(target) ? 0 : table_.shared().FanStep);
    for (const int card : hand_.DragCards()) {
        RemoveCard(card);
        table_.LayOn(destination, card, left, top);
        top += table_.shared().FanStep;
    }
}

void Drops::DropOnSol(int target)
{
    const int card = hand_.Last();
    const int destination = table_.StackOf(target);
    if (!FitsOnPile(table_, card, destination)) {
        ReturnDrag(true);
        return;
    }
    if (table_.StackOf(card) == StockStack) {
        undo_.Record(destination, card);
    }
    slide_.SlideCard(card, target);
    RemoveCard(card);
    const Label& base = table_.cardy[target];
    table_.LayOn(destination, card, base.Left(), base.Top());
    table_.cardy[card].SetFontUnderline(true);
    table_.sound().PlayWav("_droponsol.wav");
    hand_.Forget();
}

/// Takes a card out of its stack; the next card of a column turns face-up, the stock turns.
void Drops::RemoveCard(int card)
{
    const int stack = table_.StackOf(card);
    TextList& entries = table_.Stacks[stack];
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
    if (hand_.GoHome()) {
        table_.LetEventsRun();
    }
    hand_.Forget();
}

void Drops::ErrorBeep() const
{
    table_.sound().PlayWav("_error.wav");
}

} // namespace tessarine
