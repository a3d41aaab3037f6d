// The program Tessarine on a desktop.
#include "desktop/desktop_platform.h"
#include "desktop/dress_style.h"
#include "desktop/fonts.h"
#include "desktop/start.h"
#include "desktop/text.h"
#include "form1.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdlib>
#include <thread>

namespace
{

[[noreturn]] void EndWithoutDisplay()
{
    tessarine::SayWithoutDesktop("Tessarine needs a graphical desktop: no display could be opened.");
    std::_Exit(EXIT_FAILURE);
}

/// Stands in while the toolkit connects to the desktop: where it would give up with a page of its own
/// troubles and a crash, the program says what is the matter.
void WatchStart(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type == QtFatalMsg) {
        EndWithoutDisplay();
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (!tessarine::MayHaveDesktop()) {
        EndWithoutDisplay();
    }
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(new tessarine::DressStyle);
    QCoreApplication::setApplicationName(QStringLiteral("tessarine"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tessarine"));

    const QtMessageHandler before = qInstallMessageHandler(WatchStart);
    const QApplication application(argc, argv);
    qInstallMessageHandler(before);
    const std::jthread fonts = tessarine::ReadFontsAhead();
    QGuiApplication::setQuitOnLastWindowClosed(false); // the program says when it ends

    tessarine::DesktopPlatform platform;
    const QFileInfo program(QCoreApplication::applicationFilePath());
    tessarine::Form1 form1(platform, tessarine::PathToBytes(program.absolutePath()),
                           tessarine::ToBytes(program.completeBaseName()));
    form1.Start();
    return QApplication::exec();
}
