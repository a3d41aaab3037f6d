// The window of a form.
#pragma once

#include "desktop/size_talk.h"
#include "desktop/surface.h"

#include <QEventLoop>
#include <QRegion>

#include <unordered_map>
#include <utility>
#include <vector>

namespace tessarine
{

/// One form on the screen. Widgets of its controls are made when they are first to be seen.
class FormWindow final : public Surface
{
public:
    FormWindow(Form& form, Desk& desk);

    /// Shows the window, or brings it to the front.
    void Open();
    /// Shows the window before its owner (none: in the middle of the screen) and handles events until
    /// it is shut. The window may be gone by then.
    void RunBefore(FormWindow* owner);
    void Shut();
    /// From now on nothing reaches the form, nor any control of it.
    void LetGoOfForm();

    /// Asks for another client area, in twips, and returns the one that the window has.
    Size Fit(Size clientArea);
    /// Brings the window to what the form says, in the next round of events.
    void RefreshSoon();
    /// Nothing of this control is drawn until the next call; none thaws.
    void Freeze(const Control* surface);

    void Refresh() override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Areas to be painted, by widget.
    using Dirt = std::vector<std::pair<QWidget*, QRegion>>;

    Form* TheForm() const { return static_cast<Form*>(TheControl()); }
    bool HoldsItsSize() const;
    bool IsFrozen(const Control& control) const;

    void RefreshOwnLook();
    void RefreshEverything();
    void RefreshControl(Control& control, Dirt& dirt);
    void RefreshLight(const Control& light, Dirt& dirt);
    void RefreshTree(Container& container);
    QRect AreaOf(const Control& light) const;

    Peer* PeerOf(const Control& control) const;
    Peer* EnsurePeer(Control& control);
    void KeepOrder(const Container& container);
    void KeepTabOrder();
    void FocusFirst();

    void CentreOn(const QRect& area);

    std::unordered_map<const Control*, Peer*> peers_;
    /// Where the light controls were painted last, in logical pixels of their container; empty for a
    /// hidden one.
    std::unordered_map<const Control*, QRect> painted_;
    const Control* frozen_ = nullptr;
    QEventLoop* loop_ = nullptr;
    QPointer<FormWindow> owner_;
    SizeTalk sizes_;
    bool fitting_ = false;
    bool placed_ = false;
    bool widgetsWereAdded_ = false;
};

} // namespace tessarine
