#include "presentation/resizing.h"

namespace tessarine
{
namespace
{

constexpr int WaitMilliseconds = 100;

} // namespace

Resizing::Resizing(Table& table, Scaling& scaling, Door& door)
    : table_(table), scaling_(scaling), door_(door), Timer3(table.form().platform())
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

/// In the middle of a move, and while a button of the mouse is down on something, the timer stays on and
/// ticks again: the rescale waits for the end, and no release falls into it.
void Resizing::Timer3_Timer()
{
    if (table_.form().Captured() != nullptr) {
        return;
    }
    door_.Pass([this] {
        Timer3.SetEnabled(false);
        scaling_.ScaleTable(ratio_);
        table_.shared().LastFormWidth = RoundHalfEven(table_.form().OuterWidth());
    });
}

} // namespace tessarine
