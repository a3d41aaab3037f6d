#include "desktop/dress_style.h"
#include "stage.h"

#include <QDir>

int main(int argc, char* argv[])
{
    // Windows on screens that nobody sees, with everything else as on real ones.
    // The colon of a drive would end the name.
    const QString name = QDir::current().relativeFilePath(QStringLiteral(TESSARINE_SCREENS));
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + name.toUtf8());
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(new tessarine::DressStyle);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
