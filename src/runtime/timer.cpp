#include "runtime/timer.h"

namespace tessarine
{

void Timer::SetEnabled(bool enabled)
{
    if (enabled == enabled_) {
        return;
    }
    enabled_ = enabled;
    if (interval_ <= 0) {
        return;
    }
    if (enabled_) {
        platform_.StartTimer(*this, interval_);
    } else {
        platform_.StopTimer(*this);
    }
}

void Timer::SetInterval(int milliseconds)
{
    if (milliseconds == interval_) {
        return;
    }
    const bool wasEnabled = enabled_;
    SetEnabled(false);
    interval_ = milliseconds;
    SetEnabled(wasEnabled);
}

void Timer::Fire()
{
    if (!enabled_) {
        return;
    }
    if (OnTick) {
        OnTick();
    }
    if (enabled_ && interval_ > 0) {
        platform_.StartTimer(*this, interval_);
    }
}

} // namespace tessarine
