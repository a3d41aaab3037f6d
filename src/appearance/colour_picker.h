// The colour picker: a palette, two bars of shades, three scroll bars and a swatch.
#pragma once

#include "runtime/controls.h"

#include <array>
#include <functional>

namespace tessarine
{

class ColPik : public UserControl
{
public:
    /// The drawing's own units, in twips.
    static constexpr Twips UnitAcross = 3.7149463;
    static constexpr Twips UnitDown = 0.9965033;
    /// The level at which a shade is the colour itself.
    static constexpr Whole FullLevel = 256;

    ColPik();

    /// The colour that the swatch shows.
    Colour SchemeColor() const { return Label1.BackColor(); }
    /// Shows another colour; a reference to a system colour is resolved. Each channel that changes
    /// raises SelColor before this returns.
    void SetSchemeColor(Colour New_SchemeColor);

    /// Raised for each change of a channel and for each click. One change of colour may raise it
    /// several times, with colours on the way; the last one is the new colour.
    std::function<void(Colour)> SelColor;

    /// The colour darkened: level 0 is black, FullLevel the colour itself.
    static Colour clrBlackness(Colour colour, Whole level);
    /// The colour lightened: level 0 is white, FullLevel the colour itself.
    static Colour clrWhiteness(Colour colour, Whole level);

    ScrollBar hsrRed{ScrollBar::Direction::Down};
    ScrollBar hsrGreen{ScrollBar::Direction::Down};
    ScrollBar hsrBlue{ScrollBar::Direction::Down};
    std::array<Label, 3> PicRGB; ///< each channel alone: red, green, blue
    Label lblRedDegree;
    Label lblGreenDegree;
    Label lblBlueDegree;
    Label Label2; ///< title of the swatch
    Label Label1; ///< the swatch

    /// A click takes the colour under it if it ends on the surface, not on a scroll bar or a label.
    void MouseReleased(const MouseEvent& event) override;
    /// The surface has no press but a click at a place of it; the scroll bars serve the keyboard.
    void UserActivates() override {}

protected:
    void Draw(Canvas& canvas) const override;
    /// Laying the control out starts it anew, on light grey.
    void Resized() override;

private:
    void PlaceParts();
    void NameParts();
    void HearBars();
    void hsrRed_Change();
    void hsrGreen_Change();
    void hsrBlue_Change();
    /// What the three have in common; `pure` is the value of the bar alone.
    void BarChanged(Label& channel, Colour pure);
    void ShowDegrees();
    Colour ColourOfBars() const;
    void ShowColor(Colour colour);
    void DrawBarsFor(Colour colour);
    void Raise(Colour colour);

    bool RedrawBars = true;    ///< whether ShowColor draws the bars of shades anew
    Colour barColour_ = White; ///< what the bars of shades were last drawn for
};

} // namespace tessarine
