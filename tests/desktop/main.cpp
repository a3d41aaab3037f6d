#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    // Windows without a screen, with everything else as on a real one.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(QStringLiteral("fusion"));
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
