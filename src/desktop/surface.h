// Widgets that are painted from the objects: forms, picture boxes and user controls.
#pragma once

#include "desktop/peer.h"
#include "runtime/controls.h"

#include <QColor>

namespace tessarine
{

/// Paints a container and its light children, and hands every mouse event on to the form, which knows
/// what stands where.
class Surface : public QWidget, public Peer
{
public:
    Surface(Container& container, Desk& desk, QWidget* parent);

    Container* TheContainer() const { return static_cast<Container*>(TheControl()); }

protected:
    void RefreshContents() override;

    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    const UserControl* AsUserControl() const;
    MouseEvent AsTwips(const QMouseEvent& event) const;
    void NotePointer(const QMouseEvent& event);
    void DropStaleCapture(Form& form, const QMouseEvent& event);

    QColor ground_;
    bool focusByKeyboard_ = true; ///< shown as long as it has the keyboard
};

} // namespace tessarine
