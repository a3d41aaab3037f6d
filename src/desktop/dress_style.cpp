#include "desktop/dress_style.h"

#include "desktop/colours.h"
#include "desktop/painter.h"
#include "desktop/pixels.h"
#include "desktop/text.h"
#include "runtime/button_look.h"
#include "runtime/contrast.h"

#include <QAbstractScrollArea>
#include <QDialogButtonBox>

#include <algorithm>

namespace tessarine
{
namespace
{

Colour ColourOf(const QStyleOption& option, QPalette::ColorRole role)
{
    return ToColour(option.palette.color(role));
}

Font FontOf(const QFont& font)
{
    return {.name = ToBytes(font.family()),
            .size = font.pointSizeF(),
            .bold = font.bold(),
            .italic = font.italic()};
}

/// A caption without the signs for shortcuts: "&" before a letter, "&&" for one of its own.
QString Plain(const QString& caption)
{
    QString plain;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        at += caption[at] == u'&' && at + 1 < caption.size() ? 1 : 0;
        plain += caption[at];
    }
    return plain;
}

/// A triangle in the middle of an area.
void PaintArrow(QPainter& painter, const QRect& area, Qt::ArrowType way, const QColor& colour)
{
    const double size = std::min({area.width(), area.height(), 14}) / 4.0;
    QPolygonF corners({{-size, -size / 2}, {size, -size / 2}, {0, size / 2}}); // downwards
    const int turns = way == Qt::UpArrow ? 2 : way == Qt::LeftArrow ? 1 : way == Qt::RightArrow ? 3 : 0;
    corners = QTransform().rotate(90.0 * turns).map(corners);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(corners.translated(QRectF(area).center()));
    painter.restore();
}

/// The mark of an option or a check box that is set, and the little field that it stands in.
void PaintIndicator(QPainter& painter, const QStyleOption& option, bool isRound)
{
    const QColor mark = option.palette.color(QPalette::Text);
    const double side = std::min(option.rect.width(), option.rect.height()) - 1;
    const QRectF field(option.rect.center() + QPointF(1 - side, 1 - side) / 2, QSizeF(side, side));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(LineOn(ColourOf(option, QPalette::Window)));
    painter.setBrush(option.palette.color((option.state & QStyle::State_Sunken) != 0 ? QPalette::Midlight
                                                                                     : QPalette::Base));
    if (isRound) {
        painter.drawEllipse(field);
    } else {
        painter.drawRect(field);
    }
    if ((option.state & QStyle::State_On) != 0 && isRound) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        const double gap = side / 4;
        painter.drawEllipse(field.adjusted(gap, gap, -gap, -gap));
    } else if ((option.state & QStyle::State_On) != 0) {
        painter.setPen(QPen(mark, 2));
        painter.drawPolyline(QPolygonF({field.topLeft() + QPointF(0.2, 0.5) * side,
                                        field.topLeft() + QPointF(0.42, 0.74) * side,
                                        field.topLeft() + QPointF(0.8, 0.26) * side}));
    }
    painter.restore();
}

} // namespace

DressStyle::DressStyle() : QProxyStyle(QStringLiteral("fusion")) {}

/// A button of any kind in the colours of the option, held down and with the mark of the keyboard if it
/// says so.
void DressStyle::PaintBox(QPainter& painter, const QStyleOption& option, const QRect& area,
                          const QString& caption, const QFont& font) const
{
    const Colour face = ColourOf(option, QPalette::Button);
    const Colour text = ColourOf(option, QPalette::ButtonText);
    const bool isDown = (option.state & (State_Sunken | State_On)) != 0;
    Canvas canvas;
    DrawBox(canvas,
            {.size = ToTwips(area.size()),
             .face = face,
             .text = text,
             .caption = ToBytes(caption),
             .font = FontOf(font)},
            &TextSize);
    Painter box(painter, area, typesetter_);
    box.PaintCanvas(canvas);
    if (isDown) {
        box.PaintBorder(EdgeOf(face, ColourOf(option, QPalette::Window)));
    }
    if ((option.state & State_HasFocus) != 0) {
        box.PaintButtonFocus(ToQColor(text));
    }
}

/// Of what can be written in or scrolled: a line, and inside it the mark of the keyboard.
void DressStyle::PaintFrame(QPainter& painter, const QStyleOption& option) const
{
    const QColor line = LineOn(ColourOf(option, QPalette::Window));
    Painter(painter, option.rect, typesetter_).PaintBorder(line);
    if ((option.state & State_HasFocus) != 0) {
        PaintMark(painter, option.rect.adjusted(1, 1, -1, -1),
                  option.palette.color(QPalette::WindowText));
    }
}

