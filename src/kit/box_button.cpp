#include "kit/box_button.h"

#include "runtime/contrast.h"
#include "runtime/form.h"
#include "runtime/platform.h"

namespace tessarine
{
namespace
{

/// How far the dark edges stand in from the right and the lower side.
constexpr Twips EdgeInset = 20;
/// How far a picture stands left of and above the middle.
constexpr Twips PictureShift = 24;
/// Twips that a hundredth of a millimetre counts for, in whole steps.
constexpr double TwipsPerHundredth = 0.5;

/// A side of the canvas inside the border that a pressed button shows.
Twips InnerSide(const UserControl& control, Twips side)
{
    return control.HasBorder() ? side - 2 * TwipsPerPixel : side;
}

void DrawEdges(Canvas& canvas, Twips width, Twips height)
{
    const Twips right = width - EdgeInset;
    const Twips bottom = height - EdgeInset;
    canvas.DrawLine({0, 0}, {0, height}, White);
    canvas.DrawLine({0, 0}, {width, 0}, White);
    canvas.DrawLine({right, EdgeInset}, {right, bottom}, Black);
    canvas.DrawLine({EdgeInset, bottom}, {right, bottom}, Black);
}

} // namespace

BoxControl::BoxControl()
{
    SetForeColor(ButtonText);
}

void BoxControl::SetCaption(const std::string& caption)
{
    if (Assign(caption_, caption)) {
        Redraw();
    }
}

void BoxControl::SetPicture(const Picture& picture)
{
    if (Assign<const Picture*>(picture_, &picture)) {
        Redraw();
    }
}

void BoxControl::MousePressed(const MouseEvent& event)
{
    SetBorder(true);
    UserControl::MousePressed(event);
}

void BoxControl::MouseReleased(const MouseEvent& event)
{
    SetBorder(false);
    UserControl::MouseReleased(event);
}

void BoxControl::MouseTaken()
{
    SetBorder(false);
    UserControl::MouseTaken();
}

void BoxControl::DrawBox(Canvas& canvas) const
{
    DrawCaption(canvas);
    DrawEdges(canvas, Width(), Height());
    if (picture_ == nullptr) {
        return;
    }
    const Twips side = picture_->HundredthsOfMillimetre() * TwipsPerHundredth;
    canvas.Paint({(InnerSide(*this, Width()) - side) / 2 - PictureShift,
                  (InnerSide(*this, Height()) - side) / 2 - PictureShift},
                 *picture_);
}

void BoxControl::DrawCaption(Canvas& canvas) const
{
    const Form* form = OwnerForm();
    if (caption_.empty() || form == nullptr) {
        return;
    }
    Platform& platform = form->platform();
    // The height of one capital, whatever the caption: captions of a row share one line.
    const Whole width = RoundHalfEven(platform.TextSize(Font(), caption_).width);
    const Whole height = RoundHalfEven(platform.TextSize(Font(), "W").height);
    canvas.Print({(Width() - width) / 2, (InnerSide(*this, Height()) - height) / 2}, caption_, Font(),
                 TextColour(BackColor(), ForeColor()));
}

} // namespace tessarine
