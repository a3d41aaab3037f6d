#include "headless/headless_platform.h"
#include "kit/file_chooser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

struct FileChooser : testing::Test {
    FileChooser()
    {
        gf1.FileTypes = "*.gam";
        gf1.DefaultDir = "/games";
        form.Add(gf1);
        form.Show();
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

TEST_F(FileChooser, AsksTheSystemComesBackToItsFolderAndAddsTheExtension)
{
    bool ran = false;
    platform.meanwhile.emplace_back([] {}); // while the dialog is open
    platform.meanwhile.emplace_back([&] { ran = platform.CurrentFolder() == "/run"; });
    EXPECT_EQ(gf1.GetFileName("open"), ""); // cancelled
    EXPECT_TRUE(ran);
    EXPECT_FALSE(platform.fileDialogs.back().save);
    EXPECT_EQ(platform.fileDialogs.back().folder, "/games/");
    EXPECT_EQ(Choose("/games/a.gam", "Save"), "/games/a.gam");
    EXPECT_TRUE(platform.fileDialogs.back().save);
    // The extension comes only to a path without any dot.
    EXPECT_EQ(Choose("  /games/mine "), "/games/mine.gam");
    EXPECT_EQ(Choose("/my.games/mine"), "/my.games/mine") << "a dot of a folder counts";
    EXPECT_EQ(Choose("   "), "");
}

TEST(FreeNames, CountOnFromTheNumberInTheNameAndWrap)
{
    const auto next = [](const std::string& name, const std::vector<std::string>& taken = {}) {
        HeadlessPlatform platform;
        platform.separators = "\\/";
        for (const std::string& other : taken) {
            platform.files["/run/" + other] = "x";
        }
        return NextFreeName(platform, name);
    };
    EXPECT_EQ(next("g.gam", {"g.gam"}), "g;01.gam");
    EXPECT_EQ(next("g.gam", {"g;01.gam", "g;03.gam"}), "g;02.gam");
    EXPECT_EQ(next("g;x.gam"), "g;01.gam");
    EXPECT_EQ(next("g;500.gam"), "g;01.gam");
    EXPECT_EQ(next("g;98.gam", {"g;99.gam", "g;01.gam"}), "g;02.gam");
    for (const std::string folder : {"/my.games/", "/my;7/", "C:\\my;games.old\\", "C:/a;b\\"}) {
        EXPECT_EQ(next(folder + "g"), folder + "g;01");
        EXPECT_EQ(next(folder + "g;01"), folder + "g;02");
        EXPECT_EQ(next(folder + "g.gam"), folder + "g;01.gam");
    }
    std::vector<std::string> all;
    for (int number = 1; number <= 99; ++number) {
        all.push_back("g;" + TwoDigits(number) + ".gam");
    }
    EXPECT_EQ(next("g;50.gam", all), "");
    all.erase(all.begin() + 49);
    EXPECT_EQ(next("g;50.gam", all), "g;50.gam") << "the last one looked at";
}

} // namespace
} // namespace tessarine
