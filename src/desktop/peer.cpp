#include "desktop/peer.h"

#include "desktop/pixels.h"
#include "desktop/text.h"

namespace tessarine
{

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
