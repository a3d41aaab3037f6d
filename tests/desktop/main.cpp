#include "desktop/dress_style.h"

#include <QApplication>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char* argv[])
{
    // Windows on two screens side by side that nobody sees, with everything else as on real ones.
    QTemporaryFile screens;
    if (!screens.open()) {
        return EXIT_FAILURE;
    }
    screens.write(R"({"screens": [
        {"name": "left", "x": 0, "y": 0, "width": 800, "height": 800},
        {"name": "right", "x": 800, "y": 0, "width": 900, "height": 700}]})");
    screens.close();
    const bool onRealScreen = qEnvironmentVariableIsSet("TESSARINE_REAL_SCREEN");
    if (!onRealScreen) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    }
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(new tessarine::DressStyle);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
