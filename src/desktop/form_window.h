// The window of a form.
#pragma once

#include "desktop/form_widgets.h"
#include "desktop/placing.h"
#include "desktop/size_talk.h"
#include "desktop/surface.h"

#include <QPointer>

#include <functional>

namespace tessarine
{

/// One form on the screen. Widgets of its controls are made when they are first to be seen.
class FormWindow final : public Surface
{
public:
    FormWindow(Form& form, Desk& desk);

    /// Shows the window, or brings it to the front.
    void Open();
    /// Shows the window before its owner (none: in the middle of the screen), modal until it is shut.
    void OpenBefore(FormWindow* owner);
    void Shut();
    /// From now on nothing reaches the form, nor any control of it.
    void LetGoOfForm();
    /// The mouse goes elsewhere, with whatever buttons are down.
    void LoseMouse();
    /// The screen on which a window comes up that belongs to no other.
    static QScreen& HomeScreen();

    /// Asks for another client area, in twips, and returns the one that the window has.
    Size Fit(Size clientArea);
    /// Brings the window to what the form says, in the next round of events.
    void RefreshSoon();
    /// Nothing of this control is drawn until the next call; none thaws.
    void Freeze(const Control* surface) { widgets_.Freeze(surface); }

    void Refresh() override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Form* TheForm() const { return static_cast<Form*>(TheControl()); }
    bool HoldsItsSize() const;
    void TellSize();
    void PlaceBy(const QWidget* other);
    QMargins Frame() const;
    void PutInPlace();
    void LearnFrame();
    void ShowIcon();
    void RefreshOwnLook();
    void RefreshEverything();

    FormWidgets widgets_;
    QPointer<FormWindow> owner_;
    SizeTalk sizes_;
    /// Where the window comes up, by its size with its frame; none before it first did.
    std::function<QPoint(QSize outer)> place_;
    QMargins frame_; ///< that it was placed with
    bool wasPainted_ = false;
    bool wasMinimized_ = false; ///< the toolkit's event of a change does not always know
};

} // namespace tessarine
