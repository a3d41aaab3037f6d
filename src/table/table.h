// The state of a game: the items on the table and the stacks.
#pragma once

#include "kit/sound.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "runtime/numbered.h"
#include "runtime/text_list.h"
#include "table/cards.h"
#include "table/module1.h"

#include <string>
#include <vector>

namespace tessarine
{

/// Between two events, when no move is under way: each card stands in exactly one stack, the one that
/// CardStack names; the stock holds exactly one marker; in a column face-up cards follow face-down
/// ones and form one run; a finished pile holds a suit's cards from 0 upwards.
class Table
{
public:
    Table(Form& form, Module1& shared, const Sound& sound);

    /// The surface; belongs on the form.
    PictureBox Picture2;
    /// All visual items; `cardy(0)` is the design that the others copy. On Picture2.
    Numbered<Label, ItemCount> cardy;

    /// Entries are card indices of two digits, and once in the stock the marker. The finished piles
    /// keep themselves sorted.
    Numbered<TextList, StackCount> Stacks;
    /// Stack that holds a card or that a base belongs to; NoStack before the first deal.
    Numbered<Whole, ItemCount> CardStack;
    /// Number and letter of each card, "07H"; empty for what is no card.
    Numbered<std::string, ItemCount> CardName;

    // Places of the bases by their items, and of the stacks, in twips on Picture2.
    Numbered<Whole, ItemCount - StockItem, StockItem> SlotLeft;
    Numbered<Whole, ItemCount - StockItem, StockItem> SlotTop;
    Numbered<Whole, StackCount> StackLeft;
    Numbered<Whole, StackCount> StackTop;

    /// The deal: 50 card indices in dealing order, the whole definition of a game.
    TextList CardOrder;

    /// Makes the items and the names of the cards; once, before the first deal.
    void CreateCards();

    /// 0 to 9, or 10 for what is no card.
    int CardNumber(int item) const;
    /// The suit's letter, or a blank for what is no card.
    char CardSuit(int item) const;
    /// The last entry of a stack as a card; NoCard for an empty stack.
    int TopCard(int stack) const;
    /// A card and all that lie on it in its stack, in that order. Of the stock it is all behind the
    /// card, the marker as card 0.
    std::vector<int> RunFrom(int card) const;
    bool IsFaceUp(int item) const { return !cardy[item].Caption().empty(); }

    /// Turns a card face-up or draws its face anew, then lets pending events run.
    void ShowCardFace(int card);
    void LetEventsRun() const { form_.platform().RunPendingEvents(); }

    /// The stack a card or base belongs to.
    int StackOf(int item) const { return CardStack[item]; }
    /// Lays a card on a stack: its entry, its number in CardStack, its place, in front of the others.
    void LayOn(int stack, int card, Twips left, Twips top);

    Form& form() const { return form_; }
    Module1& shared() const { return shared_; }
    const Sound& sound() const { return sound_; }

private:
    void SetCardName(int card, int number, std::size_t suitNumber);

    Form& form_;
    Module1& shared_;
    const Sound& sound_;
};

/// The card of an entry of a stack; 0 for the marker.
int CardOfEntry(const std::string& entry);
/// The entry of a card: two digits.
std::string EntryOfCard(int card);

} // namespace tessarine
