// How the toolkit's own widgets look: like what the program paints itself.
#pragma once

#include "desktop/fonts.h"

#include <QProxyStyle>
#include <QStyleOption>

namespace tessarine
{

/// For the whole application. Buttons of every kind are drawn as the program's own button is, frames are
/// one line of even width that is seen on any ground, and what has the keyboard wears one mark. Colours
/// come from the palette of the widget.
class DressStyle final : public QProxyStyle
{
public:
    DressStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

private:
    void PaintBox(QPainter& painter, const QStyleOption& option, const QRect& area,
                  const QString& caption = {}, const QFont& font = {}) const;
    void PaintFrame(QPainter& painter, const QStyleOption& option) const;
    void PaintMark(QPainter& painter, const QRect& area, const QColor& text) const;
    void PaintScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QWidget* widget) const;

    mutable Typesetter typesetter_;
};

} // namespace tessarine
