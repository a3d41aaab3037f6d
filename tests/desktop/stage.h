// A desktop for a test, and hands for the user.
#pragma once

#include "desktop/desktop_platform.h"
#include "desktop/pixels.h"
#include "runtime/controls.h"
#include "runtime/form.h"
#include "support/widget_of.h"

#include <QApplication>
#include <QImage>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <fstream>

inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << rect.width() << " by " << rect.height() << " at " << rect.x() << ", " << rect.y();
}

namespace tessarine
{

/// What the user does with the mouse at a place of a control, in logical pixels from its corner. Goes
/// the whole way of the window system's events, so that a window behind a modal one gets nothing.
inline void Mouse(const DesktopPlatform& platform, QTest::MouseAction action, const Control& control,
                  QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    const Point place = control.PlaceOnForm();
    QTest::mouseEvent(action, platform.WindowOf(*control.OwnerForm())->windowHandle(),
                      action == QTest::MouseMove ? Qt::NoButton : button, {},
                      RoundedRect(place.x, place.y, 0, 0, PixelsPerTwip).topLeft() + at);
}
inline QPoint MiddleOf(const Control& control)
{
    return QRect({}, PixelRect(control).size()).center();
}

/// How many users wait for a modal window.
inline int usersWaiting = 0;

/// Runs `user` as soon as the next modal window is open.
inline void WhenModal(const std::function<void()>& user,
                      const QWidget* before = QApplication::activeModalWidget())
{
    ++usersWaiting;
    QTimer::singleShot(2, qApp, [=] {
        --usersWaiting;
        QApplication::activeModalWidget() == before ? WhenModal(user, before) : user();
    });
}

/// A form for the test to furnish and show, and a surface that it may put there.
class DesktopTest : public testing::Test
{
protected:
    DesktopTest() { surface.SetBounds(30, 450, 3900, 3000); }
    void Events() { QTest::qWait(1); }
    void Press(const Control& on, QPoint at) { Mouse(platform, QTest::MousePress, on, at); }
    void Move(const Control& on, QPoint at) { Mouse(platform, QTest::MouseMove, on, at); }
    void Release(const Control& on, QPoint at) { Mouse(platform, QTest::MouseRelease, on, at); }
    void Click(const Control& on, QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        Mouse(platform, QTest::MouseClick, on, at, button);
    }
    void Click(const Control& on) { Click(on, MiddleOf(on)); }
    void Type(const Form& on, Qt::Key key)
    {
        QTest::keyClick(platform.WindowOf(on)->windowHandle(), key);
    }
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
    struct BusyForm : Form {
        using Form::Form;
        bool IsBusy() const override { return busy; }
        bool busy = false;
    };
    BusyForm form{forms, "test", {6000, 4500}};
    PictureBox surface;
};

} // namespace tessarine
