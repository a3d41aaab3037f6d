#include "desktop/sounds.h"

#ifdef TESSARINE_SOUND

#include <canberra.h>
#include <dlfcn.h>

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>

namespace tessarine
{
namespace
{

using Clock = std::chrono::steady_clock;

/// The library that plays, loaded with the first sound: a program without sound starts without it and
/// runs where it is not installed.
struct Library {
    decltype(&ca_context_create) createContext = nullptr;
    decltype(&ca_context_destroy) destroyContext = nullptr;
    decltype(&ca_context_change_props) describe = nullptr;
    decltype(&ca_context_play_full) play = nullptr;
    decltype(&ca_proplist_create) createList = nullptr;
    decltype(&ca_proplist_sets) set = nullptr;
    decltype(&ca_proplist_destroy) destroyList = nullptr;

    /// False: there is no such library here.
    bool Load()
    {
        void* const library = dlopen("libcanberra.so.0", RTLD_NOW);
        return library != nullptr && Find(library, "ca_context_create", createContext) &&
               Find(library, "ca_context_destroy", destroyContext) &&
               Find(library, "ca_context_change_props", describe) &&
               Find(library, "ca_context_play_full", play) &&
               Find(library, "ca_proplist_create", createList) &&
               Find(library, "ca_proplist_sets", set) &&
               Find(library, "ca_proplist_destroy", destroyList);
    }

private:
    template <class Function> static bool Find(void* library, const char* name, Function& function)
    {
        function = reinterpret_cast<Function>(dlsym(library, name));
        return function != nullptr;
    }
};

/// A sound that could not begin within this time, as while the device was being opened, is not wanted
/// any more.
constexpr std::chrono::milliseconds Patience{1000};

void SayNothing(const char*, int, const char*, int, const char*, ...) {}

/// Where there is no sound device the system's library would write so on the terminal, many times.
void QuietDeviceErrors()
{
    using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
    using SetHandler = int (*)(Handler);
    void* const library = dlopen("libasound.so.2", RTLD_LAZY);
    if (library == nullptr) {
        return;
    }
    if (const auto set = reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler"))) {
        set(&SayNothing);
    }
    // Not closed again: the handler has to stay in the library that the player loads.
}

} // namespace

class Sounds::Player
{
public:
    Player() : thread_([this] { Run(); }) {}
    ~Player()
    {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        changed_.notify_all();
        thread_.join();
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    void Add(const std::string& path)
    {
        {
            const std::lock_guard lock(mutex_);
            wanted_.push_back({path, Clock::now()});
        }
        changed_.notify_all();
    }

    void Finish(std::chrono::milliseconds longest)
    {
        std::unique_lock lock(mutex_);
        changed_.wait_for(lock, longest, [this] { return wanted_.empty() && !busy_ && playing_ == 0; });
    }

private:
    struct Wish {
        std::string path;
        Clock::time_point since;
    };

    void Run()
    {
        ca_context* const context = Open();
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return ending_ || !wanted_.empty(); });
            if (ending_) {
                break;
            }
            const Wish wish = wanted_.front();
            wanted_.pop_front();
            busy_ = true;
            lock.unlock();
            const bool isLate = Clock::now() - wish.since > Patience;
            const bool begun = context != nullptr && !isLate && Begin(context, wish.path);
            lock.lock();
            busy_ = false;
            playing_ += begun ? 1 : 0;
            changed_.notify_all();
        }
        lock.unlock();
        if (context != nullptr) {
            library_.destroyContext(context);
        }
    }

    /// None where there is no sound.
    ca_context* Open()
    {
        QuietDeviceErrors();
        ca_context* context = nullptr;
        if (!library_.Load() || library_.createContext(&context) != CA_SUCCESS) {
            return nullptr;
        }
        library_.describe(context, CA_PROP_APPLICATION_NAME, "Tessarine", CA_PROP_APPLICATION_ID,
                          "tessarine", nullptr);
        return context;
    }

    bool Begin(ca_context* context, const std::string& path)
    {
        ca_proplist* facts = nullptr;
        if (library_.createList(&facts) != CA_SUCCESS) {
            return false;
        }
        library_.set(facts, CA_PROP_MEDIA_FILENAME, path.c_str());
        library_.set(facts, CA_PROP_MEDIA_ROLE, "game");
        library_.set(facts, CA_PROP_CANBERRA_CACHE_CONTROL, "never");
        const int result = library_.play(context, ++number_, facts, &Player::Ended, this);
        library_.destroyList(facts);
        return result == CA_SUCCESS;
    }

    /// Called by a thread of the library; it may come before the count has gone up.
    static void Ended(ca_context*, std::uint32_t, int, void* player)
    {
        auto& self = *static_cast<Player*>(player);
        {
            const std::lock_guard lock(self.mutex_);
            --self.playing_;
        }
        self.changed_.notify_all();
    }

    Library library_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Wish> wanted_;
    bool busy_ = false;
    bool ending_ = false;
    int playing_ = 0;
    std::uint32_t number_ = 0;
    std::thread thread_; // last: it uses the others
};

} // namespace tessarine

#else

namespace tessarine
{

class Sounds::Player
{
public:
    void Add(const std::string&) {}
    void Finish(std::chrono::milliseconds) {}
};

} // namespace tessarine

#endif

namespace tessarine
{

Sounds::Sounds() = default;
Sounds::~Sounds() = default;

void Sounds::Play(const std::string& path)
{
    if (player_ == nullptr) {
        player_ = std::make_unique<Player>();
    }
    player_->Add(path);
}

void Sounds::Finish(std::chrono::milliseconds longest)
{
    if (player_ != nullptr) {
        player_->Finish(longest);
    }
}

} // namespace tessarine
