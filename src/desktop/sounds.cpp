#include "desktop/sounds.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace tessarine
{
namespace
{

using Clock = std::chrono::steady_clock;

/// A sound that could not begin within this time, as while the device was being opened, is not wanted
/// any more.
constexpr std::chrono::milliseconds Patience{1000};

} // namespace

class Sounds::Queue
{
public:
    explicit Queue(const WavePlayerMaker& openPlayer)
        : openPlayer_(openPlayer), thread_([this] { Run(); })
    {
    }
    ~Queue()
    {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    void Add(const std::string& path)
    {
        {
            const std::lock_guard lock(mutex_);
            wanted_.push_back({path, Clock::now()});
            ++unheard_;
        }
        changed_.notify_all();
    }

    void Finish(std::chrono::milliseconds longest)
    {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, longest, [this] { return unheard_ == 0; });
    }

private:
    struct Wish {
        std::string path;
        Clock::time_point since;
    };

    void Run()
    {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return ending_ || !wanted_.empty(); });
            if (ending_) {
                break;
            }
            const Wish wish = std::move(wanted_.front());
            wanted_.pop_front();
            lock.unlock();
            if (!Begin(wish)) {
                CountAsHeard();
            }
            lock.lock();
        }
        lock.unlock();
        player_.reset();
    }

    /// The device may have gone since the last sound, as a sound server that is started anew. One that
    /// was opened just now and can't be reached is left for the next sound to try.
    bool Begin(const Wish& wish)
    {
        if (player_ != nullptr && BeginOnPlayer(wish)) {
            return true;
        }
        player_.reset();
        player_ = openPlayer_();
        if (player_ != nullptr && BeginOnPlayer(wish)) {
            return true;
        }
        player_.reset();
        return false;
    }

    bool BeginOnPlayer(const Wish& wish)
    {
        if (Clock::now() - wish.since > Patience) {
            CountAsHeard();
            return true;
        }
        return player_->Begin(wish.path, [this] { CountAsHeard(); });
    }

    /// Tells it with the lock in hand: whoever waits for the last sound ends the queue right after.
    void CountAsHeard()
    {
        const std::lock_guard lock(mutex_);
        --unheard_;
        changed_.notify_all();
    }

    const WavePlayerMaker& openPlayer_;
    std::unique_ptr<WavePlayer> player_; ///< the thread's alone
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Wish> wanted_;
    int unheard_ = 0; ///< those wanted and those that sound
    bool ending_ = false;
    std::thread thread_; // last: it uses the others
};

Sounds::Sounds(WavePlayerMaker openPlayer) : openPlayer_(std::move(openPlayer)) {}
Sounds::~Sounds() = default;

void Sounds::Play(const std::string& path)
{
    if (queue_ == nullptr) {
        queue_ = std::make_unique<Queue>(openPlayer_);
    }
    queue_->Add(path);
}

void Sounds::Finish(std::chrono::milliseconds longest)
{
    if (queue_ != nullptr) {
        queue_->Finish(longest);
    }
}

} // namespace tessarine
