// Files on the real disk, as programs find them that did not make them.
#include "desktop/text.h"
#include "runtime/files.h"
#include "stage.h"

#include <filesystem>

namespace tessarine
{
namespace
{

namespace fs = std::filesystem;

TEST(DesktopFiles, KeepTheirModesFollowLinksAndSpareWhatIsProtected)
{
    if (fs::path::preferred_separator != '/') {
        GTEST_SKIP() << "where files are protected by attributes, tests/windows looks at them";
    }
    DesktopPlatform disk;
    const QTemporaryDir folder;
    const std::string in = folder.path().toStdString() + '/';
    const fs::perms mine = fs::perms::owner_read | fs::perms::owner_write;
    fs::create_directory(in + "far");
    for (const char* name : {"far/true", "kept"}) {
        std::ofstream(in + name) << "old";
        fs::permissions(in + name, mine);
    }
    for (const auto& [to, from] : std::map<std::string, std::string>{
             {"far/true", "link"}, {"link", "second"}, {"nothing.yet", "dangling"}, {"loop", "loop"}}) {
        fs::create_symlink(to, in + from);
    }
    fs::permissions(in + "kept", fs::perms::owner_read);

    for (const auto& [name, fault] : std::map<std::string, FileFault>{{"second", FileFault::None},
                                                                      {"dangling", FileFault::None},
                                                                      {"kept", FileFault::Forbidden},
                                                                      {"none/file", FileFault::Missing},
                                                                      {"far", FileFault::IsFolder}}) {
        EXPECT_EQ(ReplaceFile(disk, in + name, "new"), fault) << name;
    }
    EXPECT_NE(ReplaceFile(disk, in + "loop", "new"), FileFault::None);
    const auto read = [&](const char* name) { return disk.ReadFile(in + name).text; };
    EXPECT_EQ(read("far/true") + read("nothing.yet") + read("kept"), "newnewold");
    EXPECT_TRUE(fs::is_symlink(in + "second") && fs::is_symlink(in + "link"));
    EXPECT_EQ(fs::status(in + "far/true").permissions(), mine);
    EXPECT_FALSE(disk.ReadFile("/dev/null")) << "no plain file";
    EXPECT_EQ(disk.WriteNewFile(in + ".hidden", "new"), FileFault::None);
    EXPECT_FALSE(disk.IsPlainFile(in + ".hidden"));
    EXPECT_EQ(disk.WriteNewFile("/dev/full", "new"), FileFault::Full);
    for (const auto& entry : fs::recursive_directory_iterator(in)) {
        EXPECT_NE(entry.path().extension(), ".part") << entry;
    }
}

TEST(DesktopClock, NamesTheMonthsWithThreeLettersInEveryLanguage)
{
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    EXPECT_GT(locales.size(), 300);
    for (const QLocale& locale : locales) {
        for (int month = 1; month <= 12; ++month) {
            const std::string name = ShortMonth(locale, month);
            const auto letters = ToText(name).toUcs4();
            EXPECT_TRUE(!letters.empty() && letters.size() <= 3) << name;
            EXPECT_TRUE(std::ranges::none_of(letters, [](uint one) { return QChar::isSpace(one); }))
                << name;
        }
    }
}

} // namespace
} // namespace tessarine
