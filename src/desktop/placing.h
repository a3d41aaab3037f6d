// Where a window stands. All in logical pixels; a window's frame belongs to it.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <algorithm>

namespace tessarine::placing
{

/// The corner of a window of this size by another, or by the screen itself.
using Rule = QPoint(QSize outer, const QRect& other, const QRect& screen);

/// Wholly on the screen, as near to the wanted place as can be. What is higher than the screen shows its
/// upper part; what is wider, such as a box that tells a very long path, its middle, where its buttons
/// are.
inline QPoint HeldOn(const QRect& screen, QPoint wanted, QSize outer)
{
    const int lastX = screen.x() + screen.width() - outer.width();
    const int lastY = screen.y() + screen.height() - outer.height();
    return {lastX < screen.x() ? (screen.x() + lastX) / 2 : std::clamp(wanted.x(), screen.x(), lastX),
            std::max(screen.y(), std::min(wanted.y(), lastY))};
}

/// In the middle.
inline QPoint Centred(QSize outer, const QRect& other, const QRect& screen)
{
    const QSize around = other.size() - outer;
    return HeldOn(screen, other.topLeft() + QPoint(around.width() / 2, around.height() / 2), outer);
}

/// Where there is room, right before left, so that both can be seen; else in the middle of the other.
inline QPoint Beside(QSize outer, const QRect& other, const QRect& screen)
{
    const int right = other.x() + other.width();
    const int left = other.x() - outer.width();
    if (right + outer.width() <= screen.x() + screen.width()) {
        return HeldOn(screen, {right, other.y()}, outer);
    }
    return left < screen.x() ? Centred(outer, other, screen) : HeldOn(screen, {left, other.y()}, outer);
}

} // namespace tessarine::placing
