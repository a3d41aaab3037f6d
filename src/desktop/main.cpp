// The program Tessarine on a desktop.
#include "desktop/desktop_platform.h"
#include "desktop/fonts.h"
#include "form1.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace
{

bool IsSet(const char* variable)
{
    const char* const value = std::getenv(variable);
    return value != nullptr && *value != '\0';
}

[[noreturn]] void EndWithoutDisplay()
{
    std::fputs("Tessarine needs a graphical desktop: no display could be opened.\n", stderr);
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
    if (!IsSet("QT_QPA_PLATFORM") && !IsSet("DISPLAY") && !IsSet("WAYLAND_DISPLAY")) {
        EndWithoutDisplay();
    }
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(QStringLiteral("fusion"));
    QCoreApplication::setApplicationName(QStringLiteral("tessarine"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tessarine"));

    const QtMessageHandler before = qInstallMessageHandler(WatchStart);
    const QApplication application(argc, argv);
    qInstallMessageHandler(before);
    const std::jthread fonts = tessarine::ReadFontsAhead();
    QGuiApplication::setQuitOnLastWindowClosed(false); // the program says when it ends

    tessarine::DesktopPlatform platform;
    const QFileInfo program(QCoreApplication::applicationFilePath());
    tessarine::Form1 form1(platform, QFile::encodeName(program.absolutePath()).toStdString(),
                           QFile::encodeName(program.completeBaseName()).toStdString());
    form1.Start();
    return QApplication::exec();
}
