#include "table/undo.h"

#include <string_view>

namespace tessarine
{
namespace
{

struct Record {
    int source = 0;
    int destination = 0;
    int card = 0;
};

Record ReadRecord(std::string_view text)
{
    const auto first = text.find(',');
    const auto second = text.find(',', first + 1);
    return {WholeAtStart(text.substr(0, first)),
            WholeAtStart(text.substr(first + 1, second - first - 1)),
            WholeAtStart(text.substr(second + 1))};
}

} // namespace

void Undo::Record(int source, int destination, int card)
{
    UndoList.Add(NumberText(source) + ',' + NumberText(destination) + ',' + NumberText(card));
}

void Undo::Pressed()
{
    if (!UndoList.IsEmpty()) {
        UndoMove();
    }
}

/// Puts the card back as the showing one of the stock and leaves the ring as it has been turned
/// since. Nothing lies on the card: the history would have been cleared.
void Undo::UndoMove()
{
    const InputHold hold(table_.form());
    table_.sound().PlayWav("_undo.wav");
    const auto [source, destination, card] = ReadRecord(UndoList.Back());
    table_.Stacks[At(destination)].PopBack();
    table_.LayOn(source, card, table_.StackLeft[At(StockStack)], table_.StackTop[At(StockStack)]);
    table_.cardy[At(card)].SetFontUnderline(false);
    table_.ShowCardFace(card);
    UndoList.PopBack();
}

} // namespace tessarine
