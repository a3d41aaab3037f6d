// Makes the sounds of the game: eleven wave files, written into the folder given as argument.
//
// They are one family. A note is a bar of soft wood struck with felt, always out of one five-note
// scale; a tap is a card that touches the cloth, a breath of noise over a short thump. Everything is
// computed, so that the same files come out each time.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <numbers>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace
{

constexpr int SampleRate = 44100;
constexpr double Tau = 2 * std::numbers::pi;

std::size_t Samples(double milliseconds)
{
    return static_cast<std::size_t>(std::lround(milliseconds * SampleRate / 1000));
}

double Seconds(std::size_t samples)
{
    return static_cast<double>(samples) / SampleRate;
}

/// Rises smoothly from 0 to 1 while `part` goes from 0 to 1, and stays there.
double Swell(double part)
{
    return 0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(part, 0.0, 1.0));
}

/// The scale, in hertz.
namespace note
{
constexpr double G3 = 196.00;
constexpr double B3 = 246.94;
constexpr double G4 = 392.00;
constexpr double A4 = 440.00;
constexpr double B4 = 493.88;
constexpr double D5 = 587.33;
constexpr double E5 = 659.26;
constexpr double G5 = 783.99;
constexpr double B5 = 987.77;
} // namespace note

/// Lets through what lies around one frequency; the smaller the width, the purer the tone.
class BandPass
{
public:
    BandPass(double hertz, double width)
        : pitch_(2 * std::sin(std::numbers::pi * hertz / SampleRate)), damping_(width)
    {
    }

    double operator()(double input)
    {
        low_ += pitch_ * band_;
        const double high = input - low_ - damping_ * band_;
        band_ += pitch_ * high;
        return damping_ * band_;
    }

private:
    double pitch_;
    double damping_;
    double low_ = 0;
    double band_ = 0;
};

/// A recipe in the making: what is added sounds together. Times are in milliseconds from the start.
class Take
{
public:
    /// A struck bar that dies away to a third within `ring`. Its overtones are softer and shorter, so
    /// that the stroke is heard but never rings.
    Take& Note(double at, double hertz, double ring, double level)
    {
        AddPartial(at, hertz, ring, level);
        AddPartial(at, hertz * 3.93, ring * 0.3, level * 0.16);
        AddPartial(at, hertz * 9.2, ring * 0.1, level * 0.04);
        return *this;
    }

    /// A card that touches the cloth: noise around `hertz`, and the thump of the table below it.
    Take& Tap(double at, double hertz, double ring, double level)
    {
        AddNoise(at, hertz, {2, ring}, level);
        AddPartial(at, note::G3, 18, level * 0.4);
        AddPartial(at, note::G3 * 1.6, 11, level * 0.25);
        return *this;
    }

    /// A card drawn over the cloth: the noise swells for `rise` and then stops within `ring`.
    Take& Brush(double at, double hertz, double rise, double ring, double level)
    {
        AddNoise(at, hertz, {rise, ring}, level);
        return *this;
    }

    /// The finished sound: so long, at the common loudness, silent at both ends.
    std::vector<double> Cut(double length) const
    {
        constexpr double fadeOut = 20;
        constexpr double silence = 4;
        constexpr double peak = 0.5; // 6 dB below full scale
        std::vector<double> cut = samples_;
        cut.resize(Samples(length));
        const std::size_t end = cut.size() - Samples(silence);
        for (std::size_t i = 0; i < cut.size(); ++i) {
            const double left = i < end ? Seconds(end - i) * 1000 : 0;
            cut[i] *= Swell(left / fadeOut);
        }
        const auto [lowest, highest] = std::minmax_element(cut.begin(), cut.end());
        const double scale = peak / std::max(-*lowest, *highest);
        for (double& sample : cut) {
            sample *= scale;
        }
        return cut;
    }

private:
    static constexpr double FeltRise = 4; ///< no stroke begins faster than this

    struct Shape {
        double rise;
        double ring;
        /// How loud it is after so many seconds.
        double At(double seconds) const
        {
            const double past = seconds * 1000 - rise;
            return past < 0 ? Swell(1 + past / rise) : std::exp(-past / ring);
        }
        /// Until nothing of it is left to hear.
        std::size_t Length() const { return Samples(rise + 9 * ring); }
    };

    void AddPartial(double at, double hertz, double ring, double level)
    {
        const Shape shape{FeltRise, ring};
        Lay(at, shape,
            [hertz, level](double seconds) { return level * std::sin(Tau * hertz * seconds); });
    }

    void AddNoise(double at, double hertz, Shape shape, double level)
    {
        // Once through is a hiss, twice is a breath; the gain makes up for what was taken away.
        constexpr double width = 0.8;
        constexpr double gain = 4;
        BandPass once(hertz, width);
        BandPass twice(hertz, width);
        Lay(at, shape, [&](double) { return gain * level * twice(once(Hiss())); });
    }

    template <class Source> void Lay(double at, const Shape& shape, Source source)
    {
        const std::size_t first = Samples(at);
        samples_.resize(std::max(samples_.size(), first + shape.Length()));
        for (std::size_t i = 0; i < shape.Length(); ++i) {
            const double seconds = Seconds(i);
            samples_[first + i] += shape.At(seconds) * source(seconds);
        }
    }

