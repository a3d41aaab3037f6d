#include "desktop/form_window.h"

#include "desktop/colours.h"
#include "desktop/painter.h"
#include "desktop/pixels.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace tessarine
{
namespace
{

constexpr auto RefreshRequest = static_cast<QEvent::Type>(QEvent::User + 1);

Qt::WindowFlags FlagsOf(const Form& form)
{
    Qt::WindowFlags flags =
        (form.Sizable ? Qt::Window : Qt::Dialog) | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
        Qt::WindowSystemMenuHint;
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

/// Calls `visit` for every control on a container that is no light one, and for those on it in turn.
template <class Visit> void ForEachWindowed(const Container& container, const Visit& visit)
{
    for (Control* child : container.Children()) {
        if (child->IsLight()) {
            continue;
        }
        visit(*child);
        if (const auto* deeper = dynamic_cast<const Container*>(child)) {
            ForEachWindowed(*deeper, visit);
        }
    }
}

} // namespace

FormWindow::FormWindow(Form& form, Desk& desk) : Surface(form, desk, nullptr)
{
    setWindowFlags(FlagsOf(form));
    if (form.Icon() != nullptr) {
        setWindowIcon(IconOf(*form.Icon()));
    }
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
        CentreOn(screen()->availableGeometry());
    }
    FocusFirst();
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
    FocusFirst();
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
    for (const auto& [control, peer] : peers_) {
        peer->LetGo();
    }
    peers_.clear();
    painted_.clear();
    frozen_ = nullptr;
    LetGo();
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
    }
    return Surface::event(event);
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
    if (TheForm() == nullptr || !isVisible()) {
        return;
    }
    Dirt dirt;
    for (Control* control : TheForm()->TakeChanges()) {
        RefreshControl(*control, dirt);
    }
    for (const auto& [widget, region] : dirt) {
        widget->update(region);
    }
    KeepTabOrder();
}

void FormWindow::RefreshEverything()
{
    TheForm()->TakeChanges();
    RefreshOwnLook();
    RefreshTree(*TheForm());
    KeepTabOrder();
}

void FormWindow::RefreshOwnLook()
{
    const QString title = ToText(TheForm()->Caption());
    if (windowTitle() != title) {
        setWindowTitle(title);
    }
    // The toolkit's own widgets mix their shades from these two.
    const QPalette colours(ToQColor(ButtonFace), ToQColor(TheForm()->BackColor()));
    if (palette().color(QPalette::Window) != colours.color(QPalette::Window)) {
        setPalette(colours);
    }
    RefreshContents();
}

void FormWindow::RefreshControl(Control& control, Dirt& dirt)
{
    if (&control == TheForm()) {
        RefreshOwnLook();
    } else if (control.IsLight()) {
        RefreshLight(control, dirt);
    } else if (!IsFrozen(control)) {
        if (Peer* known = PeerOf(control)) {
            known->Refresh();
        } else {
            EnsurePeer(control);
        }
        KeepOrder(*control.Parent());
    }
}

QRect FormWindow::AreaOf(const Control& light) const
{
    if (!light.Visible()) {
        return {};
    }
    const double ratio = devicePixelRatioF();
    const QRect device = RoundedRect(light.Left(), light.Top(), light.Width(), light.Height(),
                                     PixelsPerTwip * ratio);
    const bool isWhole = ratio == std::floor(ratio);
    const int slack = isWhole ? 0 : 1;
    const int left = static_cast<int>(std::floor(device.left() / ratio)) - slack;
    const int top = static_cast<int>(std::floor(device.top() / ratio)) - slack;
    const int right = static_cast<int>(std::ceil((device.left() + device.width()) / ratio)) + slack;
    const int bottom = static_cast<int>(std::ceil((device.top() + device.height()) / ratio)) + slack;
    return {left, top, right - left, bottom - top};
}

void FormWindow::RefreshLight(const Control& light, Dirt& dirt)
{
    const Peer* const around = PeerOf(*light.Parent());
    if (around == nullptr) {
        return;
    }
    QRect& painted = painted_[&light];
    const QRect now = AreaOf(light);
    QWidget* const widget = &around->Widget();
    auto place = std::ranges::find(dirt, widget, &Dirt::value_type::first);
    if (place == dirt.end()) {
        place = dirt.insert(dirt.end(), {widget, QRegion()});
    }
    if (painted.intersects(now)) {
        place->second += painted | now;
    } else {
        place->second += painted;
        place->second += now;
    }
    painted = now;
}

