// Storms of random gestures, each on a program of its own. What a storm breaks, be it by a crash or by
// standing still, is shrunk to the fewest gestures that still break it.
//   gesture_storm GESTURES [SEED]      so many in all, from this seed on
//   gesture_storm 1 SEED GESTURE...    what a failing run has printed
#include "support/storm.h"

#include <bit>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

constexpr std::size_t GesturesOfStorm = 400;
constexpr unsigned LongestSeconds = 60;

/// What the process that plays tells the one that watches.
struct Progress {
    unsigned seed = 1;
    std::size_t played = 0;
};

bool Plays(const std::vector<Gesture>& gestures, Progress& progress)
{
    alarm(LongestSeconds);
    const StormReport report = PlayStorm(progress.seed, gestures);
    progress.played += report.played;
    if (!report.fault.empty()) {
        std::fprintf(stderr, "%s\n", report.fault.c_str());
        return false;
    }
    return true;
}

/// Whether it all goes well in a process of its own.
template <class Action> bool Survives(const Action& action)
{
    const pid_t child = fork();
    if (child == 0) {
        std::_Exit(action() ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status == 0;
}

/// Drops gestures for as long as `fails` still holds without them.
template <class Fails> std::vector<Gesture> Shortest(std::vector<Gesture> gestures, const Fails& fails)
{
    for (std::size_t part = gestures.size() / 2; part > 0; part /= 2) {
        for (std::size_t at = 0; at + part <= gestures.size();) {
            std::vector<Gesture> fewer = gestures;
            const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(at);
            fewer.erase(from, from + static_cast<std::ptrdiff_t>(part));
            const bool stillFails = fails(fewer);
            at += stillFails ? 0 : part;
            gestures = stillFails ? fewer : gestures;
        }
    }
    return gestures;
}

} // namespace

int main(int count, char** words)
{
    void* const shared =
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    Progress& progress = *new (shared) Progress;
    progress.seed = count > 2 ? static_cast<unsigned>(std::atoi(words[2])) : 1;
    if (count > 3) {
        std::vector<Gesture> gestures;
        for (int i = 3; i < count; ++i) {
            gestures.push_back(
                std::bit_cast<Gesture>(std::uint64_t{std::strtoull(words[i], nullptr, 16)}));
        }
        return Plays(gestures, progress) ? 0 : 1;
    }
    const std::size_t wanted = count > 1 ? std::strtoull(words[1], nullptr, 10) : 100'000;
    const bool isFine = Survives([&] {
        for (; progress.played < wanted; ++progress.seed) {
            if (!Plays(RandomGestures(progress.seed, GesturesOfStorm), progress)) {
                return false;
            }
        }
        return true;
    });
    std::printf("%zu gestures, up to seed %u: %s\n", progress.played, progress.seed,
                isFine ? "nothing broke" : "broken");
    if (!isFine) {
        const auto fails = [&](const std::vector<Gesture>& gestures) {
            return !Survives([&] { return Plays(gestures, progress); });
        };
        std::printf("gesture_storm 1 %u", progress.seed);
        for (const Gesture& gesture : Shortest(RandomGestures(progress.seed, GesturesOfStorm), fails)) {
            std::printf(" %016llx",
                        static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(gesture)));
        }
        std::printf("\n");
    }
    return isFine ? 0 : 1;
}
