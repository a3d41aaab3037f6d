#include "desktop/accessibility.h"

#include "desktop/pixels.h"
#include "desktop/surface.h"
#include "desktop/text.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QDialog>

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <vector>

namespace tessarine
{
namespace
{

/// The name of a control, and what a tool knows of it: tools keep the names that they have read.
class KnownName
{
public:
    explicit KnownName(const Control& control) : control_(control) {}

    QString Read() const { return *(known_ = ToText(control_.AccessibleName())); }
    /// Tells the tools if they have read another name than the present one.
    void Check(QAccessibleInterface& face) const
    {
        if (const auto before = known_; before && *before != Read()) {
            QAccessibleEvent event(&face, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&event);
        }
    }

private:
    const Control& control_;
    mutable std::optional<QString> known_;
};

/// Has what a tool asked for done in an event of its own: it may open a box, and the tool has its answer
/// at once.
template <class Action> void DoSoon(QWidget& widget, const Action& action)
{
    QMetaObject::invokeMethod(&widget, action, Qt::QueuedConnection);
}

/// A label or an image: nothing that the toolkit knows of, painted on the widget of its container.
class PaintedThing final : public QAccessibleInterface
{
public:
    PaintedThing(const Control& control, QWidget& on) : control_(control), name_(control), on_(&on) {}

    void CheckName()
    {
        if (isValid()) {
            name_.Check(*this);
        }
    }

