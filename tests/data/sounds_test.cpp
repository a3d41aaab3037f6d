// The sounds as they are made: plain wave files, short, equally loud, and silent at both ends.
#include "data/read_file.h"

#include <cstring>
#include <filesystem>
#include <map>
#include <set>
#include <span>

namespace
{

using namespace std::string_view_literals;
constexpr std::size_t Millisecond = 44; ///< in samples

/// Checks the head of a wave file and takes the samples out of it.
std::vector<std::int16_t> ReadSound(const std::string& bytes)
{
    // One channel of plain samples, 44100 a second, 88200 bytes a second, 2 bytes or 16 bits a sample.
    constexpr auto head =
        "RIFF\0\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0\x88\x58\1\0\2\0\x10\0data\0\0\0\0"sv;
    std::string expected(head);
    for (const std::size_t place : {4U, 40U}) { // lengths of what follows them, the low byte first
        const auto length = static_cast<std::uint32_t>(bytes.size() - place - 4);
        std::memcpy(&expected[place], &length, sizeof length);
    }
    EXPECT_EQ(bytes.substr(0, head.size()), expected);
    std::vector<std::int16_t> samples((bytes.size() - head.size()) / 2);
    std::memcpy(samples.data(), &bytes.at(head.size()), 2 * samples.size());
    return samples;
}

int Loudest(std::span<const std::int16_t> samples)
{
    const auto [lowest, highest] = std::ranges::minmax(samples);
    return std::max(-lowest, +highest);
}

TEST(Sounds, AreElevenShortEquallyLoudSilentAtTheirEndsAndNoTwoAlike)
{
    constexpr int peak = 16384; // half of full scale
    std::map<std::string, int> longest = {{"_shuf.wav", 400}, {"_exit.wav", 1500}, {"_done.wav", 1500}};
    for (const char* const brief :
         {"menu", "nextcard", "dropone", "undo", "droponstack", "droponsol", "error", "soundonoff"}) {
        longest.emplace('_' + std::string(brief) + ".wav", 200); // milliseconds
    }
    const std::filesystem::directory_iterator made(TESSARINE_BUILT_DIR);
    EXPECT_EQ(std::distance(begin(made), end(made)), std::ssize(longest));
    std::set<std::vector<std::int16_t>> heard;
    for (const auto& [name, milliseconds] : longest) {
        SCOPED_TRACE(name);
        const auto sound = ReadSound(ReadFile(TESSARINE_BUILT_DIR "/" + name));
        const std::span samples = sound;
        ASSERT_GE(sound.size(), 60 * Millisecond);
        EXPECT_LE(sound.size(), static_cast<std::size_t>(milliseconds + 1) * Millisecond);
        EXPECT_NEAR(Loudest(samples), peak, peak * 0.01);
        EXPECT_EQ(samples.front(), 0);
        EXPECT_LE(Loudest(samples.first(Millisecond / 4)), peak * 0.05);
        EXPECT_LE(Loudest(samples.last(10 * Millisecond)), peak * 0.02);
        EXPECT_EQ(Loudest(samples.last(3 * Millisecond)), 0);
        EXPECT_TRUE(heard.insert(sound).second) << "sounds like another";
    }
}

} // namespace
