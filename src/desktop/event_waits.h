// Waiting for the next event.
#pragma once

#include <QObject>

namespace tessarine
{

/// Sleeps until an event was handled, whatever sleeps of the toolkit are good for elsewhere: some of its
/// dispatchers hand out what was posted and then sleep all the same, until something else happens.
class EventWaits : public QObject
{
public:
    EventWaits();

    /// Returns when at least one event was handled. One event may wait for others in turn.
    void WaitForOne();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    unsigned handled_ = 0;
    int depth_ = 0;
};

} // namespace tessarine
