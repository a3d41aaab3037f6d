#include "desktop/form_window.h"

#include "desktop/colours.h"
#include "desktop/painter.h"
#include "desktop/pixels.h"
#include "desktop/placing.h"
#include "desktop/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QIcon>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace tessarine
{
namespace
{

constexpr auto RefreshRequest = static_cast<QEvent::Type>(QEvent::User + 1);

Qt::WindowFlags FlagsOf(const Form& form)
{
    Qt::WindowFlags flags = (form.Sizable ? Qt::Window : Qt::Dialog) | Qt::CustomizeWindowHint |
                            Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowMinMaxButtonsHint, form.Sizable);
    flags.setFlag(Qt::WindowCloseButtonHint, form.HasCloseBox);
    return flags;
}

QIcon IconOf(const Picture& picture)
{
    QIcon icon;
    for (const int pixels : {16, 32, 48, 64, 128}) {
        icon.addPixmap(PictureAsPixmap(picture, pixels));
    }
    return icon;
}

} // namespace

FormWindow::FormWindow(Form& form, Desk& desk)
    : Surface(form, desk, nullptr), widgets_(form, *this, desk)
{
    setWindowFlags(FlagsOf(form));
    const QSize size = ToPixels({form.Width(), form.Height()});
    if (form.Sizable) {
        resize(size);
    } else {
        setFixedSize(size);
    }
}

void FormWindow::Open()
{
    if (isVisible()) {
        Refresh();
        if (isMinimized()) {
            setWindowState(windowState() & ~Qt::WindowMinimized);
        }
        raise();
        activateWindow();
        return;
    }
    RefreshEverything();
    if (!place_) {
        PlaceBy(QApplication::activeWindow());
    }
    widgets_.FocusFirst();
    show();
}

void FormWindow::OpenBefore(FormWindow* owner)
{
    owner_ = owner;
    setWindowModality(Qt::ApplicationModal);
    winId(); // the window must exist before it can be told whose it is
    windowHandle()->setTransientParent(owner == nullptr ? nullptr : owner->windowHandle());
    RefreshEverything();
    PlaceBy(owner);
    widgets_.FocusFirst();
    show();
    activateWindow();
}

void FormWindow::Shut()
{
    hide();
    setWindowModality(Qt::NonModal);
    if (owner_ != nullptr && owner_->isVisible()) {
        owner_->activateWindow();
    }
    owner_.clear();
}

void FormWindow::LetGoOfForm()
{
    if (TheForm() != nullptr) {
        widgets_.LetGo();
        LetGo();
    }
}

// --- places ---

QScreen& FormWindow::HomeScreen()
{
    QScreen* const underPointer = QGuiApplication::screenAt(QCursor::pos());
    return underPointer == nullptr ? *QGuiApplication::primaryScreen() : *underPointer;
}

/// By another window if it is up; else in the middle of the home screen.
void FormWindow::PlaceBy(const QWidget* other)
{
    const bool isAlone = other == nullptr || !other->isVisible();
    placing::Rule* const rule =
        TheForm()->StandsBeside && !isAlone ? &placing::Beside : &placing::Centred;
    QScreen& on = isAlone ? HomeScreen() : *other->screen();
    const QRect screen = on.availableGeometry();
    place_ = [rule, screen, by = isAlone ? screen : other->windowHandle()->frameGeometry()](
                 QSize outer) { return rule(outer, by, screen); };
    setScreen(&on);
    PutInPlace();
}

/// Some window systems tell it only of a window that is up; before, it may be like the latest.
QMargins FormWindow::Frame() const
{
    const QMargins own = windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
    if (!own.isNull()) {
        return own;
    }
    return wasPainted_ ? frame_ : TheDesk().frame;
}

/// Says where the client area is to be, not the frame: a window system that was told of the frame
/// would move the window by it at the next change of size.
void FormWindow::PutInPlace()
{
    frame_ = Frame();
    const QPoint corner = place_(size().grownBy(frame_));
    setGeometry({corner + QPoint(frame_.left(), frame_.top()), size()});
}

