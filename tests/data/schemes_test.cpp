// The colour schemes that come with the program: read by its own reader, and fit to be looked at.
#include "appearance/make_scheme.h"
#include "appearance/scheme_file.h"
#include "data/read_file.h"
#include "kit/dress.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tessarine
{
namespace
{

/// Light in red, green and blue, each 0 to 1, without the screen's gamma.
std::array<double, 3> Light(Colour colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return {linear(clrRed(colour)), linear(clrGreen(colour)), linear(clrBlue(colour))};
}

double Luminance(Colour colour)
{
    const auto [red, green, blue] = Light(colour);
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
}

/// 1 for equal brightness, 21 for black on white.
double Contrast(Colour one, Colour other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// Lightness, red against green, yellow against blue, as the eye parts them.
std::array<double, 3> Lab(Colour colour)
{
    const auto [red, green, blue] = Light(colour);
    const auto bend = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = bend((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.95047);
    const double y = bend(Luminance(colour));
    const double z = bend((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// How far two colours lie apart for the eye; about 2 is just seen.
double Distance(Colour one, Colour other)
{
    const auto a = Lab(one);
    const auto b = Lab(other);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

class SchemesFile : public testing::Test
{
protected:
    Dress Read(const std::string& name) const
    {
        Dress dress;
        EXPECT_TRUE(ReadEntry(text_, NameLine(name), SlotSource::File, dress)) << name;
        return dress;
    }

    const std::string text_ = ReadFile(TESSARINE_DATA_DIR "/all.col");
    const std::vector<std::string> names_ = SchemeNames(text_);
};

TEST_F(SchemesFile, IsToTheByteWhatTheProgramWrites)
{
    std::string written;
    for (const std::string& name : names_) {
        written += EntryText(NameLine(name), Read(name));
    }
    EXPECT_EQ(text_, written);
    EXPECT_EQ(names_.size(), 12U);
    EXPECT_EQ(std::set(names_.begin(), names_.end()).size(), names_.size());
    EXPECT_EQ(std::ranges::count(names_, "default"), 1);
}

TEST_F(SchemesFile, HoldsSchemesThatTheSliderCouldMake)
{
    for (const std::string& name : names_) {
        const Dress stored = Read(name);
        bool found = false;
        for (Whole contrast = -100; contrast <= 300 && !found; ++contrast) {
            Dress made;
            MakeScheme(made, stored.Background(), contrast);
            found = made.SchemeColors == stored.SchemeColors;
        }
        EXPECT_TRUE(found) << name;
    }
}

TEST_F(SchemesFile, KeepsEverythingOnTheTableReadable)
{
    constexpr double readable = 4.5;
    const Colour darkText = Rgb(28, 28, 28);
    // Those of a new configuration and the one that Reset has of its own.
    const std::array suits = {Rgb(0, 0, 0),     Rgb(0, 0, 128), Rgb(0, 128, 0),
                              Rgb(128, 128, 0), Rgb(128, 0, 0), Rgb(0, 128, 128)};
    for (const std::string& name : names_) {
        const Dress scheme = Read(name);
        EXPECT_GE(Contrast(darkText, scheme.Background()), readable) << name;
        EXPECT_GE(Contrast(darkText, scheme.Button()), readable) << name;
        EXPECT_GE(Contrast(Black, scheme.Button()), readable) << name;

        EXPECT_GE(Contrast(scheme.Button(), scheme.Background()), 1.3) << name;
        EXPECT_GE(Distance(scheme.Button(), scheme.Background()), 10) << name;
        for (const Colour suit : suits) {
            for (const Colour ground : {scheme.Background(), scheme.Button()}) {
                EXPECT_GE(Contrast(suit, ground), 1.5) << name << ' ' << suit;
                EXPECT_GE(Distance(suit, ground), 24) << name << ' ' << suit;
            }
        }
    }
}

TEST_F(SchemesFile, OffersNoSchemeTwice)
{
    for (std::size_t i = 0; i < names_.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_GE(Distance(Read(names_[i]).Background(), Read(names_[j]).Background()), 8)
                << names_[i] << " and " << names_[j];
        }
    }
}

} // namespace
} // namespace tessarine
