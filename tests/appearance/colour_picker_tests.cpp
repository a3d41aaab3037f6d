// The colour picker: its events, and clicks on what it draws.
#include "appearance/colour_picker.h"
#include "headless/headless_platform.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

class ColourPicker : public testing::Test
{
protected:
    ColourPicker()
    {
        form.Add(picker);
        picker.SetBounds(150, 270, 2025, 1635);
        picker.SelColor = [this](Colour colour) { events.push_back(colour); };
        form.Show();
    }

    void Click(Twips x, Twips y) { DragFromTo({x, y}, {x, y}); }
    void DragFromTo(Point from, Point to)
    {
        platform.Press(form, picker.Left() + from.x, picker.Top() + from.y);
        platform.Release(form, picker.Left() + to.x, picker.Top() + to.y);
    }
    void ClickUnits(double x, double y) { Click(x * ColPik::UnitAcross, y * ColPik::UnitDown); }

    /// What the bars of shades were drawn for.
    Colour BarColour()
    {
        return picker.Drawing().ColourAt({266 * ColPik::UnitAcross, 1000 * ColPik::UnitDown}, 0.001);
    }

    HeadlessPlatform platform;
    Forms forms{platform};
    Form form{forms, "Test", {3000, 3000}};
    ColPik picker;
    std::vector<Colour> events;
};

TEST_F(ColourPicker, RaisesOneEventForEachChannelThatChanges)
{
    EXPECT_EQ(picker.SchemeColor(), PaletteColour(7));
    picker.SetSchemeColor(Rgb(1, 2, 3));
    EXPECT_EQ(events, (std::vector<Colour>{Rgb(1, 192, 192), Rgb(1, 2, 192), Rgb(1, 2, 3)}));
    EXPECT_EQ(picker.SchemeColor(), Rgb(1, 2, 3));
    EXPECT_EQ(BarColour(), Rgb(1, 2, 3));
    EXPECT_EQ(picker.lblBlueDegree.Caption(), "3");
    EXPECT_EQ(picker.PicRGB[1].BackColor(), Rgb(0, 2, 0));

    events.clear();
    picker.SetSchemeColor(Rgb(1, 2, 3));
    EXPECT_TRUE(events.empty());
    picker.hsrGreen.UserSets(200);
    EXPECT_EQ(events, std::vector<Colour>{Rgb(1, 200, 3)});
    EXPECT_EQ(BarColour(), Rgb(1, 200, 3));

    picker.SetSchemeColor(WindowBackground);
    EXPECT_EQ(events.back(), White);
    EXPECT_EQ(picker.SchemeColor(), White);
}

TEST_F(ColourPicker, LaidOutAnewStartsAnew)
{
    picker.SetSchemeColor(Black);
    picker.SetHeight(1605);
    EXPECT_EQ(picker.SchemeColor(), PaletteColour(7));
    EXPECT_EQ(BarColour(), PaletteColour(7));
}

TEST_F(ColourPicker, ShadesRunFromBlackAndWhiteToTheColour)
{
    EXPECT_EQ(ColPik::clrBlackness(Rgb(1, 3, 200), 128), Rgb(0, 2, 100)) << "halves to the even number";
    EXPECT_EQ(ColPik::clrWhiteness(Rgb(254, 252, 55), 128), Rgb(254, 254, 155));
    EXPECT_EQ(ColPik::clrBlackness(Rgb(9, 8, 7), 0), Black);
    EXPECT_EQ(ColPik::clrWhiteness(Rgb(9, 8, 7), 0), White);
    EXPECT_EQ(ColPik::clrBlackness(Rgb(9, 8, 7), 256), Rgb(9, 8, 7));
    EXPECT_EQ(ColPik::clrWhiteness(Rgb(9, 8, 7), 256), Rgb(9, 8, 7));
}

TEST_F(ColourPicker, AClickOnThePaletteTakesTheCellAndDrawsTheBars)
{
    ClickUnits(65 * 3 - 20, 225 * 2 - 50); // second row, third column
    EXPECT_EQ(picker.SchemeColor(), PaletteColour(6));
    EXPECT_EQ(BarColour(), PaletteColour(6));
    const auto count = events.size();
    ClickUnits(65 * 3 - 20, 225 * 2 - 50);
    EXPECT_EQ(events.size(), count + 1) << "the same colour is an event all the same";

    ClickUnits(100, 242); // between two rows
    EXPECT_EQ(picker.SchemeColor(), White);
    ClickUnits(5, 100); // left of the first column
    EXPECT_EQ(picker.SchemeColor(), White);
}

TEST_F(ColourPicker, TheLastRowReachesBelowWhereTheBarsStayAsTheyAre)
{
    const Colour before = BarColour();
    ClickUnits(40, 900);
    EXPECT_EQ(picker.SchemeColor(), PaletteColour(12));
    EXPECT_EQ(BarColour(), before);
    ClickUnits(105, 899);
    EXPECT_EQ(picker.SchemeColor(), PaletteColour(13));
    EXPECT_EQ(BarColour(), PaletteColour(13));
}

TEST_F(ColourPicker, AClickOnALineOfABarTakesItsShadeAndKeepsTheBars)
{
    const Colour base = Rgb(200, 100, 50);
    picker.SetSchemeColor(base);
    std::vector<Colour> taken;
    std::vector<Colour> wanted;
    for (Whole level = 0; level <= ColPik::FullLevel; ++level) {
        ClickUnits(10 + level, 1000);
        taken.push_back(events.back());
        wanted.push_back(ColPik::clrBlackness(base, level));
        ClickUnits(10 + level, 1300);
        taken.push_back(picker.SchemeColor());
        wanted.push_back(ColPik::clrWhiteness(base, level));
    }
    EXPECT_EQ(taken, wanted);
    EXPECT_EQ(BarColour(), base);
    ClickUnits(100, 1162); // between the bars
    EXPECT_EQ(picker.SchemeColor(), White);
    picker.hsrRed.UserSets(7);
    EXPECT_EQ(BarColour(), Rgb(7, 255, 255)) << "after a click the bars follow again";
}

TEST_F(ColourPicker, AScreenPixelGivesTheShadeThatItShows)
{
    const Colour base = Rgb(200, 100, 50);
    picker.SetSchemeColor(base);
    for (int pixel = 2; pixel <= 65; ++pixel) {
        const Twips x = pixel * TwipsPerPixel;
        Click(x, 1050);
        EXPECT_EQ(picker.SchemeColor(), picker.Drawing().ColourAt({x, 1050}, TwipsPerPixel)) << pixel;
    }
    EXPECT_EQ(picker.SchemeColor(), base) << "the last pixel of the bar is the colour itself";
    Click(2 * TwipsPerPixel, 1050);
    EXPECT_EQ(picker.SchemeColor(), Black) << "and its first is black";
}

TEST_F(ColourPicker, OnlyAReleaseOnTheSurfaceItselfCounts)
{
    Click(picker.Label2.Left() + 10, picker.Label2.Top() + 10);
    DragFromTo({100, 100}, {1200, 500}); // ends on a scroll bar
    DragFromTo({100, 100}, {-20, 100});  // ends outside
    DragFromTo({100, 100}, {100, 1700});
    EXPECT_TRUE(events.empty());
    DragFromTo({100, 100}, {65 * ColPik::UnitAcross - 10, 100});
    EXPECT_EQ(events.back(), Black);

    events.clear();
    picker.SetEnabled(false);
    ClickUnits(150, 100);
    picker.hsrRed.UserSets(12);
    EXPECT_TRUE(events.empty());
}

} // namespace
} // namespace tessarine
