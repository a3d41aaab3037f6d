// Files on the real disk, as programs find them that did not make them.
#include "desktop/files.h"
#include "desktop/text.h"
#include "runtime/files.h"
#include "stage.h"
#include "store/score_line.h"

#include <QLocale>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>

namespace tessarine
{
namespace
{

namespace fs = std::filesystem;

TEST(DesktopFiles, KeepTheirModesFollowLinksAndSpareWhatIsProtected)
{
    DesktopPlatform disk;
    const QTemporaryDir folder;
    const std::string in = folder.path().toStdString() + '/';
    const fs::perms mine = fs::perms::owner_read | fs::perms::owner_write;
    fs::create_directory(in + "far");
    for (const char* name : {"far/true", "kept", "dangling.target"}) {
        std::ofstream(in + name) << "old";
        fs::permissions(in + name, mine);
    }
    fs::create_symlink("far/true", in + "link");
    fs::create_symlink("link", in + "second");
    fs::create_symlink("nothing.yet", in + "dangling");
    fs::create_symlink("loop", in + "loop");
    fs::permissions(in + "kept", fs::perms::owner_read);

    EXPECT_EQ(ReplaceFile(disk, in + "second", "new"), FileFault::None);
    EXPECT_EQ(disk.ReadFile(in + "far/true").text, "new");
    EXPECT_TRUE(fs::is_symlink(in + "second") && fs::is_symlink(in + "link"));
    EXPECT_EQ(fs::status(in + "far/true").permissions(), mine);
    EXPECT_EQ(ReplaceFile(disk, in + "dangling", "new"), FileFault::None);
    EXPECT_EQ(disk.ReadFile(in + "nothing.yet").text, "new");
    EXPECT_EQ(ReplaceFile(disk, in + "kept", "new"), FileFault::Forbidden);
    EXPECT_EQ(disk.ReadFile(in + "kept").text, "old");
    EXPECT_NE(ReplaceFile(disk, in + "loop", "new"), FileFault::None);
    EXPECT_EQ(ReplaceFile(disk, in + "none/file", "new"), FileFault::Missing);
    EXPECT_EQ(ReplaceFile(disk, in + "far", "new"), FileFault::IsFolder);
    EXPECT_FALSE(disk.ReadFile("/dev/null")) << "no plain file";
    EXPECT_EQ(disk.WriteNewFile("/dev/full", "new"), FileFault::Full);
    for (const auto& entry : fs::recursive_directory_iterator(in)) {
        EXPECT_NE(entry.path().extension(), ".part") << entry;
    }
}

TEST(DesktopClock, NamesTheMonthsWithoutBlanksInEveryLanguage)
{
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    EXPECT_GT(locales.size(), 300);
    for (const QLocale& locale : locales) {
        for (int month = 1; month <= 12; ++month) {
            const QString name = ToText(ShortMonth(locale, month));
            EXPECT_FALSE(name.isEmpty()) << locale.name().toStdString();
            for (const QChar letter : name) {
                EXPECT_FALSE(letter.isSpace() || letter == QChar::ReplacementCharacter)
                    << locale.name().toStdString() << ' ' << name.toStdString();
            }
            const ScoreLine line{ScoreDate({2008, month, 9, 0, 0, 0, ToBytes(name)}),
                                 {"7", "4", "0", "3"}};
            const auto read = ScoreLine::Read(line.Text());
            ASSERT_TRUE(read);
            EXPECT_EQ(read->counts, line.counts) << locale.name().toStdString();
        }
    }
}

} // namespace
} // namespace tessarine
