#include "desktop/painter.h"

#include "desktop/colours.h"
#include "desktop/pixels.h"
#include "runtime/contrast.h"

#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tessarine
{
namespace
{

/// In logical pixels: one more for each width of a designed card, so that a large card has the looks of
/// a small one. What is narrower than two of them has a thin line.
double BorderOf(const Label& label)
{
    constexpr Twips widthPerLine = 405;
    return std::max(1.0, std::floor(label.Width() / widthPerLine));
}

/// The largest square in the middle: a picture is never drawn out of its shape.
QRect SquareIn(const QRect& rect)
{
    const int side = std::min(rect.width(), rect.height());
    return {rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side, side};
}

bool HidesWhatLiesBehind(const Control& light)
{
    return light.Kind() == ControlKind::Label && static_cast<const Label&>(light).IsOpaque();
}

QRegion InDevicePixels(const QRegion& region, double ratio, const QRect& all)
{
    // At a fractional scale the widget's own corner was rounded too, by less than a pixel.
    const int slack = ratio == std::floor(ratio) ? 0 : 1;
    QRegion scaled;
    for (const QRect& rect : region) {
        const int left = static_cast<int>(std::floor(rect.left() * ratio)) - slack;
        const int top = static_cast<int>(std::floor(rect.top() * ratio)) - slack;
        const int right = static_cast<int>(std::ceil((rect.left() + rect.width()) * ratio)) + slack;
        const int bottom = static_cast<int>(std::ceil((rect.top() + rect.height()) * ratio)) + slack;
        scaled += QRect(left, top, right - left, bottom - top) & all;
    }
    return scaled;
}

} // namespace

Painter::Painter(QWidget& widget, const QRegion& region, Typesetter& typesetter)
    : own_(std::in_place, &widget), painter_(*own_), typesetter_(typesetter), widget_(&widget)
{
    Begin(widget.rect());
    dirty_ = InDevicePixels(region, ratio_, all_);
}

Painter::Painter(QPainter& painter, const QRect& area, Typesetter& typesetter)
    : painter_(painter), typesetter_(typesetter)
{
    painter_.save();
    Begin(area);
    dirty_ = all_;
}

Painter::~Painter()
{
    if (!own_) {
        painter_.restore();
    }
}

void Painter::Begin(const QRect& area)
{
    const QTransform toDevice = painter_.deviceTransform();
    const QTransform device = painter_.worldTransform().inverted() * toDevice;
    ratio_ = toDevice.m11();
    scale_ = ratio_ * PixelsPerTwip;
    const QRectF exact = toDevice.mapRect(QRectF(area));
    const QPoint corner(NearestPixel(exact.x()), NearestPixel(exact.y()));
    all_ =
        QRect(0, 0, NearestPixel(exact.right()) - corner.x(), NearestPixel(exact.bottom()) - corner.y());
    corner_ = exact.topLeft() - corner;
    painter_.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * device.inverted());
}

QRect Painter::RectOf(const Control& control) const
{
    return RoundedRect(control.Left(), control.Top(), control.Width(), control.Height(), scale_);
}

// A line is as thick as a logical pixel and fills exactly the one in which it lies.
int Painter::LineStart(Twips position) const
{
    return NearestPixel(std::floor(position * PixelsPerTwip) * ratio_);
}

int Painter::LineEnd(Twips position) const
{
    return NearestPixel((std::floor(position * PixelsPerTwip) + 1) * ratio_);
}

int Painter::Border() const
{
    return std::max(1, NearestPixel(ratio_));
}

