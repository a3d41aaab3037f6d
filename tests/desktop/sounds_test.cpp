#include "stage.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <thread>

namespace tessarine
{
namespace
{

using namespace std::chrono_literals;

/// A sound server with players connected to it. A sound rings until Hush or the end of its player.
class Server
{
public:
    WavePlayerMaker Maker()
    {
        return [this]() -> std::unique_ptr<WavePlayer> {
            ++opened;
            std::this_thread::sleep_for(opening);
            return runs > 0 ? std::make_unique<Player>(*this) : nullptr;
        };
    }
    /// What has begun, as soon as it is so many sounds or a second has passed.
    std::vector<std::string> Begun(std::size_t count)
    {
        for (int tries = 0; tries < 1000 && (Copy().size() < count); ++tries) {
            std::this_thread::sleep_for(1ms);
        }
        return Copy();
    }
    void Hush()
    {
        for (const auto& ended : std::exchange(ringing_, {})) {
            ended();
        }
    }

    std::atomic<int> runs = 1; ///< which run of the server this is; 0 for none
    std::atomic<int> opened = 0;
    std::chrono::milliseconds opening{0};
    std::chrono::milliseconds length{-1}; ///< of a sound that ends by itself

private:
    class Player : public WavePlayer
    {
    public:
        explicit Player(Server& server) : server_(server), run_(server.runs) {}
        ~Player() override { server_.Hush(); }
        bool Begin(const std::string& path, std::function<void()> ended) override
        {
            if (run_ != server_.runs) {
                return false;
            }
            const std::lock_guard lock(server_.mutex_);
            server_.begun_.push_back(path);
            if (server_.length < 0ms) {
                server_.ringing_.push_back(std::move(ended));
            } else {
                std::thread([length = server_.length, ended = std::move(ended)] {
                    std::this_thread::sleep_for(length);
                    std::fputs("heard out", stderr);
                    ended();
                }).detach();
            }
            return true;
        }

    private:
        Server& server_;
        int run_;
    };
    std::vector<std::string> Copy()
    {
        const std::lock_guard lock(mutex_);
        return begun_;
    }

    std::mutex mutex_;
    std::vector<std::string> begun_;
    std::vector<std::function<void()>> ringing_;
};

TEST(SoundsTest, EverySoundBeginsBesideTheOthersAndNobodyWaits)
{
    Server server;
    server.opening = 50ms;
    DesktopPlatform platform(server.Maker());
    const std::vector<std::string> paths = {"/app/_menu.wav", "/app/_shuf.wav", "/app/_menu.wav"};
    for (const std::string& path : paths) {
        platform.PlayWave(path);
    }
    EXPECT_TRUE(server.Begun(0).empty()) << "while the device is still being opened";
    EXPECT_EQ(server.Begun(3), paths);
    EXPECT_EQ(server.opened, 1);
}

TEST(SoundsTest, AServerThatIsStartedAnewIsFoundByTheNextSound)
{
    Server server;
    Sounds sounds(server.Maker());
    const auto play = [&](const std::string& path) {
        sounds.Play(path);
        sounds.Finish(30ms);
    };
    play("before");
    server.runs = 2;
    play("after a restart");
    server.runs = 0;
    play("while there is none");
    server.runs = 3;
    play("when it is back");
    EXPECT_EQ(server.Begun(3),
              (std::vector<std::string>{"before", "after a restart", "when it is back"}));
    EXPECT_EQ(server.opened, 4) << "one try for each sound that finds nobody";
}

TEST(SoundsTest, TheProgramEndsWhenItsLastSoundHasBeenHeard)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto end = [] {
        Server server;
        server.opening = 50ms;
        server.length = 100ms;
        DesktopPlatform platform(server.Maker());
        platform.PlayWave("/app/_exit.wav");
        platform.EndProgram();
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(EXIT_SUCCESS), "heard out");
    const auto endUnheard = [] {
        Server server; // with a sound that never ends
        DesktopPlatform platform(server.Maker());
        platform.PlayWave("/app/_exit.wav");
        platform.EndProgram();
    };
    EXPECT_EXIT(endUnheard(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

} // namespace
} // namespace tessarine
