// Painting what controls say of themselves, in whole pixels of the device.
#pragma once

#include "desktop/fonts.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <QPainter>
#include <QPixmap>
#include <QRegion>

#include <optional>

namespace tessarine
{

/// Paints on one widget during its paint event. The toolkit counts in logical pixels, which at a scale
/// of 1.25 end between two pixels of the screen; this painter counts in pixels of the device, from the
/// corner of the widget, so that every edge is sharp at every scale.
class Painter
{
public:
    /// `region` is what has to be painted, in logical pixels.
    Painter(QWidget& widget, const QRegion& region, Typesetter& typesetter);
    /// Within an area of a widget that `painter` paints on, in its logical pixels. The painter is as
    /// before when this goes.
    Painter(QPainter& painter, const QRect& area, Typesetter& typesetter);
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;
    ~Painter();

    /// The labels and images of a container, and its ground where none of them covers it: nothing is
    /// painted that another hides. Without a ground, what was painted before shows through.
    void PaintChildren(const Container& container, std::optional<QColor> ground);
    /// What a user control has drawn on itself.
    void PaintDrawing(const UserControl& control);
    void PaintCanvas(const Canvas& canvas);
    void Fill(const QColor& colour);
    /// A thin line all round, just inside the widget.
    void PaintBorder(const QColor& colour);
    /// The mark of the keyboard: a thin line all round, with some of the ground on either side of it.
    void PaintFocus(const QColor& colour);
    /// The same, inside the edges of a button.
    void PaintButtonFocus(const QColor& colour);
    /// The frame of a group with its title written into the upper line.
    void PaintGroup(const Frame& group);

private:
    void Begin(const QRect& area);
    QRect RectOf(const Control& control) const;
    int LineStart(Twips position) const;
    int LineEnd(Twips position) const;
    int Border() const;

    void FillFrame(const QRect& rect, int thickness, const QColor& colour);
    int FrameLabel(const Label& label, const QRect& rect);
    void PaintLabel(const Label& label);
    void PaintText(const Label& label, const QRect& inside);
    void PaintInk(const Ink& ink, QPoint pen, const QRect& within);
    void Paint(const Canvas::Line& line);
    void Paint(const Canvas::Shading& shading);
    void Paint(const Canvas::Text& text);
    void Paint(const Canvas::Drawing& drawing);

    std::optional<QPainter> own_;
    QPainter& painter_;
    Typesetter& typesetter_;
    const QWidget* widget_ = nullptr; ///< none when it paints an area
    double ratio_ = 1;                ///< pixels of the device per logical pixel
    double scale_ = 1;                ///< pixels of the device per twip
    QRect all_;                       ///< the widget, or the area
    QPointF place_;                   ///< of the control on its form, in logical pixels
    QPointF corner_;                  ///< of all that, from that of its first pixel, in pixels
    QRegion dirty_;                   ///< at least what has to be painted
};

/// Draws a picture into a rectangle.
void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& into);

/// A picture as an icon of so many pixels.
QPixmap PictureAsPixmap(const Picture& picture, int pixels);

} // namespace tessarine
