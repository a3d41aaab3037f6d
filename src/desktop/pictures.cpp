// Pictures: shapes on a grid, drawn at any size.
#include "desktop/colours.h"
#include "desktop/painter.h"

#include <QPainterPath>

namespace tessarine
{
namespace
{

QPolygonF CornersOf(const Shape& shape)
{
    QPolygonF corners;
    corners.reserve(static_cast<qsizetype>(shape.points.size()));
    for (const Point& point : shape.points) {
        corners << QPointF(point.x, point.y);
    }
    return corners;
}

QRectF BoxOf(const Shape& shape)
{
    const Point& from = shape.points.front();
    const Point& to = shape.points.back();
    return {QPointF(from.x, from.y), QPointF(to.x, to.y)};
}

QPainterPath PathOf(const Shape& shape)
{
    QPainterPath path;
    switch (shape.kind) {
    case Shape::Kind::Polygon:
        path.addPolygon(CornersOf(shape));
        path.closeSubpath();
        break;
    case Shape::Kind::Polyline:
        path.addPolygon(CornersOf(shape));
        break;
    case Shape::Kind::Ellipse:
        path.addEllipse(BoxOf(shape));
        break;
    case Shape::Kind::Arc:
        path.arcMoveTo(BoxOf(shape), shape.startAngle);
        path.arcTo(BoxOf(shape), shape.startAngle, shape.spanAngle);
        break;
    }
    return path;
}

} // namespace

void PaintPicture(QPainter& painter, const Picture& picture, const QRectF& into)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(into.topLeft());
    painter.scale(into.width() / picture.pixels, into.height() / picture.pixels);
    for (const Shape& shape : picture.shapes) {
        if (shape.points.size() < 2) {
            continue;
        }
        const QPainterPath path = PathOf(shape);
        if (shape.fill) {
            painter.fillPath(path, ToQColor(*shape.fill));
        }
        if (shape.stroke) {
            // Square ends fill the whole cells of the grid in which a line ends.
            painter.strokePath(path, QPen(ToQColor(*shape.stroke), shape.strokeWidth, Qt::SolidLine,
                                          Qt::SquareCap, Qt::MiterJoin));
        }
    }
    painter.restore();
}

QPixmap PictureAsPixmap(const Picture& picture, int pixels)
{
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    PaintPicture(painter, picture, QRectF(0, 0, pixels, pixels));
    return pixmap;
}

} // namespace tessarine
