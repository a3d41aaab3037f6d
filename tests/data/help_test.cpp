// The help page: every link leads somewhere, every section can be reached, every picture is there.
#include "data/read_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace
{

class HelpPage : public testing::Test
{
protected:
    /// What the bracket of the pattern matched, at each place of the page.
    std::vector<std::string> All(const std::string& pattern) const
    {
        const std::regex search(pattern);
        std::vector<std::string> found;
        for (std::sregex_iterator match(page_.begin(), page_.end(), search), end; match != end;
             ++match) {
            found.push_back((*match)[1]);
        }
        return found;
    }

    const std::string page_ = ReadFile(TESSARINE_DATA_DIR "/tessarine.htm");
};

TEST_F(HelpPage, HasAPlaceForEveryLinkAndALinkToEverySection)
{
    const std::vector<std::string> names = All("<a name=\"([^\"]*)\"");
    const std::set<std::string> anchors(names.begin(), names.end());
    EXPECT_EQ(anchors.size(), names.size()) << "a name given twice";

    const std::vector<std::string> links = All("href=\"([^\"]*)\"");
    EXPECT_GE(links.size(), 10U);
    std::set<std::string> reached;
    for (const std::string& link : links) {
        ASSERT_TRUE(link.starts_with('#')) << link << " leads out of the page";
        EXPECT_TRUE(anchors.contains(link.substr(1))) << link;
        reached.insert(link.substr(1));
    }

    const auto headings = All("<h2>(.)").size();
    const std::vector<std::string> sections = All("<h2><a name=\"([^\"]*)\"></a>");
    EXPECT_EQ(sections.size(), headings) << "a section without an anchor";
    for (const std::string& section : sections) {
        EXPECT_TRUE(reached.contains(section)) << section << " is in no contents";
    }
}

TEST_F(HelpPage, ShowsItsPicturesWithinTheWindowAndTellsWhatTheyShow)
{
    const std::set<std::string> takenFromTheProgram = {"help_table.png", "help_run.png",
                                                       "help_stock.png", "help_win.png"};
    const std::vector<std::string> pictures = All("<img src=\"([^\"]*)\"");
    EXPECT_EQ(std::set(pictures.begin(), pictures.end()), takenFromTheProgram);
    EXPECT_EQ(All("<img src=\"[^\"]*\" alt=\"([^\"]+)\"").size(), pictures.size());
    for (const std::string& picture : pictures) {
        const std::string path = std::string(TESSARINE_DATA_DIR "/") + picture;
        if (!std::filesystem::exists(path)) {
            continue; // not taken yet
        }
        const std::string bytes = ReadFile(path);
        ASSERT_GT(bytes.size(), 24U) << picture;
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
        const int width = byte(16) * 16777216 + byte(17) * 65536 + byte(18) * 256 + byte(19);
        EXPECT_LE(width, 420) << picture;
    }
}

TEST_F(HelpPage, IsPlainAscii)
{
    EXPECT_TRUE(std::ranges::all_of(page_, [](char c) { return c > 0; }));
}

} // namespace