/// The guess may have been wrong.
void FormWindow::LearnFrame()
{
    TheDesk().frame = Frame();
    if (TheDesk().frame != frame_ && place_) {
        PutInPlace();
    }
}

// --- sizes ---

bool FormWindow::HoldsItsSize() const
{
    return (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized)) != 0 ||
           sizes_.IsHeld(size());
}

void FormWindow::LoseMouse()
{
    if (Form* const form = TheForm()) {
        form->FeedMouseLost();
    }
}

Size FormWindow::Fit(Size clientArea)
{
    const QSize wanted = ToPixels(clientArea);
    if (wanted != size() && !HoldsItsSize()) {
        if (isVisible()) {
            sizes_.Asked(size(), wanted);
        }
        if (TheForm()->Sizable) {
            resize(wanted);
        } else {
            setFixedSize(wanted);
        }
    }
    return ToTwips(size());
}

void FormWindow::resizeEvent(QResizeEvent* event)
{
    Surface::resizeEvent(event);
    sizes_.Got(size());
    TellSize();
}

/// What counts is the size that the window has now: an event may come late and tell of an earlier one,
/// and none need follow it. A minimised window can't be fitted to what the form makes of a size, so the
/// form hears of it when the window is back.
void FormWindow::TellSize()
{
    if (TheForm() != nullptr && !isMinimized() &&
        size() != ToPixels({TheForm()->Width(), TheForm()->Height()})) {
        TheForm()->FeedResize(ToTwips(size()));
    }
}

// --- events ---

bool FormWindow::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == RefreshRequest) {
        Refresh();
        return true;
    }
    if (type == QEvent::UpdateRequest) {
        Refresh(); // what has changed until now goes into the same paint
    } else if (type == QEvent::WindowActivate && TheForm() != nullptr) {
        TheForm()->FeedActivation();
    } else if (type == QEvent::WindowStateChange && std::exchange(wasMinimized_, isMinimized()) &&
               !isMinimized() && TheForm() != nullptr) {
        TellSize();
        TheForm()->FeedRestored();
    } else if (type == QEvent::Paint && !std::exchange(wasPainted_, true)) {
        LearnFrame();
        QTimer::singleShot(0, this, &FormWindow::ShowIcon);
    }
    return Surface::event(event);
}

/// The window system takes its time over an icon; the first picture does not wait for it.
void FormWindow::ShowIcon()
{
    if (TheForm() != nullptr && TheForm()->Icon() != nullptr) {
        setWindowIcon(IconOf(*TheForm()->Icon()));
    }
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (TheForm() != nullptr) {
        TheForm()->FeedClose();
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && TheForm() != nullptr) {
        TheForm()->FeedKey(DialogKey::Escape);
        return;
    }
    event->ignore();
}

// --- following the form ---

void FormWindow::RefreshSoon()
{
    QCoreApplication::postEvent(this, new QEvent(RefreshRequest));
}

void FormWindow::Refresh()
{
    // A hidden window keeps its changes until it is shown again.
    if (TheForm() != nullptr && isVisible()) {
        RefreshOwnLook();
        widgets_.FollowChanges();
    }
}

void FormWindow::RefreshEverything()
{
    RefreshOwnLook();
    widgets_.FollowAll();
}

void FormWindow::RefreshOwnLook()
{
    const QString title = ToText(TheForm()->Caption());
    if (windowTitle() != title) {
        setWindowTitle(title);
    }
    const QColor ground = ToQColor(TheForm()->BackColor());
    if (palette().color(QPalette::Window) != ground) {
        // The toolkit's own widgets mix their shades from these two.
        setPalette(QPalette(ToQColor(ButtonFace), ground));
    }
    RefreshContents();
}

} // namespace tessarine
