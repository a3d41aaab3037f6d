// The help page: every link leads somewhere, every section can be reached, every picture is there.
#include "data/read_file.h"

#include <regex>

namespace
{

/// What the brackets of the pattern matched, at each place of the text.
std::vector<std::vector<std::string>> Found(const std::string& text, const std::string& pattern)
{
    const std::regex search(pattern);
    std::vector<std::vector<std::string>> found;
    for (std::sregex_iterator at(text.begin(), text.end(), search), end; at != end; ++at) {
        found.emplace_back(at->begin() + 1, at->end());
    }
    return found;
}

TEST(HelpPage, HasAPlaceForEveryLinkAndShowsEveryPictureAtHalfItsPixelsAndInWords)
{
    const std::string page = ReadFile(TESSARINE_DATA_DIR "/tessarine.htm");
    EXPECT_TRUE(std::ranges::all_of(page, [](char c) { return c > 0; })) << "plain ASCII";
    for (const auto& link : Found(page, "href=\"#?([^\"]*)\"")) {
        EXPECT_EQ(Found(page, "<a name=\"" + link[0] + "\"").size(), 1U) << link[0];
    }
    for (const auto& section : Found(page, "<h2>(?:<a name=\"([^\"]*)\"></a>)?")) {
        EXPECT_FALSE(Found(page, "href=\"#" + section[0] + "\"").empty()) << section[0];
    }
    EXPECT_EQ(Found(page, "<img").size(), 14U);
    const auto pictures =
        Found(page, R"html(<img src="([^"]+)" alt="[^"]+" width="([0-9]+)" height="([0-9]+)">)html");
    EXPECT_EQ(pictures.size(), 14U) << "one without all of this";
    for (const auto& picture : pictures) {
        const std::string bytes = ReadFile(TESSARINE_DATA_DIR "/" + picture[0]);
        for (const std::size_t side : {1U, 2U}) { // the file tells its width, and after that its height
            const auto byte = [&](std::size_t at) {
                return static_cast<unsigned char>(bytes.at(14 + 4 * side + at));
            };
            EXPECT_EQ((byte(0) * 256 + byte(1)) / 2, std::stoi(picture[side])) << picture[0];
        }
    }
}

} // namespace