void DressStyle::PaintMark(QPainter& painter, const QRect& area, const QColor& text) const
{
    Painter(painter, area, typesetter_).PaintFocus(text);
}

void DressStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    switch (element) {
    case PE_Frame:
        return PaintFrame(*painter, *option);
    case PE_PanelLineEdit:
        painter->fillRect(option->rect, option->palette.brush(QPalette::Base));
        if (const auto* edit = qstyleoption_cast<const QStyleOptionFrame*>(option);
            edit != nullptr && edit->lineWidth > 0) {
            PaintFrame(*painter, *option);
        }
        return;
    case PE_FrameFocusRect:
        // A chosen row shows without it, and its list wears the mark.
        if (const auto* mark = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
            mark != nullptr && (option->state & State_Selected) == 0) {
            PaintMark(*painter, mark->rect, ToQColor(ReadableOn(ToColour(mark->backgroundColor))));
        }
        return;
    case PE_IndicatorRadioButton:
    case PE_IndicatorCheckBox:
        return PaintIndicator(*painter, *option, element == PE_IndicatorRadioButton);
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void DressStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        button != nullptr && element == CE_PushButton) {
        PaintBox(*painter, *option, option->rect, Plain(button->text),
                 widget == nullptr ? painter->font() : widget->font());
    } else if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
               combo != nullptr && element == CE_ComboBoxLabel) {
        QStyleOptionComboBox inside = *combo;
        inside.rect.adjust(4, 0, 0, 0); // clear of the mark
        QProxyStyle::drawControl(element, &inside, painter, widget);
    } else if (element == CE_HeaderSection) {
        PaintBox(*painter, *option, option->rect);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void DressStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar != nullptr && control == CC_ScrollBar) {
        PaintScrollBar(*painter, *bar, widget);
    } else if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
               combo != nullptr && control == CC_ComboBox && !combo->editable) {
        PaintBox(*painter, *option, option->rect);
        PaintArrow(*painter, subControlRect(control, option, SC_ComboBoxArrow, widget), Qt::DownArrow,
                   option->palette.color(QPalette::ButtonText));
    } else if (const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
               tool != nullptr && control == CC_ToolButton) {
        PaintBox(*painter, *option, option->rect);
        QStyleOptionToolButton inside = *tool;
        inside.rect.adjust(2, 2, -2, -2);
        proxy()->drawControl(CE_ToolButtonLabel, &inside, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void DressStyle::PaintScrollBar(QPainter& painter, const QStyleOptionSlider& bar,
                                const QWidget* widget) const
{
    const bool isLevel = bar.orientation == Qt::Horizontal;
    const QColor text = bar.palette.color(QPalette::ButtonText);
    Painter(painter, bar.rect, typesetter_).Fill(bar.palette.color(QPalette::Midlight));
    Painter(painter, bar.rect, typesetter_).PaintBorder(LineOn(ColourOf(bar, QPalette::Window)));
    const auto paintPart = [&](SubControl part) {
        QStyleOptionSlider box = bar;
        const bool isWorked = (bar.activeSubControls & part) != 0;
        box.state.setFlag(State_Sunken, isWorked && (bar.state & State_Sunken) != 0);
        box.state.setFlag(State_HasFocus,
                          part == SC_ScrollBarSlider && (bar.state & State_HasFocus) != 0);
        const QRect area = subControlRect(CC_ScrollBar, &bar, part, widget);
        PaintBox(painter, box, area);
        return area;
    };
    PaintArrow(painter, paintPart(SC_ScrollBarSubLine), isLevel ? Qt::LeftArrow : Qt::UpArrow, text);
    PaintArrow(painter, paintPart(SC_ScrollBarAddLine), isLevel ? Qt::RightArrow : Qt::DownArrow, text);
    if (bar.minimum < bar.maximum) {
        paintPart(SC_ScrollBarSlider);
    }
}

int DressStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    // The line, and room for the mark of the keyboard where the widget leaves none of its own. At a
    // scale of 1.5 a line without room would lose a pixel to what is inside.
    constexpr int line = 2;
    constexpr int lineAndMark = 4;
    if (metric == PM_DefaultFrameWidth) {
        return qobject_cast<const QAbstractScrollArea*>(widget) == nullptr ? line : lineAndMark;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int DressStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_DialogButtonLayout:
        return QDialogButtonBox::WinLayout; // in the order of the program's own boxes
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

} // namespace tessarine
