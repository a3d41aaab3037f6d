// The table follows the window's width, a moment later.
#pragma once

#include "presentation/scaling.h"
#include "runtime/door.h"
#include "runtime/timer.h"
#include "table/table.h"

namespace tessarine
{

class Resizing
{
public:
    Resizing(Table& table, Scaling& scaling, Door& door);

    /// The window's size changed, for whatever reason: notes the ratio of the new width to that of
    /// the last layout and starts the wait. Further changes during the wait are dropped.
    void Form_Resize();
    /// Whether a layout waits for its time.
    bool IsDue() const { return Timer3.Enabled(); }

private:
    void Timer3_Timer();

    Table& table_;
    Scaling& scaling_;
    Door& door_;
    Timer Timer3;
    float ratio_ = 1;
};

} // namespace tessarine
