#include "appearance/colour_picker.h"

#include <cmath>
#include <utility>

namespace tessarine
{
namespace
{

// Places of the drawing, in its own units.
constexpr int PaletteRows = 4;
constexpr int PaletteColumns = 4;
constexpr int BarLeft = 10;
constexpr int UpperBarTop = 950;
constexpr int UpperBarBottom = 1150;
constexpr int LowerBarTop = 1175;
constexpr int LowerBarBottom = 1375;
/// A click from here down leaves the bars of shades as they are.
constexpr int BarsBegin = 900;

/// Far less than the distance of two lines: what arithmetic may lose on the way, in twips.
constexpr Twips Hair = 0.001;

constexpr int StartColour = 7;

Twips Across(int units)
{
    return units * ColPik::UnitAcross;
}

Twips Down(int units)
{
    return units * ColPik::UnitDown;
}

void DrawPalette(Canvas& canvas)
{
    for (int row = 1; row <= PaletteRows; ++row) {
        for (int column = 1; column <= PaletteColumns; ++column) {
            canvas.FillBox({Across(65 * column - 55), Down(225 * row - 195)},
                           {Across(65 * column), Down(225 * row + 5)},
                           PaletteColour(PaletteColumns * (row - 1) + (column - 1)));
        }
    }
}

using Shade = Colour (*)(Colour, Whole);

void DrawBarLine(Canvas& canvas, int top, int bottom, Colour colour, Whole level, Shade shade)
{
    const Twips x = Across(BarLeft + level);
    canvas.DrawLine({x, Down(top)}, {x, Down(bottom)}, shade(colour, level));
}

/// Several lines share a pixel of the screen, and the one drawn last shows. Both ends of a bar are what
/// a user aims at, so the first line comes after its neighbours and the last line after all.
void DrawBar(Canvas& canvas, int top, int bottom, Colour colour, Shade shade)
{
    for (Whole level = ColPik::FullLevel - 1; level >= 0; --level) {
        DrawBarLine(canvas, top, bottom, colour, level, shade);
    }
    DrawBarLine(canvas, top, bottom, colour, ColPik::FullLevel, shade);
}

bool LiesOn(Twips y, int top, int bottom)
{
    return y >= Down(top) - Hair && y <= Down(bottom) + Hair;
}

} // namespace

ColPik::ColPik()
{
    SetBackColor(White);
    PlaceParts();
    NameParts();
    HearBars();
}

void ColPik::PlaceParts()
{
    static constexpr double smallSize = 7;
    const auto place = [this](Label& label, Twips left, Twips top, Twips width, Twips height) {
        label.SetBounds(left, top, width, height);
        label.SetBackColor(White);
        label.SetFontSize(smallSize);
        Add(label);
    };
    const auto placeBar = [this](ScrollBar& bar, Twips left) {
        static constexpr Whole most = 255;
        bar.SetBounds(left, 25, 250, 1126);
        bar.SetRange(most, 0, 1, 1);
        bar.SetValue(most);
        Add(bar);
    };
    const auto placeDegree = [&place](Label& label, Twips left, Twips width, Colour text) {
        place(label, left, 1380, width, 210);
        label.SetAlign(Alignment::Centre);
        label.SetForeColor(text);
        label.SetCaption("255");
    };

    placeBar(hsrRed, 1050);
    placeBar(hsrGreen, 1395);
    placeBar(hsrBlue, 1725);
    place(PicRGB[0], 1065, 1170, 225, 195);
    place(PicRGB[1], 1395, 1170, 225, 195);
    place(PicRGB[2], 1755, 1170, 225, 195);
    for (Label& channel : PicRGB) {
        channel.SetBorder(true);
    }
    placeDegree(lblRedDegree, 1050, 270, Rgb(255, 0, 0));
    placeDegree(lblGreenDegree, 1380, 285, Rgb(0, 192, 0));
    placeDegree(lblBlueDegree, 1725, 270, Rgb(0, 0, 255));
    place(Label2, 60, 1380, 645, 165);
    Label2.SetCaption("Selected");
    place(Label1, 788, 1380, 225, 195);
    Label1.SetBorder(true);
}

void ColPik::NameParts()
{
    const auto name = [this](Control& part, const std::string& own) {
        part.Describe = [this, own] { return Describe ? Describe() + ": " + own : own; };
    };
    name(hsrRed, "Red");
    name(hsrGreen, "Green");
    name(hsrBlue, "Blue");
}

void ColPik::HearBars()
{
    hsrRed.OnChange = [this] { BarChanged(Channel::Red); };
    hsrGreen.OnChange = [this] { BarChanged(Channel::Green); };
    hsrBlue.OnChange = [this] { BarChanged(Channel::Blue); };
}

void ColPik::Resized()
{
    const Colour start = PaletteColour(StartColour);
    RedrawBars = true;
    Label1.SetBackColor(start);
    ShowColor(start);
    Redraw();
}

void ColPik::SetSchemeColor(Colour New_SchemeColor)
{
    RedrawBars = true;
    ShowColor(New_SchemeColor);
}

/// Setting a bar runs BarChanged, and that this function again, before the next bar is set.
void ColPik::ShowColor(Colour colour)
{
    const Colour plain = TranslateColor(colour);
    Label1.SetBackColor(plain);
    hsrRed.SetValue(clrRed(plain));
    hsrGreen.SetValue(clrGreen(plain));
    hsrBlue.SetValue(clrBlue(plain));
    if (RedrawBars) {
        DrawBarsFor(plain);
    }
}

void ColPik::BarChanged(Channel channel)
{
    ShowDegrees();
    ShowChannel(channel);
    const Colour colour = ColourOfBars();
    Label1.SetBackColor(colour);
    if (RedrawBars) {
        ShowColor(colour);
    }
    Raise(colour);
}

void ColPik::ShowDegrees()
{
    lblRedDegree.SetCaption(std::to_string(hsrRed.Value()));
    lblGreenDegree.SetCaption(std::to_string(hsrGreen.Value()));
    lblBlueDegree.SetCaption(std::to_string(hsrBlue.Value()));
}

void ColPik::ShowChannel(Channel channel)
{
    switch (channel) {
    case Channel::Red:
        PicRGB[0].SetBackColor(Rgb(hsrRed.Value(), 0, 0));
        break;
    case Channel::Green:
        PicRGB[1].SetBackColor(Rgb(0, hsrGreen.Value(), 0));
        break;
    case Channel::Blue:
        PicRGB[2].SetBackColor(Rgb(0, 0, hsrBlue.Value()));
        break;
    }
}

Colour ColPik::ColourOfBars() const
{
    return Rgb(hsrRed.Value(), hsrGreen.Value(), hsrBlue.Value());
}

void ColPik::DrawBarsFor(Colour colour)
{
    if (std::exchange(barColour_, colour) != colour) {
        Redraw();
    }
}

void ColPik::Draw(Canvas& canvas) const
{
    DrawPalette(canvas);
    DrawBar(canvas, UpperBarTop, UpperBarBottom, barColour_, clrBlackness);
    DrawBar(canvas, LowerBarTop, LowerBarBottom, barColour_, clrWhiteness);
}

void ColPik::MouseReleased(const MouseEvent& event)
{
    UserControl::MouseReleased(event);
    const bool inside = event.x >= 0 && event.y >= 0 && event.x < Width() && event.y < Height();
    if (!inside || FrontMostAt(event.x, event.y) != nullptr) {
        return;
    }
    const Colour colour = ColourUnder({event.x, event.y});
    RedrawBars = event.y < Down(BarsBegin) - Hair;
    ShowColor(colour);
    RedrawBars = true;
    Raise(colour);
}

/// A point on a line of a bar takes that line's shade. Any other takes what its pixel shows: the lines
/// stand closer than the pixels of the screen, and a user takes the shade that is seen.
Colour ColPik::ColourUnder(Point point) const
{
    const Whole level = RoundHalfEven(point.x / UnitAcross) - BarLeft;
    const bool onLine =
        level >= 0 && level <= FullLevel && std::abs(point.x - Across(BarLeft + level)) < Hair;
    if (onLine && LiesOn(point.y, UpperBarTop, UpperBarBottom)) {
        return clrBlackness(barColour_, level);
    }
    if (onLine && LiesOn(point.y, LowerBarTop, LowerBarBottom)) {
        return clrWhiteness(barColour_, level);
    }
    return Drawing().ColourAt(point, TwipsPerPixel);
}

void ColPik::Raise(Colour colour)
{
    if (SelColor) {
        SelColor(colour);
    }
}

Colour ColPik::clrBlackness(Colour colour, Whole level)
{
    const auto darker = [level](int channel) {
        return RoundHalfEven(static_cast<double>(channel) * level / FullLevel);
    };
    return Rgb(darker(clrRed(colour)), darker(clrGreen(colour)), darker(clrBlue(colour)));
}

Colour ColPik::clrWhiteness(Colour colour, Whole level)
{
    const auto lighter = [level](int channel) {
        return RoundHalfEven(channel +
                             static_cast<double>(255 - channel) * (FullLevel - level) / FullLevel);
    };
    return Rgb(lighter(clrRed(colour)), lighter(clrGreen(colour)), lighter(clrBlue(colour)));
}

} // namespace tessarine
