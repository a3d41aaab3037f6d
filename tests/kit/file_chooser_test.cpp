#include "kit/file_chooser.h"

#include "headless/headless_platform.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarine
{
namespace
{

/// Its file dialog leaves the program in another folder, as systems do.
class WanderingPlatform : public HeadlessPlatform
{
public:
    std::string ChooseFile(const FileDialogRequest& request, Form* owner) override
    {
        ChangeFolder("/elsewhere");
        return HeadlessPlatform::ChooseFile(request, owner);
    }
};

class FileChooser : public testing::Test
{
protected:
    FileChooser()
    {
        gf1.title = "Choose";
        gf1.FileTypes = "*.gam";
        gf1.FileTypesName = "Game File";
        gf1.DefaultDir = "/games";
        form.Add(gf1);
    }

    std::string Choose(const std::string& answer, std::string_view kind = "SAVE")
    {
        platform.chosenFiles.push_back(answer);
        return gf1.GetFileName(kind);
    }

    WanderingPlatform platform;
    Forms forms{platform};
    Form form{forms, "Form", {3000, 3000}};
    FNDialog gf1;
};

TEST_F(FileChooser, AsksTheSystemForTheKindOfFileThatItWasTold)
{
    EXPECT_EQ(Choose("/games/a.gam", "open"), "/games/a.gam");
    ASSERT_EQ(platform.fileDialogs.size(), 1U);
    const FileDialogRequest& request = platform.fileDialogs[0];
    EXPECT_FALSE(request.save);
    EXPECT_EQ(request.title, "Choose");
    EXPECT_EQ(request.types, "*.gam");
    EXPECT_EQ(request.typesName, "Game File");
    EXPECT_EQ(request.folder, "/games/");
    EXPECT_TRUE(request.name.empty());

    gf1.DefaultDir = "/games/";
    Choose({}, "Save");
    Choose({}, {});
    Choose({}, "nonsense");
    EXPECT_TRUE(platform.fileDialogs[1].save);
    EXPECT_EQ(platform.fileDialogs[1].folder, "/games/");
    EXPECT_FALSE(platform.fileDialogs[2].save);
    EXPECT_FALSE(platform.fileDialogs[3].save);
}

TEST_F(FileChooser, PutsTheFolderBackAndLetsEventsRunAlsoOnCancel)
{
    bool ran = false;
    platform.meanwhile.emplace_back([&] { ran = platform.CurrentFolder() == "/run"; });
    EXPECT_EQ(gf1.GetFileName("OPEN"), "");
    EXPECT_TRUE(ran);
    Choose("/games/a.gam");
    EXPECT_EQ(platform.CurrentFolder(), "/run");
}

TEST_F(FileChooser, AddsTheExtensionOnlyToAPathWithoutAnyDot)
{
    EXPECT_EQ(Choose("/games/mine"), "/games/mine.gam");
    EXPECT_EQ(Choose("  /games/mine "), "/games/mine.gam");
    EXPECT_EQ(Choose("/games/mine.txt"), "/games/mine.txt");
    EXPECT_EQ(Choose("/my.games/mine"), "/my.games/mine") << "a dot of a folder counts";
    EXPECT_EQ(Choose("   "), "");
    gf1.FileTypes = "games";
    EXPECT_EQ(Choose("/games/mine"), "/games/mine");
}

TEST_F(FileChooser, IsHiddenAndFilledByItsButton)
{
    gf1.SetBounds(0, 0, 400, 300);
    gf1.SetBackColor(Rgb(1, 2, 3));
    EXPECT_FALSE(gf1.Visible());
    EXPECT_EQ(gf1.Command1.Width(), 400);
    EXPECT_EQ(gf1.Command1.Height(), 300);
    EXPECT_EQ(gf1.Command1.BackColor(), Rgb(1, 2, 3));
    EXPECT_EQ(gf1.Caption(), "...");
    EXPECT_EQ(FNDialog().GetFileName(), "") << "on no form there is nobody to ask";
}

class FreeNames : public testing::Test
{
protected:
    void Take(const std::string& path) { platform.files[path] = "x"; }

    HeadlessPlatform platform;
};

TEST_F(FreeNames, FindsOnlyPlainFiles)
{
    Take("/run/a.gam");
    Take("/run/folder/");
    Take("/run/hidden");
    platform.hiddenFiles.insert("/run/hidden");
    EXPECT_TRUE(FileExists(platform, "/run/a.gam"));
    for (const char* path : {"", "/run/b.gam", "/run/folder", "/run/hidden"}) {
        EXPECT_FALSE(FileExists(platform, path)) << path;
    }
}

TEST_F(FreeNames, TakesTheFirstGapForAPlainName)
{
    Take("/run/g.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g.gam"), "/run/g;01.gam");
    Take("/run/g;01.gam");
    Take("/run/g;03.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g.gam"), "/run/g;02.gam");
}

TEST_F(FreeNames, GoesOnFromANumberAndWraps)
{
    EXPECT_EQ(NextFreeName(platform, "/run/g;07.gam"), "/run/g;08.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g;99.gam"), "/run/g;01.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g;x.gam"), "/run/g;01.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g;500.gam"), "/run/g;01.gam");
    Take("/run/g;99.gam");
    Take("/run/g;01.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g;98.gam"), "/run/g;02.gam");
}

TEST_F(FreeNames, AreNoneWhenAllAreTaken)
{
    for (int number = 1; number <= 99; ++number) {
        Take("/run/g;" + TwoDigits(number) + ".gam");
    }
    EXPECT_EQ(NextFreeName(platform, "/run/g.gam"), "");
    EXPECT_EQ(NextFreeName(platform, "/run/g;50.gam"), "");
    platform.files.erase("/run/g;50.gam");
    EXPECT_EQ(NextFreeName(platform, "/run/g;50.gam"), "/run/g;50.gam") << "the last one looked at";
}

TEST_F(FreeNames, PutTheNumberAtTheEndWithoutAnExtension)
{
    EXPECT_EQ(NextFreeName(platform, "g"), "g;01");
    EXPECT_EQ(NextFreeName(platform, "/my.games/g"), "/my.games/g;01");
    EXPECT_EQ(NextFreeName(platform, "/my.games/g;01"), "/my.games/g;02");
}

} // namespace
} // namespace tessarine
