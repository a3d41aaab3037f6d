// How long a program of the toolkit takes to its first picture, and how much memory it then holds.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace tessarine::bench
{

/// Of the clock that shows the same to the programs of another system that runs here.
inline double Milliseconds()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

/// Proportional set size of this process, in kilobytes.
inline long Pss()
{
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string word; rollup >> word;) {
        if (word == "Pss:") {
            long kilobytes = 0;
            rollup >> kilobytes;
            return kilobytes;
        }
    }
    return 0;
}

/// An application that prints the milliseconds from its parent's STARTED_AT (of the system clock) to
/// the end of the first round of painting, and, a quiet second later, its memory; then it ends.
class FirstPicture : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        painted_ = painted_ || type == QEvent::Paint;
        const bool result = QApplication::notify(receiver, event);
        // What was painted has gone to the screen when the round that painted is over.
        if (painted_ && !told_ && (type == QEvent::UpdateRequest || type == QEvent::Expose)) {
            Tell();
        }
        return result;
    }

private:
    void Tell()
    {
        told_ = true;
        const char* const startedAt = std::getenv("STARTED_AT");
        const double picture = Milliseconds() - (startedAt == nullptr ? 0 : std::atof(startedAt));
        QTimer::singleShot(1000, this, [picture] {
            std::printf("%.2f %ld\n", picture, Pss());
            std::fflush(stdout);
            std::_Exit(0);
        });
    }

    bool painted_ = false;
    bool told_ = false;
};

} // namespace tessarine::bench
