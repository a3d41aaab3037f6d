// Waits of a few milliseconds.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace tessarine
{

/// Waits in a thread that sleeps, begun by the first of them: a system's timers may be far too slow
/// for a slide.
class ShortWaits
{
public:
    /// `isOver` is called by the thread with the number of a wait.
    explicit ShortWaits(std::function<void(int)> isOver) : isOver_(std::move(isOver)) {}
    ~ShortWaits();
    ShortWaits(const ShortWaits&) = delete;
    ShortWaits& operator=(const ShortWaits&) = delete;

    /// Begins one and returns its number, which is negative.
    int Start(std::chrono::milliseconds length);

private:
    using Clock = std::chrono::steady_clock;

    void Run();

    std::function<void(int)> isOver_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::multimap<Clock::time_point, int> waits_; ///< numbers by ends
    int latest_ = 0;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace tessarine
