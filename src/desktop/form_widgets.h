// The widgets of a form.
#pragma once

#include "desktop/peer.h"

#include <QRegion>

#include <unordered_map>
#include <utility>
#include <vector>

namespace tessarine
{

/// Keeps what is on a form's window as the controls of the form are. A widget is made when its control
/// is first to be seen; what is painted without a widget is painted anew where it was and where it is.
class FormWidgets
{
public:
    /// `window` is the form's own peer.
    FormWidgets(Form& form, Peer& window, Desk& desk) : form_(form), window_(window), desk_(desk) {}

    /// What has changed since the last call.
    void FollowChanges();
    /// Everything, without a look at what has changed.
    void FollowAll();
    /// Nothing reaches the controls any more, and no other call may follow.
    void LetGo();

    /// Nothing of this control is drawn until the next call; none thaws.
    void Freeze(const Control* surface);
    /// Gives the keyboard to the first control that takes it.
    void FocusFirst();

private:
    /// Areas to be painted, by widget.
    using Dirt = std::vector<std::pair<QWidget*, QRegion>>;

    void RefreshControl(Control& control, Dirt& dirt);
    void RefreshLight(const Control& light, Dirt& dirt);
    void RefreshTree(Container& container);
    QRect AreaOf(const Control& light) const;
    bool IsFrozen(const Control& control) const;

    Peer* PeerOf(const Control& control) const;
    Peer* EnsurePeer(Control& control);
    void KeepOrder(const Container& container);
    void KeepTabOrder();

    Form& form_;
    Peer& window_;
    Desk& desk_;
    std::unordered_map<const Control*, Peer*> peers_;
    /// Where the light controls were painted last, in logical pixels of their container; empty for a
    /// hidden one.
    std::unordered_map<const Control*, QRect> painted_;
    const Control* frozen_ = nullptr;
    bool widgetsWereAdded_ = false;
};

} // namespace tessarine
