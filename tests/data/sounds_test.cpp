// The sounds as they are made: plain wave files, short, equally loud, and silent at both ends.
#include "data/read_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace std::string_view_literals;
constexpr std::size_t Millisecond = 44; ///< in samples

/// A number of so many bytes, the low one first.
unsigned NumberAt(const std::string& bytes, std::size_t place, std::size_t size)
{
    unsigned value = 0;
    for (std::size_t i = size; i > 0; --i) {
        value = value * 256 + static_cast<unsigned char>(bytes.at(place + i - 1));
    }
    return value;
}

/// Checks the head of a wave file and takes the samples out of it.
std::vector<int> ReadSound(const std::string& bytes)
{
    constexpr std::size_t head = 44;
    // One channel of plain samples, 44100 a second, 88200 bytes a second, 2 bytes or 16 bits a sample.
    constexpr auto format = "WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0\x88\x58\1\0\2\0\x10\0data"sv;
    EXPECT_EQ(bytes.substr(0, 4) + bytes.substr(8, format.size()), "RIFF" + std::string(format));
    EXPECT_EQ(NumberAt(bytes, 4, 4), bytes.size() - 8);
    EXPECT_EQ(NumberAt(bytes, 40, 4), bytes.size() - head);
    std::vector<int> samples;
    for (std::size_t i = head; i + 1 < bytes.size(); i += 2) {
        samples.push_back(static_cast<std::int16_t>(NumberAt(bytes, i, 2)));
    }
    return samples;
}

int Loudest(std::span<const int> samples)
{
    const auto [lowest, highest] = std::ranges::minmax(samples);
    return std::max(-lowest, highest);
}

TEST(Sounds, AreElevenShortEquallyLoudSilentAtTheirEndsAndNoTwoAlike)
{
    constexpr int peak = 16384; // half of full scale
    // The longest that each may be, in milliseconds.
    const std::map<std::string, std::size_t> longest = {
        {"_menu.wav", 200},  {"_nextcard.wav", 200},    {"_dropone.wav", 200},
        {"_undo.wav", 200},  {"_droponstack.wav", 200}, {"_droponsol.wav", 200},
        {"_error.wav", 200}, {"_soundonoff.wav", 200},  {"_shuf.wav", 400}, // a whole pack
        {"_exit.wav", 1500}, {"_done.wav", 1500}};
    const std::filesystem::directory_iterator made(TESSARINE_BUILT_DIR);
    EXPECT_EQ(std::distance(begin(made), end(made)), std::ssize(longest));
    std::set<std::vector<int>> heard;
    for (const auto& [name, milliseconds] : longest) {
        SCOPED_TRACE(name);
        const std::vector<int> sound = ReadSound(ReadFile(TESSARINE_BUILT_DIR "/" + name));
        const std::span<const int> samples = sound;
        ASSERT_GE(sound.size(), 60 * Millisecond);
        EXPECT_LE(sound.size(), (milliseconds + 1) * 44100 / 1000);
        EXPECT_NEAR(Loudest(samples), peak, peak * 0.01);
        EXPECT_EQ(samples.front(), 0);
        EXPECT_LE(Loudest(samples.first(Millisecond / 4)), peak * 0.05);
        EXPECT_LE(Loudest(samples.last(10 * Millisecond)), peak * 0.02);
        EXPECT_EQ(Loudest(samples.last(3 * Millisecond)), 0);
        EXPECT_TRUE(heard.insert(sound).second) << "sounds like another";
    }
}

} // namespace
