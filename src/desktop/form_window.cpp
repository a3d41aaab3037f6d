#include "desktop/form_window.h"

#include "desktop/colours.h"
#include "desktop/painter.h"
#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
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
    if (!placed_) {
        const QWidget* const front = QApplication::activeWindow();
        PlaceBeside(front != nullptr && front->isVisible() ? front : nullptr);
    }
    widgets_.FocusFirst();
    show();
}

void FormWindow::RunBefore(FormWindow* owner)
{
    owner_ = owner;
    setWindowModality(Qt::ApplicationModal);
    winId(); // the window must exist before it can be told whose it is
    windowHandle()->setTransientParent(owner == nullptr ? nullptr : owner->windowHandle());
    RefreshEverything();
    const bool onOwner = owner != nullptr && owner->isVisible();
    CentreOn(onOwner ? owner->geometry() : screen()->availableGeometry());
    widgets_.FocusFirst();
    show();
    activateWindow();

    QEventLoop loop;
    loop_ = &loop;
    const QPointer<FormWindow> alive(this);
    loop.exec(QEventLoop::DialogExec);
    if (alive) {
        loop_ = nullptr;
    }
}

void FormWindow::Shut()
{
    hide();
    if (loop_ != nullptr) {
        loop_->quit();
        setWindowModality(Qt::NonModal);
    }
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

/// Beside another window where there is room, so that both can be seen; else in the middle.
void FormWindow::PlaceBeside(const QWidget* other)
{
    const QRect available = screen()->availableGeometry();
    const QRect taken = other == nullptr ? QRect() : other->frameGeometry();
    const int frame = other == nullptr ? 0 : taken.width() - other->width();
    const int needed = width() + frame;
    const bool fitsRight = taken.right() + needed < available.right();
    if (other == nullptr || (!fitsRight && taken.left() - needed < available.left())) {
        CentreOn(available);
        return;
    }
    move(fitsRight ? taken.right() + 1 : taken.left() - needed, taken.top());
    placed_ = true;
}

void FormWindow::CentreOn(const QRect& area)
{
    QPoint corner = area.center() - rect().center();
    const QRect available = screen()->availableGeometry();
    corner.setX(std::max(available.left(), std::min(corner.x(), available.right() - width())));
    corner.setY(std::max(available.top(), std::min(corner.y(), available.bottom() - height())));
    move(corner);
    placed_ = true;
}

// --- sizes ---

bool FormWindow::HoldsItsSize() const
{
    return (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen | Qt::WindowMinimized)) != 0 ||
           sizes_.IsHeld(size());
}

Size FormWindow::Fit(Size clientArea)
{
    const QSize wanted = ToPixels(clientArea);
    if (wanted != size() && !HoldsItsSize()) {
        const QSize before = size();
        const QScopedValueRollback fitting(fitting_, true);
        if (TheForm()->Sizable) {
            resize(wanted);
        } else {
            setFixedSize(wanted);
        }
        if (isVisible()) {
            sizes_.Asked(before, size());
        }
    }
    return ToTwips(size());
}

void FormWindow::resizeEvent(QResizeEvent* event)
{
    Surface::resizeEvent(event);
    if (fitting_ || TheForm() == nullptr) {
        return; // the form gets the answer as a result
    }
    sizes_.Got(event->size());
    if (event->size() != ToPixels({TheForm()->Width(), TheForm()->Height()})) {
        TheForm()->FeedResize(ToTwips(event->size()));
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
    } else if (type == QEvent::Paint && !std::exchange(wasPainted_, true)) {
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
