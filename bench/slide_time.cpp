// slide_time [RUNS]: prints how long a card takes to slide across the table in ten steps, as the player
// sees it: with every step painted. It needs a screen, and the program's folder as the current one.
#include "desktop/desktop_platform.h"
#include "form1.h"
#include "table/slide.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace
{

constexpr int StepsOfASlide = 10;
constexpr int SettleMilliseconds = 500;

void Settle()
{
    QEventLoop loop;
    QTimer::singleShot(SettleMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(QStringLiteral("fusion"));
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    tessarine::DesktopPlatform platform;
    tessarine::Form1 form1(platform, platform.CurrentFolder(), "tessarine");
    form1.Start();
    Settle();

    form1.shared.MoveSteps = StepsOfASlide;
    tessarine::Slide slide(form1.table);
    std::vector<double> milliseconds;
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        slide.SlideCard(0, run % 2 == 0 ? tessarine::FirstPileBase + tessarine::Piles - 1
                                        : tessarine::FirstColumnBase);
        milliseconds.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(milliseconds);
    std::printf("a slide of ten steps, ms     %9.1f  (%.1f to %.1f)\n",
                milliseconds[milliseconds.size() / 2], milliseconds.front(), milliseconds.back());
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}
