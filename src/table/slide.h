// The animation of one card.
#pragma once

#include "runtime/timer.h"
#include "table/table.h"

namespace tessarine
{

class Slide
{
public:
    explicit Slide(Table& table);

    /// Moves a card in MoveSteps steps to the place of another item, or near it: the steps are whole
    /// twips. Nothing if MoveSteps is 0 or less. Events run meanwhile.
    void SlideCard(int card, int target);

private:
    /// Lets events run for at least so many milliseconds, more than 0.
    void Pause(int milliseconds);
    void Timer2_Timer() { Timer2.SetEnabled(false); }

    Table& table_;
    Timer Timer2;
};

} // namespace tessarine
