// The widget that stands for a control on the screen.
#pragma once

#include "desktop/fonts.h"
#include "runtime/form.h"
#include "runtime/platform.h"

#include <QMargins>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace tessarine
{

/// What the windows of one program share.
struct Desk {
    Typesetter typesetter;
    /// Where the pointer was at the latest event of a mouse gesture; none between two gestures.
    std::optional<PixelPoint> pointer;
    /// The frame that the desktop puts around a window: a guess until the first one is up.
    QMargins frame{4, 23, 4, 4};
};

/// One widget and its control. The control says how things are; the widget follows it in Refresh and
/// tells it what the user does, and nothing of the one comes back to the other as an echo.
class Peer
{
public:
    Peer(QWidget& widget, Control& control, Desk& desk)
        : widget_(widget), control_(&control), desk_(desk)
    {
    }
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer() = default;

    QWidget& Widget() const { return widget_; }
    /// None once the form is gone.
    Control* TheControl() const { return control_; }
    void LetGo() { control_ = nullptr; }

    /// Brings place, visibility, dress and contents to what the control says; touches only what differs.
    virtual void Refresh();

protected:
    /// What this kind of control shows beside its place.
    virtual void RefreshContents() = 0;

    Desk& TheDesk() const { return desk_; }

    /// Runs what the user did. The control may have refused it, so the widget follows the control
    /// afterwards; or it may have led to the end of the form, and of this.
    template <class Action> void UserDoes(Action action)
    {
        if (control_ == nullptr) {
            return;
        }
        const QPointer<QWidget> alive(&widget_);
        action();
        if (alive && control_ != nullptr) {
            Refresh();
        }
    }

private:
    QWidget& widget_;
    Control* control_;
    Desk& desk_;
};

/// A button of the mouse as the form runtime counts it; 0 for one that it does not know.
int ButtonNumber(Qt::MouseButton button);

/// The peer behind a widget; none for a widget that is no peer.
Peer* PeerBehind(QObject* object);

} // namespace tessarine
