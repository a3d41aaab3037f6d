// The help page: every link leads somewhere, every section can be reached, every picture is there.
#include "data/read_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace
{

struct HelpPage : testing::Test {
    /// What the bracket of the pattern matched, at each place of the page.
    std::vector<std::string> All(const std::string& pattern) const
    {
        const std::regex search(pattern);
        std::vector<std::string> found;
        for (std::sregex_iterator at(page.begin(), page.end(), search), end; at != end; ++at) {
            found.push_back((*at)[1]);
        }
        return found;
    }

    const std::string page = ReadFile(TESSARINE_DATA_DIR "/tessarine.htm");
};

TEST_F(HelpPage, HasAPlaceForEveryLinkAndALinkToEverySection)
{
    const std::vector<std::string> names = All("<a name=\"([^\"]*)\"");
    const std::set<std::string> anchors(names.begin(), names.end());
    EXPECT_EQ(anchors.size(), names.size()) << "a name given twice";
    std::set<std::string> reached;
    for (const std::string& link : All("href=\"([^\"]*)\"")) {
        EXPECT_TRUE(link.starts_with('#') && anchors.contains(link.substr(1))) << link;
        reached.insert(link.substr(1));
    }
    const std::vector<std::string> sections = All("<h2><a name=\"([^\"]*)\"></a>");
    EXPECT_EQ(sections.size(), All("<h2>(.)").size()) << "a section without an anchor";
    for (const std::string& section : sections) {
        EXPECT_TRUE(reached.contains(section)) << section << " is in no contents";
    }
}

TEST_F(HelpPage, IsPlainAsciiAndTellsWhatItsPicturesShow)
{
    const std::set<std::string> takenFromTheProgram = {"help_table.png", "help_run.png",
                                                       "help_stock.png", "help_win.png"};
    const std::vector<std::string> pictures = All("<img src=\"([^\"]*)\" alt=\"[^\"]+\"");
    EXPECT_EQ(std::set(pictures.begin(), pictures.end()), takenFromTheProgram);
    EXPECT_EQ(pictures.size(), All("<img(.)").size());
    EXPECT_TRUE(std::ranges::all_of(page, [](char c) { return c > 0; }));
}

} // namespace
