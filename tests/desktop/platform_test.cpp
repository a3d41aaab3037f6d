// What a program asks of its platform beside windows: time, chance, the measure of a text, files.
#include "desktop/text.h"
#include "runtime/files.h"
#include "runtime/timer.h"
#include "stage.h"

#include <QElapsedTimer>

#include <cmath>
#include <set>

namespace tessarine
{
namespace
{

using PlatformTest = DesktopTest;

TEST_F(PlatformTest, ATimerTicksOnceInItsTimeAndWaitingSleeps)
{
    for (const int interval : {80, 3}) {
        Timer timer(platform);
        Timer stopped(platform);
        QElapsedTimer clock;
        std::vector<qint64> ticks;
        stopped.OnTick = [&] { ADD_FAILURE() << "a stopped timer ticked"; };
        timer.OnTick = [&] {
            timer.SetEnabled(false);
            ticks.push_back(clock.elapsed());
        };
        for (Timer* either : {&stopped, &timer}) {
            either->SetInterval(interval);
            either->SetEnabled(true);
        }
        stopped.SetEnabled(false);
        QTest::qWait(interval / 4);
        ticks.clear(); // of a machine that was too busy
        timer.SetEnabled(true);
        clock.start();
        platform.StartTimer(timer, interval); // begins anew
        platform.RunPendingEvents();          // does not wait for it
        int waits = 0;
        for (; ticks.empty(); ++waits) {
            platform.WaitForEvent();
        }
        EXPECT_GE(ticks[0], interval - 1); // which the timers of Windows may round away
        EXPECT_LT(waits, 50) << "a wait that returns at once keeps a core busy";
        QTest::qWait(2 * interval);
        EXPECT_EQ(ticks.size(), 1U);
    }
}

TEST_F(PlatformTest, OneClockManyDrawsAndTextInTwips)
{
    const DateTime now = platform.Now();
    const double seconds = (now.hour * 60.0 + now.minute) * 60 + now.second;
    const auto clock = static_cast<double>(platform.SecondsSinceMidnight());
    EXPECT_LE(std::abs(std::remainder(clock - seconds, 24 * 60 * 60)), 5);
    std::set<double> draws;
    for (int i = 0; i < 2000; ++i) {
        platform.SeedRandom(clock);
        draws.insert(platform.RandomDraw());
    }
    EXPECT_GT(draws.size(), 1995U);
    EXPECT_TRUE(*draws.begin() >= 0 && *draws.rbegin() > 0.95 && *draws.rbegin() < 1);
    const Font font{.name = "Arial", .size = 8};
    const Size one = platform.TextSize(font, "Weight");
    const Size three = platform.TextSize(font, "a\r\nWeight\nab");
    EXPECT_GT(one.width, 6 * TwipsPerPoint); // six letters, each wider than a point
    EXPECT_TRUE(one.height >= 8 * TwipsPerPoint && one.height <= 16 * TwipsPerPoint) << one.height;
    EXPECT_NEAR(three.width, one.width, TwipsPerPixel);
    EXPECT_NEAR(three.height, 3.25 * one.height, 0.75 * one.height);
}

TEST_F(PlatformTest, FilesKeepTheirBytes)
{
    using namespace std::string_view_literals;
    const QTemporaryDir temporary;
    const std::string folder = PathToBytes(temporary.path() + QLatin1Char('/'));
    const std::string path = folder + "bytes.txt";
    for (const std::string_view bytes : {"07\r\n\xE9\0\xFF\n"sv, "shorter"sv, ""sv}) {
        EXPECT_EQ(platform.WriteNewFile(path, bytes), FileFault::None);
        EXPECT_EQ(platform.ReadFile(path).text, bytes);
    }
    const std::string before = platform.CurrentFolder();
    platform.ChangeFolder(folder);
    EXPECT_EQ(WithSeparator(platform, platform.CurrentFolder()), folder);
    EXPECT_EQ(platform.WriteNewFile("bare.txt", "new"), FileFault::None);
    EXPECT_EQ(platform.RenameFile("bare.txt", path), FileFault::None);
    EXPECT_EQ(platform.RenameFile("bare.txt", path), FileFault::Missing);
    platform.ChangeFolder(before);
    EXPECT_EQ(platform.ReadFile(path).text, "new");
    EXPECT_EQ(platform.PlaceToWrite(path).text, path);
    platform.RemoveFile(path);
    EXPECT_FALSE(platform.IsPlainFile(path) || platform.IsPlainFile(folder));
    EXPECT_EQ(platform.ReadFile(path).fault, FileFault::Missing);
    EXPECT_EQ(platform.ReadFile(folder).fault, FileFault::IsFolder);
    EXPECT_EQ(platform.PlaceToWrite(folder).fault, FileFault::IsFolder);
    EXPECT_EQ(platform.WriteNewFile(folder, "bytes"), FileFault::IsFolder);
    for (const std::size_t more : {0U, 1U}) {
        EXPECT_EQ(platform.WriteNewFile(path, std::string(LargestFile + more, ' ')), FileFault::None);
        EXPECT_EQ(platform.ReadFile(path).fault, more == 0 ? FileFault::None : FileFault::TooLarge);
    }
}

} // namespace
} // namespace tessarine