void Painter::PaintChildren(const Container& container, std::optional<QColor> ground)
{
    QRegion open = dirty_;
    std::vector<const Control*> seen;
    const auto& children = container.Children();
    for (auto child = children.rbegin(); child != children.rend() && !open.isEmpty(); ++child) {
        const Control& control = **child;
        if (!control.IsLight() || !control.Visible()) {
            continue;
        }
        const QRect rect = RectOf(control);
        if (!open.intersects(rect)) {
            continue;
        }
        seen.push_back(&control);
        if (HidesWhatLiesBehind(control)) {
            open -= rect;
        }
    }
    if (ground) {
        for (const QRect& rect : open) {
            painter_.fillRect(rect, *ground);
        }
    }
    for (auto control = seen.rbegin(); control != seen.rend(); ++control) {
        if ((*control)->Kind() == ControlKind::Label) {
            PaintLabel(static_cast<const Label&>(**control));
        } else if (const Picture* picture = static_cast<const Image&>(**control).Shown()) {
            PaintPicture(painter_, *picture, SquareIn(RectOf(**control)));
        }
    }
}

void Painter::FillFrame(const QRect& rect, int thickness, const QColor& colour)
{
    const int width = rect.width();
    const int inner = std::max(0, rect.height() - 2 * thickness);
    painter_.fillRect(rect.left(), rect.top(), width, thickness, colour);
    painter_.fillRect(rect.left(), rect.top() + thickness, thickness, inner, colour);
    painter_.fillRect(rect.left() + width - thickness, rect.top() + thickness, thickness, inner, colour);
    painter_.fillRect(rect.left(), rect.top() + rect.height() - thickness, width, thickness, colour);
}

/// Paints the border and returns its thickness in pixels.
int Painter::FrameLabel(const Label& label, const QRect& rect)
{
    const int thickness = std::max(1, NearestPixel(BorderOf(label) * ratio_));
    const Colour area = label.BackColor();
    const Colour around = label.Parent()->BackColor();
    if (!label.IsSunken()) {
        FillFrame(rect, thickness, EdgeOf(area, around));
        return thickness;
    }
    FillFrame(rect, thickness, EdgeOf(area, around, Edge::Lit));
    const QColor dark = EdgeOf(area, around, Edge::Shaded);
    painter_.fillRect(rect.left(), rect.top(), rect.width() - thickness, thickness, dark);
    painter_.fillRect(rect.left(), rect.top(), thickness, rect.height() - thickness, dark);
    return thickness;
}

void Painter::PaintLabel(const Label& label)
{
    QRect rect = RectOf(label);
    const QColor ground = ToQColor(label.BackColor());
    if (label.HasBorder()) {
        const int border = FrameLabel(label, rect);
        rect.adjust(border, border, -border, -border);
    }
    if (label.IsOpaque()) {
        painter_.fillRect(rect, ground);
    }
    if (!label.Caption().empty()) {
        PaintText(label, rect);
    }
}

void Painter::PaintText(const Label& label, const QRect& inside)
{
    const Control& ground = label.IsOpaque() ? static_cast<const Control&>(label) : *label.Parent();
    const QColor colour = ToQColor(TextColour(ground.BackColor(), label.ForeColor()));
    const std::vector<std::string> lines = LinesOf(label.Caption());
    double top = 0;
    for (const std::string& line : lines) {
        const Ink ink = typesetter_.Draw(line, label.Font(), colour, ratio_);
        const bool centred = label.Align() == Alignment::Centre;
        const int indent = centred ? NearestPixel((inside.width() - ink.advance) / 2.0) : 0;
        QPoint pen = inside.topLeft() + QPoint(indent, NearestPixel(top) + ink.ascent);
        top += ink.lineHeight;
        if (lines.size() == 1) {
            // A line higher than the label moves up until all that is seen of it is inside.
            const int below = pen.y() + ink.offset.y() + ink.image.height() - inside.bottom() - 1;
            const int above = pen.y() + ink.offset.y() - inside.top();
            pen.ry() -= std::clamp(below, 0, std::max(0, above));
        }
        PaintInk(ink, pen, inside);
    }
}

void Painter::PaintInk(const Ink& ink, QPoint pen, const QRect& within)
{
    if (ink.image.isNull()) {
        return;
    }
    const QPoint corner = pen + ink.offset;
    const QRect shown = QRect(corner, ink.image.size()) & within;
    if (!shown.isEmpty()) {
        painter_.drawImage(shown.topLeft(), ink.image, QRect(shown.topLeft() - corner, shown.size()));
    }
}

