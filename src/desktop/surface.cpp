#include "desktop/surface.h"

#include "desktop/accessibility.h"
#include "desktop/colours.h"
#include "desktop/painter.h"
#include "runtime/contrast.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>

#include <cmath>

namespace tessarine
{
namespace
{

int ShiftKeys(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftKey : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? ControlKey : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? AltKey : 0);
}

/// Where the pointer is. The toolkit has rounded the place in the widget to logical pixels; the one in
/// the window is exact, in events that come by way of the window.
QPointF PlaceInWindow(const QWidget& widget, const QMouseEvent& event)
{
    const QPointF rounded = widget.mapTo(widget.window(), event.position());
    const QPointF exact = event.scenePosition();
    const QPointF lost = exact - rounded;
    return std::abs(lost.x()) < 1 && std::abs(lost.y()) < 1 ? exact : rounded;
}

/// The upper left corner of the pixel of the screen in which a place of a window lies.
QPointF PixelCorner(QPointF place, double ratio)
{
    // A place that is a corner may have lost a hair of it on the way here.
    constexpr double hair = 1.0 / 1024;
    return {std::floor(place.x() * ratio + hair) / ratio, std::floor(place.y() * ratio + hair) / ratio};
}

} // namespace

Surface::Surface(Container& container, Desk& desk, QWidget* parent)
    : QWidget(parent), Peer(*this, container, desk), ground_(ToQColor(container.BackColor()))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
}

const UserControl* Surface::AsUserControl() const
{
    const Control* control = TheControl();
    return control != nullptr && control->Kind() == ControlKind::UserControl
               ? static_cast<const UserControl*>(control)
               : nullptr;
}

void Surface::RefreshContents()
{
    const QColor ground = ToQColor(TheControl()->BackColor());
    if (AsUserControl() != nullptr || ground != ground_) {
        ground_ = ground;
        update();
    }
    NamesMayDiffer(*this);
}

void Surface::paintEvent(QPaintEvent* event)
{
    if (TheControl() == nullptr) {
        return;
    }
    Painter painter(*this, event->region(), TheDesk().typesetter);
    const UserControl* const user = AsUserControl();
    if (user == nullptr) {
        painter.PaintChildren(*TheContainer(), ToQColor(TheControl()->BackColor()));
        return;
    }
    painter.PaintDrawing(*user);
    painter.PaintChildren(*user, std::nullopt);
    if (user->HasBorder()) {
        painter.PaintBorder(EdgeOf(user->BackColor(), user->Parent()->BackColor()));
    }
    if (focusByKeyboard_ && hasFocus()) {
        painter.PaintButtonFocus(ToQColor(TextColour(user->BackColor(), user->ForeColor())));
    }
}

MouseEvent Surface::AsTwips(const QMouseEvent& event) const
{
    const QPointF corner = PixelCorner(PlaceInWindow(*this, event), devicePixelRatioF());
    return {ButtonNumber(event.button()), ShiftKeys(event.modifiers()), corner.x() * TwipsPerPixel,
            corner.y() * TwipsPerPixel};
}

void Surface::NotePointer(const QMouseEvent& event)
{
    const QPoint place = event.globalPosition().toPoint();
    TheDesk().pointer = PixelPoint{place.x(), place.y()};
}

/// A release can get lost, as when another window took the mouse away in the middle of a gesture. The
/// first press of the next one brings it after.
void Surface::DropStaleCapture(Form& form, const QMouseEvent& event)
{
    const bool isFirst = event.buttons() == Qt::MouseButtons(event.button());
    if (!isFirst || form.Captured() == nullptr) {
        return;
    }
    MouseEvent release = AsTwips(event);
    for (const int button : {LeftButton, RightButton, MiddleButton}) {
        release.button = button;
        form.FeedMouseUp(release);
    }
}

void Surface::mousePressEvent(QMouseEvent* event)
{
    Form* const form = TheControl() == nullptr ? nullptr : TheControl()->OwnerForm();
    if (form == nullptr || ButtonNumber(event->button()) == 0) {
        return;
    }
    const QPointer<QWidget> alive(this);
    NotePointer(*event);
    DropStaleCapture(*form, *event);
    if (alive && TheControl() != nullptr) {
        form->FeedMouseDown(AsTwips(*event));
    }
}

void Surface::mouseMoveEvent(QMouseEvent* event)
{
    if (TheControl() == nullptr) {
        return;
    }
    NotePointer(*event);
    if (Form* form = TheControl()->OwnerForm()) {
        form->FeedMouseMove(AsTwips(*event));
    }
}

void Surface::mouseReleaseEvent(QMouseEvent* event)
{
    if (TheControl() == nullptr || ButtonNumber(event->button()) == 0) {
        return;
    }
    Desk& desk = TheDesk();
    const bool isLast = event->buttons() == Qt::NoButton;
    NotePointer(*event);
    if (Form* form = TheControl()->OwnerForm()) {
        form->FeedMouseUp(AsTwips(*event));
    }
    if (isLast) {
        desk.pointer.reset();
    }
}

void Surface::keyPressEvent(QKeyEvent* event)
{
    const bool isPress =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (TheControl() == nullptr || !TheControl()->TakesFocus() || !isPress) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        UserDoes([this] { TheControl()->UserActivates(); });
    }
}

void Surface::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        focusByKeyboard_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    }
    update();
}

/// A form that comes up again shows where the keyboard is, whatever happened to it before.
void Surface::hideEvent(QHideEvent*)
{
    focusByKeyboard_ = true;
}

void Surface::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
        focusByKeyboard_ = false;
    }
    update();
}

} // namespace tessarine
