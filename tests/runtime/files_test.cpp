#include "headless/headless_platform.h"
#include "runtime/files.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

TEST(Files, WhateverFailsTheOldFileOrTheNewOneIsThere)
{
    const std::string path = "/run/scores.sco";
    int failures = 0;
    for (const bool fromThere : {false, true}) {
        for (int failing = 0; failing < 10; ++failing) {
            HeadlessPlatform platform;
            platform.files[path] = "old";
            platform.ResetFileOperations(failing, fromThere);
            const bool written = ReplaceFile(platform, path, "the new bytes");
            failures += written ? 0 : 1;
            EXPECT_EQ(platform.files.at(path), written ? "the new bytes" : "old") << failing;
            EXPECT_EQ(platform.files.size(), 1U) << "something was left beside it, " << failing;
        }
    }
    EXPECT_EQ(failures, 2 * 2); // the write and the rename, with and without what follows
}

TEST(Files, ACopyIsWholeOrNotThere)
{
    for (int failing = 0; failing < 3; ++failing) {
        HeadlessPlatform platform;
        platform.files["/run/from"] = "game";
        platform.ResetFileOperations(failing);
        EXPECT_FALSE(CopyFile(platform, "from", "to"));
        EXPECT_EQ(platform.files.size(), 1U) << failing;
        platform.ResetFileOperations();
        EXPECT_TRUE(CopyFile(platform, "from", "to"));
        EXPECT_EQ(platform.files["/run/to"], "game");
        EXPECT_FALSE(CopyFile(platform, "missing", "to"));
        EXPECT_EQ(platform.files["/run/to"], "game");
    }
}

TEST(Files, LinesEndWithOneOrTwoCharacters)
{
    using Lines = std::vector<std::string>;
    EXPECT_EQ(SplitLines("a\r\nb\n\r\nc"), (Lines{"a", "b", "", "c"}));
    EXPECT_EQ(SplitLines("a\r\n"), Lines{"a"});
    EXPECT_EQ(SplitLines("\n"), Lines{""});
    EXPECT_EQ(SplitLines(""), Lines{});
    EXPECT_EQ(SplitLines(" \ra\r\r\n"), Lines{" \ra\r"});
    EXPECT_EQ(JoinLines({"a", "", "b"}), "a\r\n\r\nb\r\n");

    const HeadlessPlatform platform;
    EXPECT_EQ(WithSeparator(platform, "/run"), "/run/");
    EXPECT_EQ(WithSeparator(platform, "/"), "/");
}

} // namespace
} // namespace tessarine
