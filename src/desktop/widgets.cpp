#include "desktop/widgets.h"

#include "desktop/colours.h"
#include "desktop/painter.h"
#include "desktop/surface.h"
#include "desktop/text.h"
#include "runtime/contrast.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <utility>

namespace tessarine
{
namespace
{

/// Text on a button is plain text: no letter of it is a shortcut.
QString Caption(const std::string& caption)
{
    return ToText(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

class FrameWidget final : public QGroupBox, public NativePeer
{
public:
    FrameWidget(Frame& frame, QWidget& parent, Desk& desk)
        : QGroupBox(&parent), NativePeer(*this, frame, desk)
    {
        setAutoFillBackground(true);
    }

protected:
    void RefreshValue() override
    {
        const QString caption = Caption(static_cast<Frame*>(TheControl())->Caption());
        if (title() != caption) {
            setTitle(caption);
        }
    }
    void paintEvent(QPaintEvent* event) override
    {
        if (TheControl() != nullptr) {
            const auto& frame = *static_cast<Frame*>(TheControl());
            Painter painter(*this, event->region(), TheDesk().typesetter);
            painter.PaintGroup(frame);
            painter.PaintChildren(frame, std::nullopt);
        }
    }
    // The mouse is the form's, the release as well as the press: the toolkit's box keeps it for itself.
    void mousePressEvent(QMouseEvent* event) override { event->ignore(); }
    void mouseMoveEvent(QMouseEvent* event) override { event->ignore(); }
    void mouseReleaseEvent(QMouseEvent* event) override { event->ignore(); }
};

/// The number of another mouse button than the left one, released over the widget; 0 if it is not
/// that. The toolkit hears the left one alone.
int OtherButtonOver(const QWidget& widget, const QMouseEvent& event)
{
    const bool isOther = event.button() != Qt::LeftButton;
    return isOther && widget.rect().contains(event.position().toPoint()) ? ButtonNumber(event.button())
                                                                         : 0;
}

class PushButtonWidget final : public QPushButton, public NativePeer
{
public:
    PushButtonWidget(PushButton& button, QWidget& parent, Desk& desk)
        : QPushButton(&parent), NativePeer(*this, button, desk)
    {
        setAutoDefault(true); // Enter presses it when it has the keyboard
        QObject::connect(this, &QPushButton::clicked, this, [this] { Released(LeftButton); });
    }

protected:
    void RefreshValue() override
    {
        const QString caption = Caption(static_cast<PushButton*>(TheControl())->Caption());
        if (text() != caption) {
            setText(caption);
        }
    }
    void Mix(QPalette& palette) const override
    {
        palette.setColor(QPalette::Window, ToQColor(TheControl()->Parent()->BackColor()));
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        QPushButton::mousePressEvent(event);
        event->accept();
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (const int button = OtherButtonOver(*this, *event); button != 0) {
            Released(button);
        } else {
            QPushButton::mouseReleaseEvent(event);
        }
    }

private:
    void Released(int button)
    {
        UserDoes([this, button] { static_cast<PushButton*>(TheControl())->UserReleases(button); });
    }
};

/// An option button or a check box. The widget never turns itself: the control does, and the widget
/// follows.
template <class Button, class Of, void (Of::*Work)(int), QStyle::SubElement Contents>
class TurnedByControl final : public Button, public NativePeer
{
public:
    TurnedByControl(Of& control, QWidget& parent, Desk& desk)
        : Button(&parent), NativePeer(*this, control, desk)
    {
        this->setAutoFillBackground(true);
        this->setAutoExclusive(false); // groups are the form's matter
        QObject::connect(this, &QAbstractButton::clicked, this, [this] { Released(LeftButton); });
    }

protected:
    void RefreshValue() override
    {
        const auto& control = *static_cast<Of*>(TheControl());
        const QSignalBlocker quiet(this);
        const QString caption = Caption(control.Caption());
        if (this->text() != caption) {
            this->setText(caption);
        }
        this->setChecked(control.Value());
    }
    void Mix(QPalette& palette) const override
    {
        // The mark is dark on white, whatever stands around it.
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Text, Qt::black);
    }
    void initStyleOption(QStyleOptionButton* option) const override
    {
        Button::initStyleOption(option);
        option->state &= ~QStyle::State_HasFocus; // its wash would lie over the text
    }
    void paintEvent(QPaintEvent* event) override
    {
        Button::paintEvent(event);
        if (this->hasFocus()) {
            QStyleOptionButton option;
            initStyleOption(&option);
            const QRect words = this->style()->subElementRect(Contents, &option, this);
            QPainter painter(this);
            Painter(painter, words.adjusted(-4, 0, 0, 0), TheDesk().typesetter)
                .PaintFocus(this->palette().color(QPalette::WindowText));
        }
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (const int button = OtherButtonOver(*this, *event); button != 0) {
            Released(button);
        } else {
            Button::mouseReleaseEvent(event);
        }
    }
    void nextCheckState() override {}
    bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }

private:
    void Released(int button)
    {
        UserDoes([this, button] { (static_cast<Of*>(TheControl())->*Work)(button); });
    }
};

class ScrollBarWidget final : public QScrollBar, public NativePeer
{
public:
    ScrollBarWidget(ScrollBar& bar, QWidget& parent, Desk& desk)
        : QScrollBar(bar.Runs() == ScrollBar::Direction::Down ? Qt::Vertical : Qt::Horizontal, &parent),
          NativePeer(*this, bar, desk)
    {
        setTracking(false); // a thumb on its way says nothing
        setContextMenuPolicy(Qt::NoContextMenu);
        QObject::connect(this, &QScrollBar::valueChanged, this, [this](int value) {
            UserDoes([this, value] { Bar().UserSets(Turned(value)); });
        });
    }

protected:
    void RefreshValue() override
    {
        const QSignalBlocker quiet(this);
        setRange(std::min(Bar().Min(), Bar().Max()), std::max(Bar().Min(), Bar().Max()));
        setSingleStep(Bar().SmallChange());
        setPageStep(Bar().LargeChange());
        if (!isSliderDown()) {
            setValue(Turned(Bar().Value()));
        }
    }

private:
    ScrollBar& Bar() const { return *static_cast<ScrollBar*>(TheControl()); }
    /// The toolkit has the smaller number at the top, always.
    int Turned(int value) const
    {
        return Bar().Min() > Bar().Max() ? Bar().Min() + Bar().Max() - value : value;
    }
};

template <class Of> Of& As(Control& control)
{
    return static_cast<Of&>(control);
}

} // namespace

void NativePeer::RefreshContents()
{
    const Control& control = *TheControl();
    QWidget& widget = Widget();
    if (const QFont font = WidgetFont(control.Font()); widget.font() != font) {
        widget.setFont(font);
    }
    const Colour ground = control.BackColor();
    QPalette palette = PaletteOf(ground, TextColour(ground, control.ForeColor()), ground);
    Mix(palette);
    if (widget.palette() != palette) {
        widget.setPalette(palette);
    }
    if (const QString name = ToText(control.AccessibleName()); widget.accessibleName() != name) {
        widget.setAccessibleName(name);
    }
    RefreshValue();
}

Peer* MakePeer(Control& control, QWidget& parent, Desk& desk)
{
    Peer* made = nullptr;
    switch (control.Kind()) {
    case ControlKind::PictureBox:
    case ControlKind::UserControl:
        return new Surface(As<Container>(control), desk, &parent);
    case ControlKind::Frame:
        return new FrameWidget(As<Frame>(control), parent, desk);
    case ControlKind::PushButton:
        made = new PushButtonWidget(As<PushButton>(control), parent, desk);
        break;
    case ControlKind::OptionButton:
        made =
            new TurnedByControl<QRadioButton, OptionButton, &OptionButton::UserPicks,
                                QStyle::SE_RadioButtonContents>(As<OptionButton>(control), parent, desk);
        break;
    case ControlKind::CheckBox:
        made = new TurnedByControl<QCheckBox, CheckBox, &CheckBox::UserToggles,
                                   QStyle::SE_CheckBoxContents>(As<CheckBox>(control), parent, desk);
        break;
    case ControlKind::ScrollBar:
        made = new ScrollBarWidget(As<ScrollBar>(control), parent, desk);
        break;
    case ControlKind::ListBox:
        made = MakeList(As<ListBox>(control), parent, desk);
        break;
    case ControlKind::TextBox:
        made = MakeTextBox(As<TextBox>(control), parent, desk);
        break;
    case ControlKind::Browser:
        made = MakeBrowser(As<Browser>(control), parent, desk);
        break;
    case ControlKind::Form:
    case ControlKind::Label:
    case ControlKind::Image:
        return nullptr; // no widgets of their own on a form
    }
    // What such a widget has no use for must not reach the surface behind it as well.
    made->Widget().setAttribute(Qt::WA_NoMousePropagation);
    return made;
}

} // namespace tessarine
