// The program's window in the hands of a window manager: reads commands of the shell from the standard
// input, runs each (with the window's number in $W), waits until the window is at rest, and looks at the
// table. "screen N" moves the window to another screen itself, "expect WIDTH" is a width of the window
// that must have come back, to a pixel, "remember" and "as remembered" hold the cards' sizes.
#include "desktop/desktop_platform.h"
#include "desktop/form_window.h"
#include "support/table_check.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>
#include <QWindow>

#include <array>
#include <atomic>
#include <fstream>
#include <iostream>
#include <thread>

using namespace tessarine;

namespace
{

class Watch : public QObject
{
public:
    Watch(Form1& form, DesktopPlatform& platform) : form_(form), window_(*platform.WindowOf(form)) {}

    /// Between any two events.
    bool eventFilter(QObject* /*watched*/, QEvent* /*event*/) override
    {
        Expect(proportions_.Fault());
        return false;
    }

    void Rest()
    {
        QElapsedTimer all;
        QElapsedTimer still;
        all.start();
        still.start();
        for (QSize size; still.elapsed() < 250; QThread::msleep(2)) {
            QApplication::processEvents();
            if (std::exchange(size, window_.size()) != window_.size()) {
                still.restart();
            }
            if (all.elapsed() > 10000) {
                Expect("it never comes to rest");
                break;
            }
        }
    }

    void Look()
    {
        Expect(test::FaultOfTable(form_));
        if (window_.isMinimized()) {
            return; // what it shows then nobody sees
        }
        const QSize screen = window_.screen()->size();
        if (window_.width() > screen.width() || window_.height() > screen.height()) {
            Expect("it is larger than the screen");
        }
        const double beside = form_.OuterWidth() - form_.table.Picture2.Width() - 175;
        Expect(beside > -TwipsPerPixel ? "" : "the table leaves its window");
        Expect(form_.Width() == window_.width() * TwipsPerPixel
                   ? ""
                   : "the program counts another width: " +
                         std::to_string(form_.Width() / TwipsPerPixel));
    }

    void Expect(const std::string& fault)
    {
        if (!fault.empty() && faults_++ < 3) {
            std::cout << "   after " << command << ": " << fault << " (" << window_.width() << " by "
                      << window_.height() << ")" << std::endl;
        }
    }
    int Faults() const { return faults_; }

    std::string command = "the start";

private:
    Form1& form_;
    FormWindow& window_;
    test::Proportions proportions_{form_};
    int faults_ = 0;
};

std::array<Whole, 3> SizesOf(const Form1& form)
{
    return {form.shared.CardWidth, form.shared.CardHeight, form.shared.FanStep};
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const std::string in = folder.path().toStdString();
    std::ofstream(in + "/tessarine.cfg") << "\n1 1 0\n1\n0\n1\n2\n3\n4\ndefault.col\narial\n";
    std::ofstream(in + "/all.col") << "default.col\n"
                                   << QByteArray("9;99;199\n").repeated(13).toStdString();
    DesktopPlatform platform;
    Form1 form(platform, in, in + "/t");
    form.Start();
    FormWindow& window = *platform.WindowOf(form);
    qputenv("W", QByteArray::number(window.winId()));
    Watch watch(form, platform);
    qApp->installEventFilter(&watch);
    watch.Rest();
    watch.Look();

    std::array<Whole, 3> remembered{};
    int commands = 0;
    for (std::string line; std::getline(std::cin, line); ++commands) {
        watch.command = line;
        if (line == "remember") {
            remembered = SizesOf(form);
        } else if (line == "as remembered") {
            watch.Expect(remembered == SizesOf(form) ? "" : "the cards have another size");
        } else if (line.starts_with("expect ")) {
            watch.Expect(std::abs(std::stoi(line.substr(7)) - window.width()) <= 1 ? ""
                                                                                   : "another width");
        } else if (line.starts_with("screen ")) {
            QScreen* const screen = QGuiApplication::screens()[std::stoi(line.substr(7))];
            window.windowHandle()->setScreen(screen);
            window.move(screen->geometry().topLeft() + QPoint(20, 20));
            watch.Rest();
            watch.Expect(window.devicePixelRatio() == screen->devicePixelRatio() ? "" : "another scale");
        } else {
            std::atomic<bool> isOver = false;
            std::thread shell([&] {
                static_cast<void>(std::system(line.c_str()) + 1);
                isOver = true;
            });
            while (!isOver) { // the program goes on meanwhile
                QApplication::processEvents(QEventLoop::AllEvents, 5);
            }
            shell.join();
        }
        watch.Rest();
        watch.Look();
    }
    std::cout << "   " << commands << " commands, " << watch.Faults() << " faults" << std::endl;
    std::_Exit(watch.Faults() == 0 && commands > 0 ? 0 : 1);
}