void Painter::PaintDrawing(const UserControl& control)
{
    const Point place = control.PlaceOnForm();
    place_ = QPointF(place.x, place.y) * PixelsPerTwip;
    PaintCanvas(control.Drawing());
}

void Painter::PaintCanvas(const Canvas& canvas)
{
    for (const QRect& rect : dirty_) {
        painter_.fillRect(rect, ToQColor(canvas.Background()));
    }
    for (const Canvas::Stroke& stroke : canvas.Strokes()) {
        std::visit([this](const auto& kind) { Paint(kind); }, stroke);
    }
}

void Painter::Fill(const QColor& colour)
{
    painter_.fillRect(all_, colour);
}

void Painter::PaintBorder(const QColor& colour)
{
    FillFrame(all_, Border(), colour);
}

void Painter::PaintFocus(const QColor& colour)
{
    const int distance = Border();
    FillFrame(all_.adjusted(distance, distance, -distance, -distance), Border(), colour);
}

void Painter::PaintButtonFocus(const QColor& colour)
{
    const int distance = 2 * Border() + Border() / 2;
    FillFrame(all_.adjusted(distance, distance, -distance, -distance), Border(), colour);
}

void Painter::PaintGroup(const Frame& group)
{
    constexpr int indent = 8; // logical pixels, as the next
    constexpr int gap = 2;
    const Colour ground = group.BackColor();
    const QColor text = ToQColor(TextColour(ground, group.ForeColor()));
    const Ink ink = typesetter_.Draw(group.Caption(), group.Font(), text, ratio_);
    const int line = NearestPixel(ink.lineHeight / 2);
    FillFrame(all_.adjusted(0, line, 0, 0), Border(), LineOn(ground));
    const int left = NearestPixel(indent * ratio_);
    const int around = NearestPixel(gap * ratio_);
    painter_.fillRect(left - around, line, ink.advance + 2 * around, Border(), ToQColor(ground));
    PaintInk(ink, {left, ink.ascent}, all_);
}

void Painter::Paint(const Canvas::Line& line)
{
    const auto [left, right] = std::minmax(line.from.x, line.to.x);
    const auto [top, bottom] = std::minmax(line.from.y, line.to.y);
    const QRect rect(QPoint(LineStart(left), LineStart(top)),
                     QPoint(LineEnd(right) - 1, LineEnd(bottom) - 1));
    painter_.fillRect(rect, ToQColor(line.colour));
}

/// A place of the widget's window, in logical pixels, and the same place of the form are one.
void Painter::Paint(const Canvas::Shading& shading)
{
    const QPointF origin =
        corner_ - (QPointF(widget_->mapTo(widget_->window(), QPoint())) - place_) * ratio_;
    for (const QRect& rect : dirty_) {
        QImage image(rect.size(), QImage::Format_RGB32);
        for (int y = 0; y < rect.height(); ++y) {
            for (int x = 0; x < rect.width(); ++x) {
                const QPointF pixel = rect.topLeft() + QPoint(x, y) - origin;
                image.setPixelColor(
                    x, y, ToQColor(shading.colourAt({pixel.x() / scale_, pixel.y() / scale_})));
            }
        }
        painter_.drawImage(rect.topLeft(), image);
    }
}

void Painter::Paint(const Canvas::Text& text)
{
    double top = text.upperLeft.y * scale_;
    const int left = NearestPixel(text.upperLeft.x * scale_);
    for (const std::string& line : LinesOf(text.text)) {
        const Ink ink = typesetter_.Draw(line, text.font, ToQColor(text.colour), ratio_);
        PaintInk(ink, {left, NearestPixel(top) + ink.ascent}, all_);
        top += ink.lineHeight;
    }
}

void Painter::Paint(const Canvas::Drawing& drawing)
{
    const double side = drawing.picture->pixels * ratio_;
    const QPointF corner(NearestPixel(drawing.upperLeft.x * scale_),
                         NearestPixel(drawing.upperLeft.y * scale_));
    PaintPicture(painter_, *drawing.picture, QRectF(corner, QSizeF(side, side)));
}

} // namespace tessarine
