#include "desktop/form_widgets.h"

#include "desktop/accessibility.h"
#include "desktop/pixels.h"
#include "desktop/widgets.h"

#include <algorithm>
#include <cmath>

namespace tessarine
{
namespace
{

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

void FormWidgets::LetGo()
{
    for (const auto& [control, peer] : peers_) {
        peer->LetGo();
    }
}

void FormWidgets::FollowChanges()
{
    Dirt dirt;
    for (Control* control : form_.TakeChanges()) {
        RefreshControl(*control, dirt);
    }
    for (const auto& [widget, region] : dirt) {
        widget->update(region);
        NamesMayDiffer(*widget);
    }
    KeepTabOrder();
}

void FormWidgets::FollowAll()
{
    form_.TakeChanges();
    RefreshTree(form_);
    KeepTabOrder();
}

void FormWidgets::RefreshControl(Control& control, Dirt& dirt)
{
    if (&control == &form_) {
        return; // the window itself
    }
    if (control.IsLight()) {
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

QRect FormWidgets::AreaOf(const Control& light) const
{
    if (!light.Visible()) {
        return {};
    }
    const double ratio = window_.Widget().devicePixelRatioF();
    const QRect device =
        RoundedRect(light.Left(), light.Top(), light.Width(), light.Height(), PixelsPerTwip * ratio);
    const bool isWhole = ratio == std::floor(ratio);
    const int slack = isWhole ? 0 : 1;
    const int left = static_cast<int>(std::floor(device.left() / ratio)) - slack;
    const int top = static_cast<int>(std::floor(device.top() / ratio)) - slack;
    const int right = static_cast<int>(std::ceil((device.left() + device.width()) / ratio)) + slack;
    const int bottom = static_cast<int>(std::ceil((device.top() + device.height()) / ratio)) + slack;
    return {left, top, right - left, bottom - top};
}

void FormWidgets::RefreshLight(const Control& light, Dirt& dirt)
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
void FormWidgets::RefreshTree(Container& container)
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

// --- freezing ---

bool FormWidgets::IsFrozen(const Control& control) const
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

void FormWidgets::Freeze(const Control* surface)
{
    Peer* const thawed = frozen_ == nullptr ? nullptr : PeerOf(*frozen_);
    const bool isSeen = window_.Widget().isVisible();
    if (isSeen) {
        FollowChanges(); // what is painted elsewhere leaves its old place
    }
    frozen_ = surface;
    if (isSeen) {
        RefreshTree(form_);
    }
    if (thawed != nullptr) {
        thawed->Widget().setUpdatesEnabled(true);
    }
    if (Peer* frozen = surface == nullptr ? nullptr : PeerOf(*surface)) {
        frozen->Widget().setUpdatesEnabled(false);
    }
}

// --- widgets ---

Peer* FormWidgets::PeerOf(const Control& control) const
{
    if (&control == &form_) {
        return &window_;
    }
    const auto place = peers_.find(&control);
    return place == peers_.end() ? nullptr : place->second;
}

/// Makes the widget of a control and those of the controls on it, if it is to be seen and its container
/// has one. None if not yet.
Peer* FormWidgets::EnsurePeer(Control& control)
{
    if (Peer* known = PeerOf(control)) {
        return known;
    }
    const Peer* const around = control.Parent() == nullptr ? nullptr : PeerOf(*control.Parent());
    if (around == nullptr || !control.Visible()) {
        return nullptr;
    }
    Peer* const made = MakePeer(control, around->Widget(), desk_);
    peers_.emplace(&control, made);
    const bool takesFocus = form_.TakesKeys && control.TakesFocus();
    made->Widget().setFocusPolicy(takesFocus ? Qt::StrongFocus : Qt::NoFocus);
    if (auto* container = dynamic_cast<Container*>(&control)) {
        RefreshTree(*container);
    }
    made->Refresh();
    widgetsWereAdded_ = true;
    return made;
}

/// The toolkit stacks widgets in the order of its own list; brings that to the order of the controls.
void FormWidgets::KeepOrder(const Container& container)
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

void FormWidgets::KeepTabOrder()
{
    if (!std::exchange(widgetsWereAdded_, false) || !form_.TakesKeys) {
        return;
    }
    QWidget* before = nullptr;
    ForEachWindowed(form_, [&](const Control& control) {
        const Peer* const peer = control.TakesFocus() ? PeerOf(control) : nullptr;
        if (peer == nullptr) {
            return;
        }
        if (before != nullptr) {
            QWidget::setTabOrder(before, &peer->Widget());
        }
        before = &peer->Widget();
    });
}

void FormWidgets::FocusFirst()
{
    if (!form_.TakesKeys) {
        return;
    }
    const Peer* const named = form_.FirstControl == nullptr ? nullptr : PeerOf(*form_.FirstControl);
    QWidget* first = named == nullptr ? nullptr : &named->Widget();
    ForEachWindowed(form_, [&](const Control& control) {
        const Peer* const peer = control.TakesFocus() && control.Enabled() ? PeerOf(control) : nullptr;
        if (first == nullptr && peer != nullptr && peer->Widget().isVisibleTo(&window_.Widget())) {
            first = &peer->Widget();
        }
    });
    if (first != nullptr) {
        first->setFocus(Qt::TabFocusReason); // what Enter would press is to be seen
    }
}

} // namespace tessarine
