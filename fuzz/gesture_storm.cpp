// Storms of random gestures, each on a program of its own. What a storm breaks, be it by a crash or by
// standing still, is shrunk to the fewest gestures that still break it.
//   gesture_storm GESTURES [SEED]      so many in all, from this seed on
//   gesture_storm 1 SEED GESTURE...    what a failing run has printed
#include "support/storm.h"

#include <bit>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessarine;
using namespace tessarine::test;

namespace
{

constexpr std::size_t GesturesOfStorm = 400;
constexpr unsigned LongestSeconds = 60;

/// Whether the storm goes well in a process of its own, which may be ended by the program.
bool Survives(unsigned seed, const std::vector<Gesture>& gestures, StormCount& count)
{
    count.owed = 0;
    std::fflush(stdout); // a child would print it as well
    const pid_t child = fork();
    if (child == 0) {
        alarm(LongestSeconds);
        const std::string fault = PlayHere(seed, gestures, count);
        std::fprintf(stderr, "%s%s", fault.c_str(), fault.empty() ? "" : "\n");
        std::_Exit(fault.empty() ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) {
        std::fprintf(stderr, "%s\n", strsignal(WTERMSIG(status)));
    }
    return status == 0 && count.owed == 0;
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

int Run(const std::vector<std::string>& words, StormCount& count)
{
    unsigned seed = words.size() > 2 ? static_cast<unsigned>(std::stoul(words[2])) : 1;
    std::vector<Gesture> gestures;
    for (std::size_t i = 3; i < words.size(); ++i) {
        gestures.push_back(std::bit_cast<Gesture>(std::uint64_t{std::stoull(words[i], nullptr, 16)}));
    }
    if (!gestures.empty()) {
        return Survives(seed, gestures, count) ? 0 : 1;
    }
    const std::size_t wanted = words.size() > 1 ? std::stoull(words[1]) : 100'000;
    bool isFine = true;
    while (isFine && count.gestures < wanted) {
        isFine = Survives(seed, RandomGestures(seed, GesturesOfStorm), count);
        seed += isFine ? 1 : 0;
    }
    std::printf("%zu gestures, %zu events, %zu pixels compared, up to seed %u: %s\n", count.gestures,
                count.events, count.pixels, seed, isFine ? "nothing broke" : "broken");
    if (isFine) {
        return 0;
    }
    const auto fails = [&](const std::vector<Gesture>& some) { return !Survives(seed, some, count); };
    std::printf("%s 1 %u", words[0].c_str(), seed);
    for (const Gesture& gesture : Shortest(RandomGestures(seed, GesturesOfStorm), fails)) {
        std::printf(" %016llx", static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(gesture)));
    }
    std::printf("\n");
    return 1;
}

} // namespace

int main(int count, char** words)
{
    void* const shared =
        mmap(nullptr, sizeof(StormCount), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    // A program that ends leaves its files where they are.
    std::string folder = std::filesystem::temp_directory_path() / "storm-XXXXXX";
    setenv("TMPDIR", mkdtemp(folder.data()), 1);
    const int result = Run({words, words + count}, *new (shared) StormCount);
    std::filesystem::remove_all(folder);
    return result;
}
