#include "presentation/resizing.h"

namespace tessarine
{
namespace
{

constexpr int WaitMilliseconds = 100;

} // namespace

Resizing::Resizing(Table& table, const Hand& hand, Scaling& scaling, Door& door)
    : table_(table), hand_(hand), scaling_(scaling), door_(door), Timer3(table.form().platform())
{
    Timer3.SetInterval(WaitMilliseconds);
    Timer3.OnTick = [this] { Timer3_Timer(); };
}

void Resizing::Form_Resize()
{
    const Whole last = table_.shared().LastFormWidth;
    if (last == -1 || Timer3.Enabled()) {
        return;
    }
    ratio_ = static_cast<float>(table_.form().OuterWidth() / last);
    Timer3.SetEnabled(true);
}

/// In the middle of a move the timer stays on and ticks again: the rescale waits for the move's end.
void Resizing::Timer3_Timer()
{
    if (!hand_.IsEmpty()) {
        return;
    }
    door_.Pass([this] {
        Timer3.SetEnabled(false);
        scaling_.ScaleTable(ratio_);
        table_.shared().LastFormWidth = RoundHalfEven(table_.form().OuterWidth());
    });
}

} // namespace tessarine