/// Every control on the container, without a look at what has changed.
void FormWindow::RefreshTree(Container& container)
{
    for (Control* child : container.Children()) {
        if (child->IsLight()) {
            painted_[child] = AreaOf(*child);
            continue;
        }
        if (IsFrozen(*child)) {
            continue;
        }
        Peer* const known = PeerOf(*child);
        if (known == nullptr) {
            EnsurePeer(*child);
            continue;
        }
        known->Refresh();
        if (auto* deeper = dynamic_cast<Container*>(child)) {
            RefreshTree(*deeper);
        }
    }
    KeepOrder(container);
}

bool FormWindow::IsFrozen(const Control& control) const
{
    if (frozen_ == nullptr) {
        return false;
    }
    const Control* around = &control;
    while (around != nullptr && around != frozen_) {
        around = around->Parent();
    }
    return around != nullptr;
}

void FormWindow::Freeze(const Control* surface)
{
    Peer* const thawed = frozen_ == nullptr ? nullptr : PeerOf(*frozen_);
    frozen_ = surface;
    if (isVisible()) {
        RefreshTree(*TheForm());
    }
    if (thawed != nullptr) {
        thawed->Widget().setUpdatesEnabled(true);
    }
    if (Peer* frozen = surface == nullptr ? nullptr : PeerOf(*surface)) {
        frozen->Widget().setUpdatesEnabled(false);
    }
}

// --- widgets ---

Peer* FormWindow::PeerOf(const Control& control) const
{
    if (&control == TheForm()) {
        return const_cast<FormWindow*>(this);
    }
    const auto place = peers_.find(&control);
    return place == peers_.end() ? nullptr : place->second;
}

/// Makes the widget of a control and those of the controls on it, if it is to be seen and its container
/// has one. None if not yet.
Peer* FormWindow::EnsurePeer(Control& control)
{
    if (Peer* known = PeerOf(control)) {
        return known;
    }
    const Peer* const around = control.Parent() == nullptr ? nullptr : PeerOf(*control.Parent());
    if (around == nullptr || !control.Visible()) {
        return nullptr;
    }
    Peer* const made = MakePeer(control, around->Widget(), TheDesk());
    peers_.emplace(&control, made);
    const bool takesFocus = TheForm()->TakesKeys && control.TakesFocus();
    made->Widget().setFocusPolicy(takesFocus ? Qt::StrongFocus : Qt::NoFocus);
    if (auto* container = dynamic_cast<Container*>(&control)) {
        RefreshTree(*container);
    }
    made->Refresh();
    widgetsWereAdded_ = true;
    return made;
}

/// The toolkit stacks widgets in the order of its own list; brings that to the order of the controls.
void FormWindow::KeepOrder(const Container& container)
{
    const Peer* const around = PeerOf(container);
    if (around == nullptr) {
        return;
    }
    std::vector<QWidget*> wanted;
    for (const Control* child : container.Children()) {
        if (const Peer* peer = child->IsLight() ? nullptr : PeerOf(*child)) {
            wanted.push_back(&peer->Widget());
        }
    }
    const auto& stacked = around->Widget().children();
    const auto standing = [&](QWidget* widget) { return stacked.indexOf(widget); };
    if (!std::ranges::is_sorted(wanted, {}, standing)) {
        for (QWidget* widget : wanted) {
            widget->raise();
        }
    }
}

void FormWindow::KeepTabOrder()
{
    if (!std::exchange(widgetsWereAdded_, false) || !TheForm()->TakesKeys) {
        return;
    }
    QWidget* before = nullptr;
    ForEachWindowed(*TheForm(), [&](const Control& control) {
        const Peer* const peer = control.TakesFocus() ? PeerOf(control) : nullptr;
        if (peer == nullptr) {
            return;
        }
        if (before != nullptr) {
            setTabOrder(before, &peer->Widget());
        }
        before = &peer->Widget();
    });
}

void FormWindow::FocusFirst()
{
    if (!TheForm()->TakesKeys) {
        return;
    }
    QWidget* first = nullptr;
    ForEachWindowed(*TheForm(), [&](const Control& control) {
        const Peer* const peer = control.TakesFocus() && control.Enabled() ? PeerOf(control) : nullptr;
        if (first == nullptr && peer != nullptr && peer->Widget().isVisibleTo(this)) {
            first = &peer->Widget();
        }
    });
    if (first != nullptr) {
        first->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace tessarine
