#include "desktop/dress_style.h"
#include "stage.h"

#include <QDir>
#include <QTemporaryFile>

namespace
{

class Watch : public QObject
{
protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* const box = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && box != nullptr && box->isWindow() && box->isModal() &&
            tessarine::usersWaiting == 0) {
            tessarine::EndAt(*box, "Nobody expects this box");
        }
        return false;
    }
};

} // namespace

int main(int argc, char* argv[])
{
    // Windows on two screens side by side that nobody sees, with everything else as on real ones.
    QTemporaryFile screens(QStringLiteral("screens-XXXXXX"));
    if (!screens.open()) {
        return EXIT_FAILURE;
    }
    screens.write(R"({"screens": [
        {"name": "left", "x": 0, "y": 0, "width": 800, "height": 800},
        {"name": "right", "x": 800, "y": 0, "width": 900, "height": 700}]})");
    screens.close();
    // The colon of a drive would end the name.
    const QString name = QDir::current().relativeFilePath(screens.fileName());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + name.toUtf8());
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(new tessarine::DressStyle);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    Watch watch;
    qApp->installEventFilter(&watch);
    return RUN_ALL_TESTS();
}
