#include "desktop/event_waits.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>

namespace tessarine
{

EventWaits::EventWaits()
{
    QCoreApplication::instance()->installEventFilter(this);
}

void EventWaits::WaitForOne()
{
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    const int level = QThread::currentThread()->loopLevel();
    const int depth = ++depth_;
    // Loops that an event has begun, and waits inside this one, sleep on.
    const auto keepAwake = [=, this, before = handled_] {
        if (handled_ != before && depth_ == depth && QThread::currentThread()->loopLevel() == level) {
            dispatcher->wakeUp();
        }
    };
    const auto watch = connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, keepAwake);
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    disconnect(watch);
    --depth_;
}

bool EventWaits::eventFilter(QObject*, QEvent*)
{
    ++handled_;
    return false;
}

} // namespace tessarine
