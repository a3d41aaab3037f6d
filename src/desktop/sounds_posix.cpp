// Sound through the desktop's library for event sounds.
#include "desktop/wave_player.h"

#include <canberra.h>
#include <dlfcn.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

namespace tessarine
{
namespace
{

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

class Player final : public WavePlayer
{
public:
    ~Player() override
    {
        if (context_ != nullptr) {
            library_.destroyContext(context_);
        }
        while (!sounding_.empty()) { // those that the library forgot
            End(sounding_.begin()->first);
        }
    }

    bool Open()
    {
        QuietDeviceErrors();
        if (!library_.Load() || library_.createContext(&context_) != CA_SUCCESS) {
            return false;
        }
        library_.describe(context_, CA_PROP_APPLICATION_NAME, "Tessarine", CA_PROP_APPLICATION_ID,
                          "tessarine", nullptr);
        return true;
    }

    bool Begin(const std::string& path, std::function<void()> ended) override
    {
        const std::uint32_t number = ++number_;
        {
            const std::lock_guard lock(mutex_);
            sounding_[number] = std::move(ended);
        }
        const int result = Play(number, path);
        if (result == CA_SUCCESS) {
            return true;
        }
        const bool isTheFilesFault = result == CA_ERROR_NOTFOUND || result == CA_ERROR_CORRUPT;
        if (isTheFilesFault) {
            End(number);
            return true;
        }
        const std::lock_guard lock(mutex_);
        return sounding_.erase(number) == 0; // none: the library said its end all the same
    }

private:
    int Play(std::uint32_t number, const std::string& path)
    {
        ca_proplist* facts = nullptr;
        if (library_.createList(&facts) != CA_SUCCESS) {
            return CA_ERROR_OOM;
        }
        library_.set(facts, CA_PROP_MEDIA_FILENAME, path.c_str());
        library_.set(facts, CA_PROP_MEDIA_ROLE, "game");
        library_.set(facts, CA_PROP_CANBERRA_CACHE_CONTROL, "never");
        const auto onEnd = [](ca_context*, std::uint32_t which, int, void* player) {
            static_cast<Player*>(player)->End(which);
        };
        const int result = library_.play(context_, number, facts, onEnd, this);
        library_.destroyList(facts);
        return result;
    }

    /// Called by a thread of the library too.
    void End(std::uint32_t number)
    {
        std::unique_lock lock(mutex_);
        const auto ended = sounding_.extract(number);
        lock.unlock();
        if (!ended.empty()) {
            ended.mapped()();
        }
    }

    Library library_;
    ca_context* context_ = nullptr;
    std::uint32_t number_ = 0;
    std::mutex mutex_;
    std::map<std::uint32_t, std::function<void()>> sounding_;
};

} // namespace

std::unique_ptr<WavePlayer> OpenWavePlayer()
{
    auto player = std::make_unique<Player>();
    if (!player->Open()) {
        return nullptr;
    }
    return player;
}

} // namespace tessarine
