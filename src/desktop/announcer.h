// What assistive tools say without being asked.
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace tessarine
{

/// A notification that comes up anew with every text, which is what screen readers read aloud.
class Announcer final : private QAccessible::ActivationObserver
{
public:
    Announcer();
    ~Announcer() override;
    Announcer(const Announcer&) = delete;
    Announcer& operator=(const Announcer&) = delete;

    /// Says a text about what is in a window, at once; if nobody listens yet, as soon as somebody does
    /// and unless another text has come by then.
    void Say(QWidget& window, const QString& text);

private:
    class Notice;

    void accessibilityActiveChanged(bool active) override;
    void SayIt();

    QPointer<QWidget> window_;
    QString text_;
    QTimer settling_; ///< runs from a tool's first call until it can hear
    bool heard_ = false;
    QAccessible::Id notice_ = 0;
};

} // namespace tessarine