    /// White noise between -1 and 1.
    double Hiss()
    {
        constexpr double middle = (std::minstd_rand::max() - 1) / 2.0;
        return static_cast<double>(random_() - 1) / middle - 1;
    }

    std::vector<double> samples_;
    std::minstd_rand random_{2008};
};

// The recipes. Pitches say what happened: up is well, down is away, and the two lowest say no.

std::vector<double> Menu()
{
    return Take().Note(0, note::D5, 30, 1).Cut(130);
}

std::vector<double> NextCard()
{
    return Take().Brush(0, 1800, 26, 9, 0.7).Tap(32, 1500, 7, 0.6).Cut(95);
}

std::vector<double> DropOne()
{
    return Take().Tap(0, 1300, 9, 1).Cut(110);
}

std::vector<double> DropOnStack()
{
    return Take().Tap(0, 1500, 8, 0.6).Tap(38, 1250, 8, 0.75).Tap(76, 1000, 12, 1).Cut(185);
}

std::vector<double> DropOnSol()
{
    return Take().Tap(0, 1500, 8, 0.8).Note(12, note::E5, 40, 0.6).Note(58, note::G5, 42, 0.5).Cut(195);
}

std::vector<double> Error()
{
    return Take().Note(0, note::B3, 24, 1).Note(84, note::G3, 28, 1).Cut(190);
}

std::vector<double> Undo()
{
    return Take()
        .Brush(0, 1400, 55, 8, 0.8)
        .Note(50, note::D5, 26, 0.5)
        .Note(92, note::A4, 30, 0.5)
        .Cut(190);
}

std::vector<double> SoundOnOff()
{
    return Take().Note(0, note::G4, 34, 0.9).Note(72, note::D5, 38, 1).Cut(198);
}

/// Two halves of the pack run into each other, faster and faster, and are knocked square.
std::vector<double> Shuffle()
{
    constexpr int cards = 13;
    Take take;
    double at = 0;
    double gap = 32;
    for (int i = 0; i < cards; ++i) {
        const bool leftHand = i % 2 == 0;
        take.Tap(at, leftHand ? 1700 : 2200, 6, 0.35 + 0.02 * i);
        at += gap;
        gap *= 0.9;
    }
    return take.Tap(at + 40, 1100, 12, 0.9).Cut(390);
}

std::vector<double> Exit()
{
    return Take()
        .Note(0, note::E5, 90, 0.8)
        .Note(130, note::B4, 110, 0.85)
        .Note(270, note::G4, 170, 1)
        .Cut(900);
}

std::vector<double> Done()
{
    return Take()
        .Note(0, note::G4, 90, 0.7)
        .Note(110, note::B4, 90, 0.7)
        .Note(220, note::D5, 90, 0.75)
        .Note(330, note::E5, 110, 0.8)
        .Note(480, note::G5, 240, 1)
        .Note(480, note::B5, 180, 0.35)
        .Note(480, note::G4, 200, 0.5)
        .Cut(1400);
}

// The wave file: RIFF, one channel of 16-bit samples, the low byte first.

std::string Number(std::uint32_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(static_cast<unsigned char>(value >> (8 * i)));
    }
    return text;
}

std::string Chunk(const std::string& name, const std::string& content)
{
    return name + Number(static_cast<std::uint32_t>(content.size()), 4) + content;
}

std::string WaveFile(const std::vector<double>& sound)
{
    constexpr std::uint32_t plainSamples = 1;
    constexpr std::uint32_t channels = 1;
    constexpr std::uint32_t sampleBytes = 2;
    const std::string format = Number(plainSamples, 2) + Number(channels, 2) + Number(SampleRate, 4) +
                               Number(SampleRate * sampleBytes, 4) + Number(sampleBytes, 2) +
                               Number(8 * sampleBytes, 2);
    std::string data;
    for (const double sample : sound) {
        data += Number(static_cast<std::uint32_t>(std::lround(sample * 32767)), sampleBytes);
    }
    return Chunk("RIFF", "WAVE" + Chunk("fmt ", format) + Chunk("data", data));
}

bool Write(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), std::ssize(bytes));
    file.close();
    return file.good();
}

using Recipe = std::vector<double> (*)();

constexpr std::array<std::pair<const char*, Recipe>, 11> Recipes = {{
    {"_menu.wav", Menu},
    {"_exit.wav", Exit},
    {"_shuf.wav", Shuffle},
    {"_nextcard.wav", NextCard},
    {"_dropone.wav", DropOne},
    {"_droponstack.wav", DropOnStack},
    {"_droponsol.wav", DropOnSol},
    {"_error.wav", Error},
    {"_undo.wav", Undo},
    {"_done.wav", Done},
    {"_soundonoff.wav", SoundOnOff},
}};

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::cerr << "usage: make_sounds FOLDER\n";
        return EXIT_FAILURE;
    }
    for (const auto& [name, recipe] : Recipes) {
        const std::string path = std::string(arguments[1]) + '/' + name;
        if (!Write(path, WaveFile(recipe()))) {
            std::cerr << path << " can't be written\n";
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
