// The state of a game: the items on the table, the stacks, and the move in hand.
#pragma once

#include "kit/sound.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "runtime/text_list.h"
#include "table/cards.h"
#include "table/module1.h"

#include <array>
#include <string>

namespace tessarine
{

/// Between two events, when no move is under way: each card stands in exactly one stack, the one that
/// CardStack names; the stock holds exactly one marker; in a column face-up cards follow face-down
/// ones and form one run; a finished pile holds a suit's cards from 0 upwards.
class Table
{
public:
    /// Stands on `form`, whose input rests while a move is under way.
    Table(Form& form, Module1& shared, const Sound& sound);

    /// The surface; belongs on the form.
    PictureBox Picture2;
    /// All visual items; `cardy(0)` is the design that the others copy. On Picture2.
    std::array<Label, ItemCount> cardy;

    /// Entries are card indices of two digits, and once in the stock the marker. The finished piles
    /// keep themselves sorted.
    std::array<TextList, StackCount> Stacks;
    /// Stack that holds a card or that a base belongs to.
    std::array<Whole, ItemCount> CardStack{};
    /// Number and letter of each card, "07H"; empty for what is no card.
    std::array<std::string, SlotCount> CardName;

    // Places of the bases, in twips on Picture2.
    std::array<Whole, SlotCount> SlotLeft{};
    std::array<Whole, SlotCount> SlotTop{};
    std::array<Whole, StackCount> StackLeft{};
    std::array<Whole, StackCount> StackTop{};

    /// The deal: 50 card indices in dealing order, the whole definition of a game.
    TextList CardOrder;

    /// The move in hand: the number of cards, then the cards, head of the run first.
    std::array<Whole, 17> DragCards{};
    /// Where the head was when the drag began; -1 if none has begun since the last press.
    Whole DragHomeLeft = -1;
    Whole DragHomeTop = -1;
    bool Dragging = false;

    /// Makes the items and the names of the cards; once, before the first deal.
    void CreateCards();

    /// 0 to 9, or 10 for what is no card.
    int CardNumber(int item) const;
    /// The suit's letter, or a blank for what is no card.
    char CardSuit(int item) const;
    /// The last entry of a stack as a card; NoCard for an empty stack.
    int TopCard(int stack) const;
    bool IsFaceUp(int item) const { return !cardy[At(item)].Caption().empty(); }
    /// "7 of H, column 3": what a listener is told of an item; empty for what does not show.
    std::string Description(int item) const;

    /// Turns a card face-up or draws its face anew, then lets pending events run.
    void ShowCardFace(int card);

    /// The stack a card or base belongs to.
    int StackOf(int item) const { return CardStack[At(item)]; }
    /// Makes one card the move in hand.
    void TakeInHand(int card);
    /// Lays a card on a stack: its entry, its number in CardStack, its place, in front of the others.
    void LayOn(int stack, int card, Twips left, Twips top);

    Form& form() const { return form_; }
    Module1& shared() const { return shared_; }
    const Sound& sound() const { return sound_; }
    /// Pending events run, but presses meanwhile are lost: something is half done.
    void LetEventsRun() const;
    /// A card slides, is laid or is in the hand.
    bool MoveIsUnderWay() const { return Dragging || InputHold::IsOn(form_); }

private:
    void SetCardName(int card, int number, int suitNumber);

    Form& form_;
    Module1& shared_;
    const Sound& sound_;
};

/// The card of an entry of a stack; 0 for the marker.
int CardOfEntry(const std::string& entry);
/// The entry of a card: two digits.
std::string EntryOfCard(int card);

} // namespace tessarine
