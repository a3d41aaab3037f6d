#include "table/table.h"

namespace tessarine
{
namespace
{

std::array<TextList, StackCount> EmptyStacks()
{
    std::array<TextList, StackCount> stacks;
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        stacks[At(pile)] = TextList(TextList::Order::Sorted);
    }
    return stacks;
}

constexpr Twips DesignLeft = 2970;
constexpr Twips DesignTop = 3960;
constexpr double DesignPoints = 12;

} // namespace

int CardOfEntry(const std::string& entry)
{
    return entry == Marker ? 0 : (entry[0] - '0') * 10 + (entry[1] - '0');
}

std::string EntryOfCard(int card)
{
    return TwoDigits(card);
}

Table::Table(Form& form, Module1& shared, const Sound& sound)
    : Stacks(EmptyStacks()), form_(form), shared_(shared), sound_(sound)
{
}

void Table::CreateCards()
{
    const Font face{"Arial", DesignPoints, true, false, false};
    for (int item = 0; item < ItemCount; ++item) {
        Label& label = cardy[At(item)];
        label.SetBounds(DesignLeft, DesignTop, shared_.CardWidth, shared_.CardHeight);
        label.SetFont(face);
        label.SetAlign(Alignment::Centre);
        label.SetBorder(true);
        label.SetOpaque(false);
        label.SetVisible(false);
        label.Describe = [this, item] { return Description(item); };
        Picture2.Add(label);
    }
    cardy[0].SetBackColor(shared_.Background());

    for (int suit = 1; suit <= Suits; ++suit) {
        for (int number = 0; number < CardsInSuit; ++number) {
            SetCardName((suit - 1) * CardsInSuit + number, number, suit);
        }
    }
}

void Table::SetCardName(int card, int number, int suitNumber)
{
    CardName[At(card)] = TwoDigits(number) + SuitLetters[At(suitNumber - 1)];
}

int Table::CardNumber(int item) const
{
    const std::string& name = CardName[At(item)];
    return name.empty() ? BaseNumber : (name[0] - '0') * 10 + (name[1] - '0');
}

char Table::CardSuit(int item) const
{
    const std::string& name = CardName[At(item)];
    return name.empty() ? ' ' : name[2];
}

int Table::TopCard(int stack) const
{
    const TextList& entries = Stacks[At(stack)];
    return entries.IsEmpty() ? NoCard : CardOfEntry(entries.Back());
}

void Table::ShowCardFace(int card)
{
    Label& label = cardy[At(card)];
    label.SetBackColor(shared_.SuitColor[SuitLetters.find(CardSuit(card))]);
    label.SetForeColor(shared_.CardTextColor);
    label.SetFontName(shared_.CardFont);
    label.SetCaption(std::string(1, static_cast<char>('0' + CardNumber(card))));
    LetEventsRun();
}

void Table::TakeInHand(int card)
{
    DragCards[0] = 1;
    DragCards[1] = card;
}

void Table::LayOn(int stack, int card, Twips left, Twips top)
{
    Stacks[At(stack)].Add(EntryOfCard(card));
    CardStack[At(card)] = stack;
    cardy[At(card)].Move(left, top);
    cardy[At(card)].BringToFront();
}

void Table::LetEventsRun() const
{
    const InputHold hold(form_);
    form_.platform().RunPendingEvents();
}

std::string Table::Description(int item) const
{
    const Label& label = cardy[At(item)];
    const int stack = StackOf(item);
    const TextList& entries = Stacks[At(stack)];
    if (!label.Visible()) {
        return {};
    }
    std::string place = "stock";
    if (IsColumn(stack)) {
        place = "column " + std::to_string(stack + 1);
    } else if (IsPile(stack)) {
        place = "finished pile " + std::to_string(stack - FirstPile + 1);
    }
    if (item == StockItem) {
        if (entries.Back() != Marker) {
            return {}; // a card lies in front of it
        }
        return entries.Count() == 1 ? "stock, used up" : "stock, between two passes";
    }
    if (item >= CardCount) {
        return entries.IsEmpty() ? "empty " + place : std::string();
    }
    if (!IsColumn(stack) && entries.Back() != EntryOfCard(item)) {
        return {}; // covered by the card that shows
    }
    if (!IsFaceUp(item)) {
        return "face-down card, " + place;
    }
    return label.Caption() + " of " + CardSuit(item) + ", " + place;
}

} // namespace tessarine
