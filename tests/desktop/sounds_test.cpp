#include "stage.h"

#include <cstdio>
#include <thread>

namespace tessarine
{
namespace
{

using namespace std::chrono_literals;

/// A sound server, which a player finds only in the run that it was opened in.
class Server
{
public:
    WavePlayerMaker Maker()
    {
        return [this] {
            ++opened;
            std::this_thread::sleep_for(50ms);
            return run > 0 ? std::make_unique<Player>(*this) : nullptr;
        };
    }
    void Note(const std::string& what)
    {
        const std::lock_guard lock(mutex_);
        log_ += what;
        std::fputs(what.c_str(), stderr);
    }
    std::string Heard()
    {
        const std::lock_guard lock(mutex_);
        return log_;
    }

    std::atomic<int> run = 1; ///< 0: it is down
    std::atomic<int> opened = 0;
    std::chrono::milliseconds length = 100ms; ///< of every sound

private:
    struct Player : WavePlayer {
        explicit Player(Server& itsServer) : server(itsServer), run(server.run) {}
        bool Begin(const std::string& path, std::function<void()> ended) override
        {
            if (run != server.run) {
                return false;
            }
            server.Note("begins " + path + ' ');
            std::thread([this, path, ended = std::move(ended)] {
                std::this_thread::sleep_for(server.length);
                server.Note("ends " + path + ' ');
                ended();
            }).detach();
            return true;
        }
        Server& server;
        int run;
    };

    std::mutex mutex_;
    std::string log_;
};

TEST(SoundsTest, EverySoundBeginsBesideTheOthersAndNobodyWaits)
{
    Server server;
    Sounds sounds(server.Maker());
    for (const char* const path : {"menu", "shuffle", "menu"}) {
        sounds.Play(path);
    }
    EXPECT_EQ(server.Heard(), "") << "the device is still being opened";
    sounds.Finish(5s);
    EXPECT_TRUE(server.Heard().starts_with("begins menu begins shuffle begins menu ends "));
    EXPECT_EQ(server.opened, 1);
}

TEST(SoundsTest, AServerThatIsStartedAnewIsFoundByTheNextSound)
{
    Server server;
    server.length = 0ms;
    Sounds sounds(server.Maker());
    for (const int run : {1, 2, 0, 3}) {
        server.run = run;
        sounds.Play(std::to_string(run));
        sounds.Finish(5s);
    }
    EXPECT_EQ(server.Heard(), "begins 1 ends 1 begins 2 ends 2 begins 3 ends 3 ");
    EXPECT_EQ(server.opened, 4) << "one try for each sound that finds nobody";
}

TEST(SoundsTest, TheProgramEndsWhenItsLastSoundHasBeenHeardAndInAnyCase)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto end = [](std::chrono::milliseconds length) {
        Server server;
        server.length = length;
        DesktopPlatform platform(server.Maker());
        platform.PlayWave("/app/_exit.wav");
        platform.EndProgram();
    };
    EXPECT_EXIT(end(100ms), testing::ExitedWithCode(EXIT_SUCCESS), "ends /app/_exit.wav");
    EXPECT_EXIT(end(1h), testing::ExitedWithCode(EXIT_SUCCESS), "begins /app/_exit.wav");
}

} // namespace
} // namespace tessarine
