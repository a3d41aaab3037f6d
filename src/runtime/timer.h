// A timer on a form.
#pragma once

#include "runtime/platform.h"

#include <functional>

namespace tessarine
{

/// Ticks once an interval for as long as it is enabled; the handlers of this program switch it off at
/// the first tick. With an interval of 0 it never ticks.
class Timer
{
public:
    explicit Timer(Platform& platform) : platform_(platform) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer() { SetEnabled(false); }

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    /// Milliseconds.
    int Interval() const { return interval_; }
    void SetInterval(int milliseconds);

    std::function<void()> OnTick;

    /// The platform calls this when the time is up.
    void Fire();

private:
    Platform& platform_;
    int interval_ = 0;
    bool enabled_ = false;
};

} // namespace tessarine
