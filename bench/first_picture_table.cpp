// The program, as its own main starts it, up to its first picture.
#include "desktop/desktop_platform.h"
#include "first_picture.h"
#include "form1.h"

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(QStringLiteral("fusion"));
    const tessarine::bench::FirstPicture application(argc, argv);
    tessarine::DesktopPlatform platform;
    tessarine::Form1 form1(platform, argc > 1 ? argv[1] : ".", "tessarine");
    form1.Start();
    return QApplication::exec();
}
