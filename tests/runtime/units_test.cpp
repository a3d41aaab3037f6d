#include "runtime/canvas.h"
#include "runtime/text_list.h"
#include "runtime/units.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <random>

namespace tessarine
{
namespace
{

TEST(Units, AnExactHalfGoesToTheEvenNeighbour)
{
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(2.5000001), 3);
    EXPECT_EQ(RoundHalfEven(468.75), 469);
}

TEST(Units, WhatIsNoWholeNumberIsHeldAtTheEnds)
{
    EXPECT_EQ(RoundHalfEven(1e300), std::numeric_limits<Whole>::max());
    EXPECT_EQ(RoundHalfEven(-std::numeric_limits<double>::infinity()),
              std::numeric_limits<Whole>::min());
    EXPECT_EQ(RoundHalfEven(std::nan("")), 0);
    EXPECT_EQ(WholeAtStart("99999999999"), std::numeric_limits<Whole>::max());
}

TEST(Units, NumbersAndTheirTexts)
{
    EXPECT_EQ(NumberText(7), " 7");
    EXPECT_EQ(NumberText(-7), "-7");
    EXPECT_EQ(TwoDigits(7), "07");
    EXPECT_EQ(TwoDigits(49), "49");
    EXPECT_EQ(DecimalText(1.25F), "1.25");
    EXPECT_EQ(DecimalText(1e-7F), "0.0000001");
    EXPECT_EQ(DecimalText(16777216.0F), "16777216");
    EXPECT_EQ(DecimalText(-0.5F), "-0.5");
}

TEST(Units, ADecimalTextReadsBackAsTheSameNumberInEveryLanguage)
{
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // a decimal comma, where the machine has it
    std::mt19937 random(7);
    std::uniform_real_distribution<float> exponent(-40, 38);
    for (int i = 0; i < 2000; ++i) {
        const float value = std::pow(10.0F, exponent(random));
        const std::string text = DecimalText(value);
        EXPECT_EQ(text.find_first_not_of("0123456789."), std::string::npos) << text;
        EXPECT_EQ(static_cast<float>(NumberAtStart(text)), value) << text;
    }
    std::setlocale(LC_ALL, "C");
}

TEST(Units, TheNumberAtTheStartOfAText)
{
    EXPECT_EQ(NumberAtStart("  12.5 cards"), 12.5);
    EXPECT_EQ(NumberAtStart("+3"), 3);
    EXPECT_EQ(NumberAtStart("-.5"), -0.5);
    EXPECT_EQ(NumberAtStart("07H"), 7);
    for (const char* none : {"", "   ", "...", "-", "H7", "inf", "nan", "-infinity", "e5", ",5"}) {
        EXPECT_EQ(NumberAtStart(none), 0) << none;
    }
    EXPECT_EQ(WholeAtStart("2.5"), 2);
    EXPECT_EQ(WholeAtStart("-3.5"), -4);
}

TEST(Units, ColoursAndReferencesToThem)
{
    const Colour colour = Rgb(1, 2, 3);
    EXPECT_EQ(colour, 0x030201);
    EXPECT_EQ(Rgb(clrRed(colour), clrGreen(colour), clrBlue(colour)), colour);
    EXPECT_EQ(TranslateColor(colour), colour);
    EXPECT_EQ(TranslateColor(WindowBackground), White);
    EXPECT_EQ(TranslateColor(SystemColour(77)), Black);
    EXPECT_EQ(TranslateColor(std::numeric_limits<Colour>::min() + 200000), Black);
}

TEST(TextList, ASortedListOrdersByLettersThenByCode)
{
    TextList list(TextList::Order::Sorted);
    for (const char* text : {"blue", "Blue", "apple", "Cyan", "07", "...", "70"}) {
        list.Add(text);
    }
    list.AddAll({"BLUE", "06"});
    const std::vector<std::string> expected = {"...",  "06",   "07",   "70",  "apple",
                                               "BLUE", "Blue", "blue", "Cyan"};
    EXPECT_EQ(std::vector<std::string>(list.begin(), list.end()), expected);
    EXPECT_EQ(list.Add("Azure"), 5U);
}

TEST(TextList, ARingTurnsBothWays)
{
    TextList ring;
    for (const char* entry : {"...", "17", "04"}) {
        ring.Add(entry);
    }
    ring.PushFront(ring.PopBack());
    EXPECT_EQ(std::vector<std::string>(ring.begin(), ring.end()),
              (std::vector<std::string>{"04", "...", "17"}));
    ring.Add(ring.PopFront());
    EXPECT_EQ(ring.Back(), "04");
    ring.RemoveAt(1);
    EXPECT_EQ(std::vector<std::string>(ring.begin(), ring.end()),
              (std::vector<std::string>{"...", "04"}));
}

TEST(TextList, FindsTheFirstEntryThatBeginsWithAText)
{
    TextList list;
    for (const char* entry : {"Sea.col", "seaside.col", "Se", "Z\xE9"}) {
        list.Add(entry);
    }
    EXPECT_EQ(list.Find("SEAS"), 1U);
    EXPECT_EQ(list.Find("se"), 0U);
    EXPECT_EQ(list.Find(""), 0U);
    EXPECT_EQ(list.Find("z\xE9"), 3U);
    EXPECT_EQ(list.Find("sea.colour"), std::nullopt);
    EXPECT_EQ(TextList().Find(""), std::nullopt);
}

TEST(Canvas, ThePixelShowsWhatWasDrawnOnItLast)
{
    constexpr Twips pixel = 15;
    constexpr Colour red = Rgb(255, 0, 0);
    Canvas canvas;
    canvas.Clear(ButtonFace);
    EXPECT_EQ(canvas.ColourAt({0, 0}, pixel), TranslateColor(ButtonFace));
    canvas.FillBox({30, 30}, {90, 90}, White);
    EXPECT_EQ(canvas.ColourAt({30, 89.9}, pixel), White);
    EXPECT_EQ(canvas.ColourAt({90, 60}, pixel), TranslateColor(ButtonFace));
    EXPECT_EQ(canvas.ColourAt({29.9, 60}, pixel), TranslateColor(ButtonFace));
    canvas.DrawLine({75, 44}, {45, 44}, red); // on the pixels from 30 up to 45, either way round
    EXPECT_EQ(canvas.ColourAt({46, 30}, pixel), red);
    EXPECT_EQ(canvas.ColourAt({60, 44.9}, pixel), red);
    EXPECT_EQ(canvas.ColourAt({60, 45}, pixel), White);
    canvas.FillBox({45, 30}, {60, 45}, Black);
    EXPECT_EQ(canvas.ColourAt({50, 40}, pixel), Black);
    canvas.Clear(White);
    EXPECT_EQ(canvas.ColourAt({50, 40}, pixel), White);
}

} // namespace
} // namespace tessarine
