#include "table/slide.h"

namespace tessarine
{
namespace
{

constexpr int StepMilliseconds = 3;

} // namespace

Slide::Slide(Table& table) : table_(table), Timer2(table.form().platform())
{
    Timer2.OnTick = [this] { Timer2_Timer(); };
}

void Slide::SlideCard(int card, int target)
{
    const Whole steps = table_.shared().MoveSteps;
    if (steps <= 0) {
        return;
    }
    Label& moving = table_.cardy[card];
    const Label& goal = table_.cardy[target];
    moving.BringToFront();
    Whole x = RoundHalfEven(moving.Left());
    Whole y = RoundHalfEven(moving.Top());
    const double dx = static_cast<double>(RoundHalfEven(goal.Left()) - x) / steps;
    const double dy = static_cast<double>(RoundHalfEven(goal.Top()) - y) / steps;
    for (Whole step = 0; step < steps; ++step) {
        x = RoundHalfEven(x + dx);
        y = RoundHalfEven(y + dy);
        moving.Move(x, y);
        Pause(StepMilliseconds);
    }
}

void Slide::Pause(int milliseconds)
{
    Timer2.SetInterval(milliseconds);
    Timer2.SetEnabled(true);
    while (Timer2.Enabled()) {
        table_.form().platform().WaitForEvent();
    }
}

} // namespace tessarine
