#include "desktop/announcer.h"

#include <QAccessibleInterface>

namespace tessarine
{
namespace
{

/// A tool that has just come asks for this and that before it is told of anything.
constexpr std::chrono::milliseconds TimeToSettle{1000};

} // namespace

class Announcer::Notice final : public QAccessibleInterface
{
public:
    explicit Notice(const Announcer& announcer) : announcer_(announcer) {}

    bool isValid() const override { return announcer_.window_ != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? announcer_.window_->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(announcer_.window_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? announcer_.text_ : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return isValid() ? announcer_.window_->geometry() : QRect(); }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    const Announcer& announcer_;
};

Announcer::Announcer()
{
    settling_.setSingleShot(true);
    settling_.setInterval(TimeToSettle);
    QObject::connect(&settling_, &QTimer::timeout, &settling_, [this] {
        if (!heard_) {
            SayIt();
        }
    });
    QAccessible::installActivationObserver(this);
    accessibilityActiveChanged(QAccessible::isActive());
}

Announcer::~Announcer()
{
    QAccessible::removeActivationObserver(this);
    if (notice_ != 0) {
        QAccessible::deleteAccessibleInterface(notice_);
    }
}

void Announcer::accessibilityActiveChanged(bool active)
{
    if (active) {
        settling_.start();
    }
}

void Announcer::Say(QWidget& window, const QString& text)
{
    window_ = &window;
    text_ = text;
    heard_ = false;
    if (QAccessible::isActive() && !settling_.isActive()) {
        SayIt();
    }
}

void Announcer::SayIt()
{
    if (window_ == nullptr) {
        return;
    }
    if (notice_ == 0) {
        notice_ = QAccessible::registerAccessibleInterface(new Notice(*this));
    }
    heard_ = true;
    // Tools keep the names that they have read.
    for (const QAccessible::Event what : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
        QAccessibleEvent event(QAccessible::accessibleInterface(notice_), what);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace tessarine