    bool isValid() const override
    {
        const Peer* const around = PeerBehind(on_);
        return around != nullptr && around->TheControl() != nullptr &&
               control_.Parent() == around->TheControl();
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return on_ ? on_->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(on_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid() ? name_.Read() : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override
    {
        return isValid() ? PixelRect(control_).translated(on_->mapToGlobal(QPoint(0, 0))) : QRect();
    }
    QAccessible::Role role() const override
    {
        return control_.Kind() == ControlKind::Image ? QAccessible::Graphic : QAccessible::StaticText;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || !control_.Visible() || !on_->isVisible();
        return state;
    }

private:
    const Control& control_;
    KnownName name_;
    QPointer<QWidget> on_;
};

QAccessible::Role RoleOf(const Control& control)
{
    switch (control.Kind()) {
    case ControlKind::Form:
        return static_cast<const Form&>(control).Sizable ? QAccessible::Window : QAccessible::Dialog;
    case ControlKind::UserControl:
        return control.TakesFocus() ? QAccessible::Button : QAccessible::Grouping;
    case ControlKind::Frame:
        return QAccessible::Grouping;
    default:
        return QAccessible::Pane;
    }
}

/// A container: its widgets first, then those of its painted controls that are to be seen and have a
/// name.
class PaintedSurface final : public QAccessibleWidget
{
public:
    PaintedSurface(QWidget& widget, Peer& peer)
        : QAccessibleWidget(&widget, RoleOf(*peer.TheControl())), peer_(peer), name_(*peer.TheControl())
    {
    }
    ~PaintedSurface() override
    {
        for (const auto& [control, id] : things_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    int childCount() const override
    {
        return QAccessibleWidget::childCount() + static_cast<int>(Named().size());
    }
    QAccessibleInterface* child(int index) const override
    {
        const int widgets = QAccessibleWidget::childCount();
        if (index < widgets) {
            return QAccessibleWidget::child(index);
        }
        const auto named = Named();
        const auto place = static_cast<std::size_t>(index - widgets);
        return place < named.size() ? ThingOf(*named[place]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto named = Named();
        const auto place = std::ranges::find_if(
            named, [&](const Control* control) { return ThingOf(*control) == child; });
        return place == named.end()
                   ? QAccessibleWidget::indexOfChild(child)
                   : QAccessibleWidget::childCount() + static_cast<int>(place - named.begin());
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        // Widgets stand in front of all that is painted, and the last of either in front of the others.
        const int widgets = QAccessibleWidget::childCount();
        QAccessibleInterface* front = FrontMost(0, widgets, {x, y});
        return front == nullptr ? FrontMost(widgets, childCount(), {x, y}) : front;
    }
    QString text(QAccessible::Text kind) const override
    {
        const Control* const control = peer_.TheControl();
        const bool isName = kind == QAccessible::Name && control != nullptr;
        return isName && control->Kind() != ControlKind::Form ? name_.Read()
                                                              : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = widget()->isWindow() && widget()->isModal();
        return state;
    }
    void CheckNames()
    {
        if (peer_.TheControl() == nullptr) {
            return;
        }
        name_.Check(*this);
        for (const auto& [control, id] : things_) {
            static_cast<PaintedThing*>(QAccessible::accessibleInterface(id))->CheckName();
        }
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (role() == QAccessible::Button) {
            names.prepend(pressAction());
        }
        return names;
    }
    void doAction(const QString& action) override
    {
        if (action != pressAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        DoSoon(*widget(), [&peer = peer_] {
            if (peer.TheControl() != nullptr) {
                peer.TheControl()->UserActivates();
            }
        });
    }

private:
    /// The last that is to be seen at a place of the screen, of some of the children; none if none is.
    QAccessibleInterface* FrontMost(int first, int last, QPoint place) const
    {
        for (int index = last - 1; index >= first; --index) {
            QAccessibleInterface* const thing = child(index);
            if (thing != nullptr && !thing->state().invisible && thing->rect().contains(place)) {
                return thing;
            }
        }
        return nullptr;
    }
    std::vector<const Control*> Named() const
    {
        std::vector<const Control*> named;
        if (const auto* container = static_cast<const Container*>(peer_.TheControl())) {
            std::ranges::copy_if(
                container->Children(), std::back_inserter(named), [](const Control* child) {
                    return child->IsLight() && child->Visible() && !child->AccessibleName().empty();
                });
        }
        return named;
    }
    QAccessibleInterface* ThingOf(const Control& control) const
    {
        auto place = things_.find(&control);
        if (place == things_.end()) {
            auto* const thing = new PaintedThing(control, *widget());
            place = things_.emplace(&control, QAccessible::registerAccessibleInterface(thing)).first;
        }
        return QAccessible::accessibleInterface(place->second);
    }

    Peer& peer_;
    KnownName name_;
    mutable std::unordered_map<const Control*, QAccessible::Id> things_;
};

/// A box of the toolkit.
class Box final : public QAccessibleWidget
{
public:
    explicit Box(QDialog& box) : QAccessibleWidget(&box, QAccessible::Dialog) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = widget()->isModal();
        return state;
    }
};

/// An option button or a check box. It is the control that turns it, so there is no more to it than a
/// click.
class Turned final : public QAccessibleWidget
{
public:
    Turned(QAbstractButton& button, QAccessible::Role role) : QAccessibleWidget(&button, role) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = Button().isChecked();
        return state;
    }
    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override
    {
        if (action != pressAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        DoSoon(Button(), [&button = Button()] { button.click(); });
    }

private:
    QAbstractButton& Button() const { return *static_cast<QAbstractButton*>(widget()); }
};

/// A scroll bar says the value of its control, which may have its larger end at the top.
class ScrollValue final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    ScrollValue(QWidget& widget, Peer& peer)
        : QAccessibleWidget(&widget, QAccessible::ScrollBar), peer_(peer)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        if (peer_.TheControl() == nullptr || (kind != QAccessible::Name && kind != QAccessible::Value)) {
            return QAccessibleWidget::text(kind);
        }
        return kind == QAccessible::Name ? ToText(Bar().AccessibleName())
                                         : QString::number(Bar().Value());
    }
    QVariant currentValue() const override { return Bar().Value(); }
    void setCurrentValue(const QVariant& value) override { Bar().UserSets(value.toInt()); }
    QVariant maximumValue() const override { return std::max(Bar().Min(), Bar().Max()); }
    QVariant minimumValue() const override { return std::min(Bar().Min(), Bar().Max()); }
    QVariant minimumStepSize() const override { return Bar().SmallChange(); }

private:
    ScrollBar& Bar() const { return *static_cast<ScrollBar*>(peer_.TheControl()); }

    Peer& peer_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object)
{
    Peer* const peer = PeerBehind(object);
    if (peer == nullptr || peer->TheControl() == nullptr) {
        auto* const box = qobject_cast<QDialog*>(object);
        return box == nullptr ? nullptr : new Box(*box);
    }
    QWidget& widget = peer->Widget();
    const Control& control = *peer->TheControl();
    switch (control.Kind()) {
    case ControlKind::Form:
    case ControlKind::PictureBox:
    case ControlKind::UserControl:
    case ControlKind::Frame:
        return new PaintedSurface(widget, *peer);
    case ControlKind::ScrollBar:
        return new ScrollValue(widget, *peer);
    case ControlKind::OptionButton:
        return new Turned(static_cast<QAbstractButton&>(widget), QAccessible::RadioButton);
    case ControlKind::CheckBox:
        return new Turned(static_cast<QAbstractButton&>(widget), QAccessible::CheckBox);
    default:
        return nullptr; // the toolkit has one of its own; the widget knows its name
    }
}

} // namespace

void InstallAccessibility()
{
    QAccessible::installFactory(MakeInterface);
}

void NamesMayDiffer(QWidget& widget)
{
    if (!QAccessible::isActive()) {
        return;
    }
    if (auto* const surface =
            dynamic_cast<PaintedSurface*>(QAccessible::queryAccessibleInterface(&widget))) {
        surface->CheckNames();
    }
}

} // namespace tessarine
