// The help page: every link leads somewhere, every section can be reached, every picture is there.
#include "data/read_file.h"

#include <set>

namespace
{

using Names = std::multiset<std::string>;

struct HelpPage : testing::Test {
    /// What the first bracket of the pattern matched.
    Names All(const std::string& pattern) const
    {
        Names names;
        for (const auto& brackets : Found(page, pattern)) {
            names.insert(brackets.front());
        }
        return names;
    }

    const std::string page = ReadFile(TESSARINE_DATA_DIR "/tessarine.htm");
};

TEST_F(HelpPage, HasAPlaceForEveryLinkAndALinkToEverySection)
{
    const Names anchors = All("<a name=\"([^\"]*)\"");
    const Names links = All("href=\"([^\"]*)\"");
    const Names sections = All("<h2><a name=\"([^\"]*)\"></a>");
    for (const std::string& link : links) {
        EXPECT_TRUE(link.starts_with('#') && anchors.count(link.substr(1)) == 1) << link;
    }
    EXPECT_EQ(sections.size(), All("<h2>(.)").size()) << "a section without an anchor";
    for (const std::string& section : sections) {
        EXPECT_TRUE(links.contains('#' + section)) << section << " is in no contents";
    }
}

TEST_F(HelpPage, IsPlainAsciiAndShowsEveryPictureAtHalfItsPixelsAndInWords)
{
    const auto pictures =
        Found(page, R"html(<img src="([^"]+)" alt="[^"]+" width="([0-9]+)" height="([0-9]+)">)html");
    EXPECT_EQ(pictures.size(), 14U);
    EXPECT_EQ(All("<(img)").size(), 14U) << "one without all of this";
    for (const auto& picture : pictures) {
        const std::string bytes = ReadFile(TESSARINE_DATA_DIR "/" + picture[0]);
        const auto side = [&](std::size_t place) {
            return static_cast<unsigned char>(bytes.at(place)) * 256 +
                   static_cast<unsigned char>(bytes.at(place + 1));
        };
        EXPECT_EQ(side(18) / 2, std::stoi(picture[1])) << picture[0]; // where the file tells its width
        EXPECT_EQ(side(22) / 2, std::stoi(picture[2])) << picture[0];
    }
    EXPECT_TRUE(std::ranges::all_of(page, [](char c) { return c > 0; }));
}

} // namespace
