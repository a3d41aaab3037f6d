// An evening without end: the same game, move by move as a hand plays it in a real window, won so many
// times in one process. What is held at the end must be what was held after the tenth.
//   long_life SCRIPT [GAMES]      SCRIPT has the deal and the moves: tests/x11/in_a_window.sh
#include "support/game_world.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <malloc.h>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

constexpr int Warm = 10; // games until all is there that is made at its first use

std::string Between(const std::string& text, const std::string& begin, char end)
{
    const std::size_t from = text.find(begin) + begin.size();
    return text.substr(from, text.find(end, from) - from);
}

struct Held {
    std::size_t bytes = mallinfo2().uordblks;
    std::ptrdiff_t handles = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    std::size_t forms;
    bool timers;
};

class Evening
{
public:
    explicit Evening(const std::string& script)
    {
        std::istringstream cards(Between(script, "cards=(", ')'));
        for (int card = 0; cards >> card;) {
            deal_ += std::string(1, static_cast<char>('0' + card / 10)) +
                     static_cast<char>('0' + card % 10) + "\r\n";
        }
        std::istringstream lines(Between(script, "steps='", '\''));
        for (std::string line; std::getline(lines, line);) {
            std::istringstream steps(line);
            for (std::string step; std::getline(steps, step, ';');) {
                steps_.push_back(step);
            }
        }
    }

    bool Win(int game)
    {
        std::vector<std::string> told;
        world_.platform.files["/app/tempgame.txt"] = deal_;
        Answer(world_.platform, "Yes", told);
        Answer(world_.platform, "Ok", told);
        world_.Press(world_.form.cmdreset);
        Answer(world_.platform, "Ok", told);
        for (const std::string& step : steps_) {
            Do(step);
        }
        // What the platform notes down for tests.
        world_.platform.sounds = {};
        world_.platform.modalCaptions = {};
        world_.platform.plainMessages = {};
        return world_.form.Score1.ThisSession[2].Caption() == std::to_string(game) && told.size() == 3 &&
               world_.Fault().empty();
    }

    Held Now() const
    {
        return {.forms = world_.form.AllForms().Loaded().size(), .timers = world_.platform.HasWork()};
    }

private:
    void Do(const std::string& step)
    {
        std::string verb;
        double x = 0;
        double y = 0;
        double third = 0;
        double fourth = 0;
        std::istringstream(step) >> verb >> x >> y >> third >> fourth;
        HeadlessPlatform& platform = world_.platform;
        x *= TwipsPerPixel;
        y *= TwipsPerPixel;
        if (verb == "drag") {
            platform.Press(world_.form, x, y);
            platform.MoveMouse(world_.form, third * TwipsPerPixel, fourth * TwipsPerPixel);
            platform.Release(world_.form, third * TwipsPerPixel, fourth * TwipsPerPixel);
        }
        for (int times = verb == "press" ? static_cast<int>(fourth) : 0; times > 0; --times) {
            const int button = third == 1 ? LeftButton : RightButton;
            platform.Press(world_.form, x, y, button);
            platform.Release(world_.form, x, y, button);
        }
        platform.Advance(500);
    }

    GameWorld world_;
    std::string deal_;
    std::vector<std::string> steps_;
};

} // namespace

int main(int count, char** words)
{
    std::ifstream file(words[1]);
    Evening evening(std::string(std::istreambuf_iterator<char>(file), {}));
    const int games = count > 2 ? std::atoi(words[2]) : 1000;
    Held before{};
    for (int game = 1; game <= games; ++game) {
        if (!evening.Win(game)) {
            std::printf("game %d is not won\n", game);
            return 1;
        }
        if (game == Warm) {
            before = evening.Now();
        }
    }
    const Held now = evening.Now();
    std::printf("%d games won; after %d and at the end: %zu and %zu bytes, %td and %td handles, %zu and "
                "%zu forms, timers %d and %d\n",
                games, Warm, before.bytes, now.bytes, before.handles, now.handles, before.forms,
                now.forms, before.timers, now.timers);
    // A text or a list may have come by a little room; a byte a game is a leak.
    constexpr std::size_t room = 1024;
    return now.bytes <= before.bytes + room && now.handles == before.handles &&
                   now.forms == before.forms && !now.timers
               ? 0
               : 1;
}
