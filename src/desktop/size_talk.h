// Asking the window system for sizes, and noticing one that gives out sizes itself.
#pragma once

#include <QElapsedTimer>
#include <QSize>

#include <optional>

namespace tessarine
{

/// A tiling window system answers a request for another size by giving the old one back, and would do
/// so forever. After one such answer the window holds its size, and nothing more is asked until it
/// gets a size by other means.
class SizeTalk
{
public:
    /// Whether a window of this size would only get it back again.
    bool IsHeld(QSize now) const { return held_ == now; }
    void Asked(QSize before, QSize wanted)
    {
        before_ = before;
        wanted_ = wanted;
        sinceAsked_.start();
    }
    void Got(QSize size)
    {
        if (size == wanted_) {
            return; // the question stays: the old size may yet come back
        }
        const bool isAnswer = size == before_ && !sinceAsked_.hasExpired(AnswerMilliseconds);
        if (isAnswer) {
            held_ = size;
        } else if (size != held_) {
            held_.reset();
        }
        before_.reset();
    }

private:
    /// What comes later is a person's doing.
    static constexpr qint64 AnswerMilliseconds = 1000;

    std::optional<QSize> before_;
    std::optional<QSize> wanted_;
    std::optional<QSize> held_;
    QElapsedTimer sinceAsked_;
};

} // namespace tessarine
