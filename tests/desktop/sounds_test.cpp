#include "stage.h"

#include <cstdio>
#include <thread>

namespace tessarine
{
namespace
{

using namespace std::chrono_literals;

/// A sound server, which a player finds only in the run that it was opened in. Sounds last as long as
/// their names say, in milliseconds.
struct Server {
    struct Player : WavePlayer {
        explicit Player(Server& itsServer) : server(itsServer), run(server.run) {}
        bool Begin(const std::string& path, std::function<void()> ended) override
        {
            if (run == server.run) {
                server.Note("begins " + path + ' ');
                std::thread([this, path, ended = std::move(ended)] {
                    std::this_thread::sleep_for(std::chrono::milliseconds(std::stoll(path)));
                    server.Note("ends " + path + ' ');
                    ended();
                }).detach();
            }
            return run == server.run;
        }
        Server& server;
        int run;
    };

    WavePlayerMaker Maker()
    {
        return [this] {
            ++opened;
            std::this_thread::sleep_for(opening);
            return run > 0 ? std::make_unique<Player>(*this) : nullptr;
        };
    }
    void Note(const std::string& what)
    {
        const std::lock_guard lock(mutex);
        log += what;
        std::fputs(what.c_str(), stderr);
    }
    std::string Heard()
    {
        const std::lock_guard lock(mutex);
        return log;
    }

    std::atomic<int> run = 1; ///< 0: it is down
    std::atomic<int> opened = 0;
    std::chrono::milliseconds opening = 50ms;
    std::mutex mutex;
    std::string log;
};

TEST(SoundsTest, EverySoundBeginsBesideTheOthersUnlessItComesLateAndNobodyWaits)
{
    for (const auto opening : {50ms, 1200ms}) {
        Server server;
        server.opening = opening;
        Sounds sounds(server.Maker());
        for (const char* const path : {"101", "102", "101"}) {
            sounds.Play(path);
        }
        EXPECT_EQ(server.Heard(), "") << "the device is still being opened";
        sounds.Finish(5s);
        const std::string heard = server.Heard().substr(0, 36);
        EXPECT_EQ(heard, opening == 50ms ? "begins 101 begins 102 begins 101 end" : "");
        EXPECT_EQ(server.opened, 1);
    }
}

TEST(SoundsTest, AServerThatIsStartedAnewIsFoundByTheNextSound)
{
    Server server;
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
    const auto end = [](const std::string& sound) {
        Server server;
        DesktopPlatform platform(server.Maker());
        platform.PlayWave(sound);
        platform.EndProgram();
    };
    EXPECT_EXIT(end("100"), testing::ExitedWithCode(EXIT_SUCCESS), "ends 100");
    EXPECT_EXIT(end("3600000"), testing::ExitedWithCode(EXIT_SUCCESS), "begins 3600000");
}

} // namespace
} // namespace tessarine
