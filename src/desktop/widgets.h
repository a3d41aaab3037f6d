// The toolkit's own widgets, dressed in the colours of their controls.
#pragma once

#include "desktop/peer.h"
#include "runtime/controls.h"

namespace tessarine
{

/// Makes the widget of a windowed control, hidden or shown with its parent. The widget owns itself as
/// a child of the parent.
Peer* MakePeer(Control& control, QWidget& parent, Desk& desk);

// Called by MakePeer, one for each kind that takes a file of its own.
Peer* MakeList(ListBox& list, QWidget& parent, Desk& desk);
Peer* MakeTextBox(TextBox& box, QWidget& parent, Desk& desk);
Peer* MakeBrowser(Browser& browser, QWidget& parent, Desk& desk);

/// What is common to all of them: font, colours, whether they are enabled.
class NativePeer : public Peer
{
public:
    using Peer::Peer;

protected:
    void RefreshContents() override;
    /// The value of the control, written into the widget.
    virtual void RefreshValue() = 0;
    /// Sets what is special about the colours of this kind.
    virtual void Mix(QPalette& /*palette*/) const {}
};

} // namespace tessarine
