// The schemes that come with the program.
#include "appearance/scheme_file.h"
#include "data/read_file.h"
#include "support/seen_contrast.h"

#include <set>

namespace tessarine
{
namespace
{

TEST(SchemesFile, IsToTheByteWhatTheProgramWritesAndKeepsEverythingReadable)
{
    // The suits that the help page proposes, those of a new configuration, and the one that Reset has
    // of its own; black stands out more.
    const std::vector<Colour> suits = {
        Rgb(40, 0, 0),  Rgb(0, 0, 90),  Rgb(110, 90, 100), Rgb(60, 100, 250), Rgb(220, 40, 0),
        Rgb(0, 0, 128), Rgb(0, 128, 0), Rgb(128, 128, 0),  Rgb(128, 0, 0),    Rgb(0, 128, 128)};
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
