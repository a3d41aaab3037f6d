// The program's window in the hands of a window manager: works in a player's folder (the argument),
// reads commands of the shell from the standard input, runs each (with the window's number in $W), waits
// until the window is at rest, and looks at the table. "screen N" moves the window to another screen
// itself: the cards must have the size there that they had when they first came.
#include "desktop/desktop_platform.h"
#include "desktop/form_window.h"
#include "support/table_check.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include <array>
#include <iostream>
#include <map>

using namespace tessarine;

namespace
{

class Watch : public QObject
{
public:
    Watch(Form1& form, FormWindow& window) : form_(form), window_(window)
    {
        qApp->installEventFilter(this);
    }

    /// Between any two events.
    bool eventFilter(QObject* /*watched*/, QEvent* /*event*/) override
    {
        Expect(proportions_.Fault());
        return false;
    }

    void Look()
    {
        QElapsedTimer all;
        QElapsedTimer still;
        all.start();
        still.start();
        for (QSize size; still.elapsed() < 250 && all.elapsed() < 10000; QThread::msleep(2)) {
            QApplication::processEvents();
            if (std::exchange(size, window_.size()) != window_.size()) {
                still.restart();
            }
        }
        Expect(still.elapsed() < 250 ? "it never comes to rest" : test::FaultOfTable(form_));
        if (window_.isMinimized()) {
            return; // what it shows then nobody sees
        }
        const QSize screen = window_.screen()->size();
        Expect(window_.size() == window_.size().boundedTo(screen) ? "" : "it is larger than the screen");
        const double beside = form_.OuterWidth() - form_.table.Picture2.Width() - 175;
        Expect(beside > -TwipsPerPixel ? "" : "the table leaves its window");
        Expect(form_.Width() == window_.width() * TwipsPerPixel ? "" : "the form has another width");
    }

    void MoveTo(QScreen& screen)
    {
        window_.windowHandle()->setScreen(&screen);
        window_.move(screen.geometry().topLeft() + QPoint(20, 20));
        Look();
        Expect(window_.devicePixelRatio() == screen.devicePixelRatio() ? "" : "another scale");
        const Module1& now = form_.shared;
        const std::array<Whole, 3> sizes{now.CardWidth, now.CardHeight, now.FanStep};
        Expect(sizesOn_.try_emplace(&screen, sizes).first->second == sizes ? ""
                                                                           : "the cards have changed");
    }

    void Expect(const std::string& fault)
    {
        if (!fault.empty() && faults++ < 3) {
            std::cout << "   after " << command << ": " << fault << " (" << window_.width() << " by "
                      << window_.height() << ", the form's width " << form_.Width() / TwipsPerPixel
                      << ")" << std::endl;
        }
    }

    std::string command = "the start";
    int faults = 0;

private:
    Form1& form_;
    FormWindow& window_;
    test::Proportions proportions_{form_};
    std::map<QScreen*, std::array<Whole, 3>> sizesOn_;
};

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    DesktopPlatform platform;
    const std::string folder = argv[1];
    Form1 form(platform, folder, folder + "/tessarine");
    form.Start();
    FormWindow& window = *platform.WindowOf(form);
    qputenv("W", QByteArray::number(window.winId()));
    Watch watch(form, window);
    watch.Look();
    int commands = 0;
    for (std::string& line = watch.command; std::getline(std::cin, line); ++commands) {
        if (line.starts_with("screen ")) {
            watch.MoveTo(*QGuiApplication::screens()[std::stoi(line.substr(7))]);
            continue;
        }
        QProcess shell;
        shell.start("sh", {"-c", QString::fromStdString(line)});
        while (shell.state() != QProcess::NotRunning) { // the program goes on meanwhile
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
        watch.Look();
    }
    std::cout << "   " << commands << " commands, " << watch.faults << " faults" << std::endl;
    std::_Exit(watch.faults == 0 && commands > 0 ? 0 : 1);
}
