#include "table/table.h"

#include <algorithm>
#include <iterator>

namespace tessarine
{
namespace
{

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
    : form_(form), shared_(shared), sound_(sound)
{
    for (int pile = FirstPile; pile < FirstPile + Piles; ++pile) {
        Stacks[pile] = TextList(TextList::Order::Sorted);
    }
    for (Whole& stack : CardStack) {
        stack = NoStack;
    }
}

void Table::CreateCards()
{
    const Font face{"Arial", DesignPoints, true, false, false};
    for (Label& label : cardy) {
        label.SetBounds(DesignLeft, DesignTop, shared_.CardWidth, shared_.CardHeight);
        label.SetFont(face);
        label.SetAlign(Alignment::Centre);
        label.SetBorder(true);
        label.SetOpaque(false);
        label.SetVisible(false);
        Picture2.Add(label);
    }
    cardy[0].SetBackColor(shared_.Background());

    int card = 0;
    for (std::size_t suit = 1; suit <= SuitLetters.size(); ++suit) {
        for (int number = 0; number < CardsInSuit; ++number) {
            SetCardName(card++, number, suit);
        }
    }
}

void Table::SetCardName(int card, int number, std::size_t suitNumber)
{
    CardName[card] = TwoDigits(number) + SuitLetters[suitNumber - 1];
}

int Table::CardNumber(int item) const
{
    const std::string& name = CardName[item];
    return name.empty() ? BaseNumber : (name[0] - '0') * 10 + (name[1] - '0');
}

char Table::CardSuit(int item) const
{
    const std::string& name = CardName[item];
    return name.empty() ? ' ' : name[2];
}

int Table::TopCard(int stack) const
{
    const TextList& entries = Stacks[stack];
    return entries.IsEmpty() ? NoCard : CardOfEntry(entries.Back());
}

std::vector<int> Table::RunFrom(int card) const
{
    const TextList& entries = Stacks[StackOf(card)];
    std::vector<int> run;
    std::transform(std::ranges::find(entries, EntryOfCard(card)), entries.end(), std::back_inserter(run),
                   CardOfEntry);
    return run;
}

void Table::ShowCardFace(int card)
{
    Label& label = cardy[card];
    label.SetBackColor(shared_.SuitColor[SuitLetters.find(CardSuit(card))]);
    label.SetForeColor(shared_.CardTextColor);
    label.SetFontName(shared_.CardFont);
    label.SetCaption(std::to_string(CardNumber(card)));
    LetEventsRun();
}

void Table::LayOn(int stack, int card, Twips left, Twips top)
{
    Stacks[stack].Add(EntryOfCard(card));
    CardStack[card] = stack;
    cardy[card].Move(left, top);
    cardy[card].BringToFront();
}

} // namespace tessarine
