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

TEST_F(HelpPage, IsPlainAsciiAndShowsEveryPictureAtHalfItsPixelsAndInWords)
{
    std::set<std::string> shown;
    for (const std::string& picture : All("<img src=\"([^>]*)>")) {
        SCOPED_TRACE(picture);
        static const std::regex words(
            "([^\"]+)\" alt=\"[^\"]+\" width=\"([0-9]+)\" height=\"([0-9]+)\"");
        std::smatch match;
        ASSERT_TRUE(std::regex_match(picture, match, words));
        shown.insert(match[1]);
        const std::string bytes = ReadFile(TESSARINE_DATA_DIR "/" + match[1].str());
        const auto side = [&](std::size_t place) {
            return static_cast<unsigned char>(bytes.at(place)) * 256 +
                   static_cast<unsigned char>(bytes.at(place + 1));
        };
        EXPECT_EQ(side(18) / 2, std::stoi(match[2])); // where the file tells its width and height
        EXPECT_EQ(side(22) / 2, std::stoi(match[3]));
    }
    EXPECT_EQ(shown.size(), 14U);
    EXPECT_TRUE(std::ranges::all_of(page, [](char c) { return c > 0; }));
}

} // namespace
