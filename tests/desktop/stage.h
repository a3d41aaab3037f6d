// A desktop for a test, and hands for the user.
#pragma once

#include "desktop/desktop_platform.h"
#include "desktop/pixels.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << rect.width() << " by " << rect.height() << " at " << rect.x() << ", " << rect.y();
}

namespace tessarine
{

/// The user's pointer, at a place of a control in logical pixels from its corner. Goes the whole way of
/// the window system's events, so that a window behind a modal one gets nothing.
class UsersHand
{
public:
    explicit UsersHand(DesktopPlatform& platform) : platform_(platform) {}

    void Press(const Control& control, QPoint at) { Send(QTest::MousePress, control, at); }
    void Move(const Control& control, QPoint at) { Send(QTest::MouseMove, control, at); }
    void Release(const Control& control, QPoint at) { Send(QTest::MouseRelease, control, at); }
    void Click(const Control& control, QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        Send(QTest::MouseClick, control, at, button);
    }
    void Click(const Control& control) { Click(control, QRect({}, PixelRect(control).size()).center()); }
    void Type(const Control& control, Qt::Key key) { QTest::keyClick(&WindowOf(control), key); }

private:
    void Send(QTest::MouseAction action, const Control& control, QPoint at,
              Qt::MouseButton button = Qt::LeftButton)
    {
        const Point place = control.PlaceOnForm();
        QTest::mouseEvent(action, &WindowOf(control), action == QTest::MouseMove ? Qt::NoButton : button,
                          {}, RoundedRect(place.x, place.y, 0, 0, PixelsPerTwip).topLeft() + at);
    }
    QWindow& WindowOf(const Control& control)
    {
        return *platform_.WindowOf(*control.OwnerForm())->windowHandle();
    }

    DesktopPlatform& platform_;
};

/// The widget of a windowed control on a shown form; the window, where it has none.
inline QWidget& WidgetOf(const DesktopPlatform& platform, const Control& control)
{
    FormWindow& window = *platform.WindowOf(*control.OwnerForm());
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (const Peer* peer = PeerBehind(widget); peer != nullptr && peer->TheControl() == &control) {
            return *widget;
        }
    }
    return window;
}

/// How many users wait for a modal window. One that nobody waits for, or that stays when its user has
/// done, ends the test program with its name: it would stand there for ever.
inline int usersWaiting = 0;

[[noreturn]] inline void EndAt(const QWidget& box, const char* trouble)
{
    const auto* const message = qobject_cast<const QMessageBox*>(&box);
    std::fprintf(stderr, "%s: \"%s\" %s\n", trouble, qPrintable(box.windowTitle()),
                 message == nullptr ? "" : qPrintable(message->text()));
    std::_Exit(EXIT_FAILURE);
}

/// Runs `user` as soon as the next modal window is open.
inline void WhenModal(std::function<void()> user,
                      const QWidget* before = QApplication::activeModalWidget())
{
    ++usersWaiting;
    QTimer::singleShot(2, qApp, [user = std::move(user), before] {
        --usersWaiting;
        const QPointer<QWidget> box = QApplication::activeModalWidget();
        if (box == before) {
            return WhenModal(user, before);
        }
        user();
        if (box) {
            QTimer::singleShot(10'000, box, [box] {
                if (box->isVisible() && box->isModal()) {
                    EndAt(*box, "This box stays open");
                }
            });
        }
    });
}

/// A form for the test to furnish and show, and a surface that it may put there.
class DesktopTest : public testing::Test
{
protected:
    DesktopTest() { surface.SetBounds(30, 450, 3900, 3000); }
    void Events() { QTest::qWait(1); }
    /// The widget of the toolkit that stands for a control.
    template <class Widget = QWidget> Widget& Native(const Control& control)
    {
        return dynamic_cast<Widget&>(WidgetOf(platform, control));
    }
    void Show(const std::vector<Control*>& controls)
    {
        for (Control* control : controls) {
            form.Add(*control);
        }
        form.Show();
        Events();
    }

    DesktopPlatform platform;
    Forms forms{platform};
    UsersHand hand{platform};
    struct BusyForm : Form {
        using Form::Form;
        bool IsBusy() const override { return busy; }
        bool busy = false;
    };
    BusyForm form{forms, "test", {6000, 4500}};
    PictureBox surface;
};

} // namespace tessarine
