#include "desktop/short_waits.h"

namespace tessarine
{

ShortWaits::~ShortWaits()
{
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }
}

int ShortWaits::Start(std::chrono::milliseconds length)
{
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { Run(); });
    }
    const std::lock_guard lock(mutex_);
    waits_.emplace(Clock::now() + length, --latest_);
    changed_.notify_all();
    return latest_;
}

void ShortWaits::Run()
{
    std::unique_lock lock(mutex_);
    while (!ending_) {
        if (waits_.empty()) {
            changed_.wait(lock);
            continue;
        }
        const auto [end, number] = *waits_.begin();
        if (Clock::now() < end) {
            changed_.wait_until(lock, end);
            continue;
        }
        waits_.erase(waits_.begin());
        isOver_(number);
    }
}

} // namespace tessarine
