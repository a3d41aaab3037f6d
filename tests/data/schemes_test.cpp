// The colour schemes that come with the program: read by its own reader, and fit to be looked at.
#include "appearance/readable_on.h"
#include "appearance/scheme_file.h"
#include "data/read_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace tessarine
{
namespace
{

/// The brightness that an eye sees, from 0 to 1.
double Luminance(Colour colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(clrRed(colour)) + 0.7152 * linear(clrGreen(colour)) +
           0.0722 * linear(clrBlue(colour));
}

/// 1 for equal brightness, 21 for black on white.
double Contrast(Colour one, Colour other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(SchemesFile, IsToTheByteWhatTheProgramWritesAndKeepsEverythingReadable)
{
    // The suits of a new configuration and the one that Reset has of its own; black stands out more.
    const std::array suits = {Rgb(0, 0, 128), Rgb(0, 128, 0), Rgb(128, 128, 0), Rgb(128, 0, 0),
                              Rgb(0, 128, 128)};
    const std::string text = ReadFile(TESSARINE_DATA_DIR "/all.col");
    const std::vector<std::string> names = SchemeNames(text);
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), 12U);
    EXPECT_EQ(std::ranges::count(names, "default"), 1);
    std::string written;
    std::set<Colour> backgrounds;
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        Dress stored;
        ASSERT_TRUE(ReadEntry(text, NameLine(name), SlotSource::File, stored));
        written += EntryText(NameLine(name), stored);
        Dress made;
        for (Whole i = -100; i <= 300 && made.SchemeColors != stored.SchemeColors; ++i) {
            MakeScheme(made, stored.Background(), i);
        }
        EXPECT_EQ(made.SchemeColors, stored.SchemeColors) << "the slider could not make it";
        EXPECT_TRUE(backgrounds.insert(stored.Background()).second) << "there twice";
        EXPECT_GE(Contrast(stored.Button(), stored.Background()), 1.3);
        for (const Colour ground : {stored.Background(), stored.Button()}) {
            EXPECT_GE(Contrast(Rgb(28, 28, 28), ground), 4.5);
            for (const Colour suit : suits) {
                EXPECT_GE(Contrast(suit, ground), 1.5) << suit;
            }
        }
    }
    EXPECT_EQ(text, written);
}

TEST(ReadableOn, StandsOutFromEveryGrey)
{
    for (Colour grey = Black; grey <= White; grey += Rgb(1, 1, 1)) {
        EXPECT_GE(Contrast(ReadableOn(grey), grey), 4.5) << grey;
    }
}

} // namespace
} // namespace tessarine
