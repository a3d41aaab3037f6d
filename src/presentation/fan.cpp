#include "presentation/fan.h"

namespace tessarine
{

void LayColumn(Table& table, int column)
{
    const Whole fullStep = table.shared().FanStep;
    const Whole left = table.StackLeft[column];
    Whole top = table.StackTop[column];
    Whole step = RoundHalfEven(fullStep / 3.0);
    for (const std::string& entry : table.Stacks[column]) {
        const int card = CardOfEntry(entry);
        table.cardy[card].Move(left, top);
        table.cardy[card].BringToFront();
        if (table.IsFaceUp(card)) {
            step = fullStep;
        }
        top += step;
    }
}

} // namespace tessarine
