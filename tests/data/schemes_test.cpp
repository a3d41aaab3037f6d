// The colours that come with the program: schemes fit to be looked at, and cards that every eye can tell
// apart.
#include "appearance/scheme_file.h"
#include "data/read_file.h"
#include "support/seen_contrast.h"

#include <set>

namespace tessarine
{
namespace
{

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

Triple Times(const Matrix& matrix, const Triple& v)
{
    const auto row = [&](const Triple& r) { return r[0] * v[0] + r[1] * v[1] + r[2] * v[2]; };
    return {row(matrix[0]), row(matrix[1]), row(matrix[2])};
}

constexpr Matrix ToXyz = {
    {{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};

/// How the eyes of Machado, Oliveira and Fernandes (2009) see light: all cones, no red, no green, no
/// blue.
constexpr std::array<Matrix, 4> Eyes = {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868},
      {0.114503, 0.786281, 0.099216},
      {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779},
      {-0.078411, 0.930809, 0.147602},
      {0.004733, 0.691367, 0.303900}}},
}};

/// The least distance between two of the colours in the Lab space, for the eye that sees it least.
double Apart(const std::vector<Colour>& colours)
{
    const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    double least = 1000;
    for (const Matrix& eye : Eyes) {
        std::vector<Triple> seen;
        for (const Colour colour : colours) {
            Triple light = Times(eye, Seen(colour).Light());
            std::ranges::transform(light, light.begin(),
                                   [](double v) { return std::clamp(v, 0.0, 1.0); });
            const auto [x, y, z] = Times(ToXyz, light);
            const Triple lab = {116 * f(y), 500 * (f(x / 0.9505) - f(y)), 200 * (f(y) - f(z / 1.089))};
            for (const Triple& other : seen) {
                const Triple way = {lab[0] - other[0], lab[1] - other[1], lab[2] - other[2]};
                least = std::min(least, std::hypot(way[0], way[1], way[2]));
            }
            seen.push_back(lab);
        }
    }
    return least;
}

/// The card colours that the help page proposes, from the numbers that it gives.
std::vector<Colour> ProposedColours()
{
    std::vector<Colour> colours;
    for (const auto& row :
         Found(ReadFile(TESSARINE_DATA_DIR "/tessarine.htm"),
               "<td>Colour [1-5]</td>\\s*<td[^>]*>(\\d+)</td><td[^>]*>(\\d+)</td><td[^>]*>(\\d+)<")) {
        colours.push_back(Rgb(std::stoi(row[0]), std::stoi(row[1]), std::stoi(row[2])));
    }
    return colours;
}

TEST(CardColours, OfTheHelpPageAreAsFarApartForEveryEyeAsItSays)
{
    const std::vector<Colour> proposed = ProposedColours();
    ASSERT_EQ(proposed.size(), 5U);
    EXPECT_GE(Apart(proposed), 35);
    EXPECT_LE(Apart({Rgb(0, 128, 0), Rgb(128, 128, 0)}), 4) << "two of the first start";
    for (const Colour colour : proposed) {
        EXPECT_GE(SeenContrast(Seen(White), Seen(colour)), 4.7) << colour;
    }
}

TEST(SchemesFile, IsToTheByteWhatTheProgramWritesAndKeepsEverythingReadable)
{
    // The suits of a new configuration and the one that Reset has of its own; black stands out more.
    std::vector<Colour> suits = ProposedColours();
    suits.insert(suits.end(),
                 {Rgb(0, 0, 128), Rgb(0, 128, 0), Rgb(128, 128, 0), Rgb(128, 0, 0), Rgb(0, 128, 128)});
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
        EXPECT_GE(SeenContrast(Seen(stored.Button()), Seen(stored.Background())), 1.3);
        for (const Colour ground : {stored.Background(), stored.Button()}) {
            EXPECT_GE(SeenContrast(Seen(Rgb(28, 28, 28)), Seen(ground)), 4.5);
            for (const Colour suit : suits) {
                EXPECT_GE(SeenContrast(Seen(suit), Seen(ground)), 1.5) << suit;
            }
        }
    }
    EXPECT_EQ(text, written);
}

} // namespace
} // namespace tessarine
