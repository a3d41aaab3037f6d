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

/// Wholly on the screen, as near to the wanted place as can be. What is larger than the screen shows
/// its upper left part.
inline QPoint HeldOn(const QRect& screen, QPoint wanted, QSize outer)
{
    const auto held = [](int place, int size, int first, int length) {
        return std::max(first, std::min(place, first + length - size));
    };
    return {held(wanted.x(), outer.width(), screen.x(), screen.width()),
            held(wanted.y(), outer.height(), screen.y(), screen.height())};
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
