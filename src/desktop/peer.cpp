#include "desktop/peer.h"

#include "desktop/pixels.h"
#include "desktop/text.h"

namespace tessarine
{

int ButtonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return LeftButton;
    case Qt::RightButton:
        return RightButton;
    case Qt::MiddleButton:
        return MiddleButton;
    default:
        return 0;
    }
}

void Peer::Refresh()
{
    if (control_ == nullptr) {
        return;
    }
    const QRect place = PixelRect(*control_);
    if (widget_.geometry() != place) {
        widget_.setGeometry(place);
    }
    const QString tip = ToText(control_->ToolTip());
    if (widget_.toolTip() != tip) {
        widget_.setToolTip(tip);
    }
    if (widget_.isEnabledTo(widget_.parentWidget()) != control_->Enabled()) {
        widget_.setEnabled(control_->Enabled());
    }
    RefreshContents();
    if (widget_.isHidden() == control_->Visible()) {
        widget_.setVisible(control_->Visible());
    }
}

Peer* PeerBehind(QObject* object)
{
    return dynamic_cast<Peer*>(object);
}

} // namespace tessarine
