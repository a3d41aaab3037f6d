#include "desktop/dress_style.h"
#include "stage.h"

#include <QDir>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace
{

/// A box that nobody expects ends the tests at once with its words, and so does one that stays.
class Watch : public QObject
{
protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const box = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && box != nullptr && box->isWindow() && box->isModal()) {
            QTimer::singleShot(tessarine::usersWaiting > 0 ? 20'000 : 0, box, [box] {
                if (!box->isVisible()) {
                    return;
                }
                const auto* const message = qobject_cast<const QMessageBox*>(box);
                std::fprintf(stderr, "This box stays open: \"%s\" %s\n", qPrintable(box->windowTitle()),
                             message == nullptr ? "" : qPrintable(message->text()));
                std::_Exit(EXIT_FAILURE);
            });
        }
        return false;
    }
};

} // namespace

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
    Watch watch;
    qApp->installEventFilter(&watch);
    return RUN_ALL_TESTS();
}
