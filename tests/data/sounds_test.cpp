// The sounds as they are made: plain wave files, short, equally loud, and silent at both ends.
#include "data/read_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace
{

constexpr int SampleRate = 44100;

std::uint32_t NumberAt(const std::string& bytes, std::size_t place, int size)
{
    std::uint32_t value = 0;
    for (int i = size - 1; i >= 0; --i) {
        value = value * 256 + static_cast<unsigned char>(bytes.at(place + static_cast<std::size_t>(i)));
    }
    return value;
}

struct Sound {
    std::string name;
    std::vector<int> samples;
    double Milliseconds() const { return static_cast<double>(samples.size()) * 1000 / SampleRate; }
};

/// Checks the head of a wave file and takes the samples out of it.
Sound ReadSound(const std::string& name)
{
    constexpr std::size_t head = 44;
    const std::string bytes = ReadFile(TESSARINE_BUILT_DIR "/" + name);
    EXPECT_EQ(bytes.substr(0, 4), "RIFF") << name;
    EXPECT_EQ(NumberAt(bytes, 4, 4), bytes.size() - 8) << name;
    EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ") << name;
    EXPECT_EQ(NumberAt(bytes, 16, 4), 16U) << name;
    EXPECT_EQ(NumberAt(bytes, 20, 2), 1U) << name << ": plain samples";
    EXPECT_EQ(NumberAt(bytes, 22, 2), 1U) << name << ": one channel";
    EXPECT_EQ(NumberAt(bytes, 24, 4), static_cast<std::uint32_t>(SampleRate)) << name;
    EXPECT_EQ(NumberAt(bytes, 28, 4), 2U * SampleRate) << name << ": bytes a second";
    EXPECT_EQ(NumberAt(bytes, 32, 2), 2U) << name << ": bytes a sample";
    EXPECT_EQ(NumberAt(bytes, 34, 2), 16U) << name << ": bits";
    EXPECT_EQ(bytes.substr(36, 4), "data") << name;
    EXPECT_EQ(NumberAt(bytes, 40, 4), bytes.size() - head) << name;
    Sound sound{name, {}};
    for (std::size_t i = head; i + 1 < bytes.size(); i += 2) {
        sound.samples.push_back(static_cast<std::int16_t>(NumberAt(bytes, i, 2)));
    }
    return sound;
}

std::vector<Sound> AllSounds()
{
    std::vector<Sound> sounds;
    for (const auto& entry : std::filesystem::directory_iterator(TESSARINE_BUILT_DIR)) {
        sounds.push_back(ReadSound(entry.path().filename().string()));
    }
    return sounds;
}

int Loudest(std::span<const int> samples)
{
    return std::accumulate(samples.begin(), samples.end(), 0,
                           [](int peak, int sample) { return std::max(peak, std::abs(sample)); });
}

/// 1 for the same course of the sound, 0 for nothing in common.
double Likeness(const Sound& one, const Sound& other)
{
    const auto product = [](const Sound& a, const Sound& b) {
        const std::size_t count = std::min(a.samples.size(), b.samples.size());
        return std::inner_product(a.samples.begin(),
                                  a.samples.begin() + static_cast<std::ptrdiff_t>(count),
                                  b.samples.begin(), 0.0);
    };
    return std::abs(product(one, other)) / std::sqrt(product(one, one) * product(other, other));
}

TEST(Sounds, AreTheElevenOfTheGame)
{
    const std::set<std::string> expected = {"_menu.wav",      "_exit.wav",      "_shuf.wav",
                                            "_nextcard.wav",  "_dropone.wav",   "_droponstack.wav",
                                            "_droponsol.wav", "_error.wav",     "_undo.wav",
                                            "_done.wav",      "_soundonoff.wav"};
    std::set<std::string> found;
    for (const Sound& sound : AllSounds()) {
        found.insert(sound.name);
    }
    EXPECT_EQ(found, expected);
}

TEST(Sounds, AreShort)
{
    for (const Sound& sound : AllSounds()) {
        double longest = 200;
        if (sound.name == "_exit.wav" || sound.name == "_done.wav") {
            longest = 1500;
        } else if (sound.name == "_shuf.wav") { // a whole pack
            longest = 400;
        }
        EXPECT_LE(sound.Milliseconds(), longest) << sound.name;
        EXPECT_GE(sound.Milliseconds(), 60) << sound.name;
    }
}

TEST(Sounds, PeakAtHalfOfFullScaleAndDoNotClickAtTheirEnds)
{
    constexpr int peak = 16384;
    constexpr std::size_t millisecond = SampleRate / 1000;
    for (const Sound& sound : AllSounds()) {
        const std::span samples = sound.samples;
        EXPECT_NEAR(Loudest(samples), peak, peak * 0.01) << sound.name;
        EXPECT_EQ(samples.front(), 0) << sound.name;
        EXPECT_LE(Loudest(samples.first(millisecond / 4)), peak * 0.05) << sound.name;
        EXPECT_LE(Loudest(samples.last(10 * millisecond)), peak * 0.02) << sound.name;
        EXPECT_EQ(Loudest(samples.last(3 * millisecond)), 0) << sound.name;
    }
}

TEST(Sounds, CanBeToldApart)
{
    const std::vector<Sound> sounds = AllSounds();
    for (std::size_t i = 0; i < sounds.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_LT(Likeness(sounds[i], sounds[j]), 0.8) << sounds[i].name << ' ' << sounds[j].name;
        }
    }
}

} // namespace
