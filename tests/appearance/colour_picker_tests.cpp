// The colour picker: its events, and clicks on what it draws.
#include "appearance/colour_picker.h"
#include "headless/headless_platform.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

constexpr Colour Base = Rgb(200, 100, 50);

struct ColourPicker : testing::Test {
    ColourPicker()
    {
        form.Add(picker);
        picker.SetBounds(150, 270, 2025, 1635);
        picker.SelColor = [this](Colour colour) { events.push_back(colour); };
        form.Show();
    }

    void Drag(Point from, Point to)
    {
        platform.Press(form, picker.Left() + from.x, picker.Top() + from.y);
        platform.Release(form, picker.Left() + to.x, picker.Top() + to.y);
    }
    /// The colour that a click takes; a place in the units of the drawing.
    Colour Click(double x, double y)
    {
        const Point at{x * ColPik::UnitAcross, y * ColPik::UnitDown};
        Drag(at, at);
        return picker.SchemeColor();
    }
    /// What the bars of shades were drawn for.
    Colour BarColour()
    {
        const auto& shading = std::get<Canvas::Shading>(picker.Drawing().Strokes().front());
        return shading.colourAt({266 * ColPik::UnitAcross, 1000 * ColPik::UnitDown});
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    Form form{forms, "Test", {3000, 3000}};
    ColPik picker;
    std::vector<Colour> events;
};

TEST_F(ColourPicker, RaisesOneEventForEachChannelThatChanges)
{
    picker.SetSchemeColor(Rgb(1, 2, 3));
    picker.SetSchemeColor(Rgb(1, 2, 3));
    EXPECT_EQ(events, (std::vector<Colour>{Rgb(1, 192, 192), Rgb(1, 2, 192), Rgb(1, 2, 3)}));
    EXPECT_EQ(picker.lblBlueDegree.Caption(), "3");
    picker.hsrGreen.UserSets(200);
    EXPECT_EQ(BarColour(), Rgb(1, 200, 3));
    picker.SetSchemeColor(WindowBackground);
    EXPECT_EQ(events.back(), White);
    picker.SetHeight(1605); // laid out anew it starts anew
    EXPECT_EQ(BarColour(), PaletteColour(7));
}

TEST_F(ColourPicker, AClickOnThePaletteTakesTheCellAndDrawsTheBars)
{
    picker.SetSchemeColor(PaletteColour(6));
    events.clear();                   // and the same colour is an event all the same
    Click(65 * 3 - 20, 225 * 2 - 50); // second row, third column
    EXPECT_EQ(events, std::vector<Colour>{PaletteColour(6)});
    EXPECT_EQ(Click(100, 242), White); // between two rows
    Drag({100, 100}, {-20, 100});
    EXPECT_EQ(picker.SchemeColor(), White) << "let go beside it";
    // The last row reaches below where the bars stay as they are.
    EXPECT_EQ(Click(40, 900), PaletteColour(12));
    EXPECT_EQ(BarColour(), White);
    EXPECT_EQ(Click(105, 899), PaletteColour(13));
    EXPECT_EQ(BarColour(), PaletteColour(13));
}

TEST_F(ColourPicker, AClickOnALineOfABarTakesItsShadeAndKeepsTheBars)
{
    EXPECT_EQ(ColPik::clrBlackness(Rgb(1, 3, 200), 128), Rgb(0, 2, 100)) << "halves to the even number";
    EXPECT_EQ(ColPik::clrWhiteness(Rgb(254, 252, 55), 128), Rgb(254, 254, 155));
    EXPECT_EQ(ColPik::clrWhiteness(Base, 0), White);
    picker.SetSchemeColor(Base);
    for (Whole level = 0; level <= ColPik::FullLevel; ++level) {
        EXPECT_EQ(Click(10 + level, 1000), ColPik::clrBlackness(Base, level)) << level;
        EXPECT_EQ(Click(10 + level, 1300), ColPik::clrWhiteness(Base, level)) << level;
    }
    EXPECT_EQ(BarColour(), Base);
    EXPECT_EQ(Click(100, 1162), White); // between the bars
    EXPECT_EQ(Click(275, 1000), White); // beside them
    picker.hsrRed.UserSets(7);
    EXPECT_EQ(BarColour(), Rgb(7, 255, 255)) << "after a click the bars follow again";
}

} // namespace
} // namespace tessarine
