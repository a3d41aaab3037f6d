#include "appearance/colour_picker.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
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
/// How far the first and the last shade of a bar reach beyond their lines. Both ends are what a user
/// aims at, and a pixel may be a little more than four units wide: so each has one of its own.
constexpr int EndsReach = 4;

constexpr int StartColour = 7;

/// A place in whole units of the drawing.
struct Place {
    Whole across = 0;
    Whole down = 0;
};

Place PlaceOf(Point point)
{
    return {RoundHalfEven(point.x / ColPik::UnitAcross), RoundHalfEven(point.y / ColPik::UnitDown)};
}

bool IsFromTo(Whole position, Whole first, Whole last)
{
    return position >= first && position <= last;
}

/// None in a gap.
std::optional<Colour> CellAt(Place place)
{
    for (int row = 1; row <= PaletteRows; ++row) {
        for (int column = 1; column <= PaletteColumns; ++column) {
            if (IsFromTo(place.across, 65 * column - 55, 65 * column) &&
                IsFromTo(place.down, 225 * row - 195, 225 * row + 5)) {
                return PaletteColour(PaletteColumns * (row - 1) + (column - 1));
            }
        }
    }
    return std::nullopt;
}

/// The one drawing of the control, for whoever paints it and for whoever takes a colour from it.
Colour ColourAt(Point point, Colour ofBars)
{
    const Place place = PlaceOf(point);
    const Whole line = place.across - BarLeft;
    const Whole level = std::clamp(line, 0, ColPik::FullLevel);
    if (std::abs(line - level) <= EndsReach) {
        if (IsFromTo(place.down, UpperBarTop, UpperBarBottom)) {
            return ColPik::clrBlackness(ofBars, level);
        }
        if (IsFromTo(place.down, LowerBarTop, LowerBarBottom)) {
            return ColPik::clrWhiteness(ofBars, level);
        }
    }
    return CellAt(place).value_or(White);
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
    hsrRed.OnChange = [this] { hsrRed_Change(); };
    hsrGreen.OnChange = [this] { hsrGreen_Change(); };
    hsrBlue.OnChange = [this] { hsrBlue_Change(); };
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

/// Setting a bar runs its change handler, and that this function again, before the next bar is set.
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

void ColPik::hsrRed_Change()
{
    BarChanged(PicRGB[0], Rgb(hsrRed.Value(), 0, 0));
}

void ColPik::hsrGreen_Change()
{
    BarChanged(PicRGB[1], Rgb(0, hsrGreen.Value(), 0));
}

void ColPik::hsrBlue_Change()
{
    BarChanged(PicRGB[2], Rgb(0, 0, hsrBlue.Value()));
}

void ColPik::BarChanged(Label& channel, Colour pure)
{
    ShowDegrees();
    channel.SetBackColor(pure);
    const Colour colour = ColourOfBars();
    Label1.SetBackColor(colour);
    if (RedrawBars) {
        ShowColor(colour);
    }
    Raise(colour);
}

void ColPik::ShowDegrees()
{
    const auto show = [](Label& label, ScrollBar& bar, const char* name) {
        label.SetCaption(std::to_string(bar.Value()));
        bar.SetToolTip(std::string(name) + ": " + label.Caption());
    };
    show(lblRedDegree, hsrRed, "Red");
    show(lblGreenDegree, hsrGreen, "Green");
    show(lblBlueDegree, hsrBlue, "Blue");
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
    canvas.Shade([ofBars = barColour_](Point point) { return ColourAt(point, ofBars); });
}

void ColPik::MouseReleased(const MouseEvent& event)
{
    UserControl::MouseReleased(event);
    const bool inside = event.x >= 0 && event.y >= 0 && event.x < Width() && event.y < Height();
    if (!inside || FrontMostAt(event.x, event.y) != nullptr) {
        return;
    }
    const Point point{event.x, event.y};
    const Colour colour = ColourAt(point, barColour_);
    RedrawBars = PlaceOf(point).down < BarsBegin;
    ShowColor(colour);
    RedrawBars = true;
    Raise(colour);
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
