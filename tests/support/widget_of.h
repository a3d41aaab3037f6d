// The toolkit's side of a control, for hands that work it.
#pragma once

#include "desktop/desktop_platform.h"
#include "desktop/form_window.h"

namespace tessarine
{

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

} // namespace tessarine
