#include "headless/headless_platform.h"
#include "runtime/files.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

TEST(Files, GoWhereALinkLeadsAndSpareWhatIsProtected)
{
    HeadlessPlatform platform;
    platform.files = {{"/run/true", "old"}, {"/run/mine", "old"}};
    platform.links = {{"/run/link", "/run/true"}};
    platform.writeProtected = {"/run/mine"};
    EXPECT_EQ(ReplaceFile(platform, "link", "new"), FileFault::None);
    EXPECT_EQ(ReplaceFile(platform, "mine", "new"), FileFault::Forbidden);
    const std::map<std::string, std::string> left = {{"/run/true", "new"}, {"/run/mine", "old"}};
    EXPECT_EQ(platform.files, left);
}

TEST(Files, LinesEndWithOneOrTwoCharacters)
{
    using Lines = std::vector<std::string>;
    EXPECT_EQ(SplitLines("a\r\nb\n\r\nc"), (Lines{"a", "b", "", "c"}));
    EXPECT_EQ(SplitLines("\n"), Lines{""});
    EXPECT_EQ(SplitLines(""), Lines{});
    EXPECT_EQ(SplitLines(" \ra\r\r\nb\r"), (Lines{" \ra\r", "b"}));
}

} // namespace
} // namespace tessarine
