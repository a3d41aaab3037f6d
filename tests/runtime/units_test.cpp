#include "headless/headless_platform.h"
#include "runtime/files.h"
#include "runtime/letters.h"
#include "runtime/text_list.h"
#include "runtime/units.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <utility>

namespace tessarine
{
namespace
{

TEST(Units, AnExactHalfGoesToTheEvenNeighbourAndTheRestIsHeldAtTheEnds)
{
    constexpr Whole highest = std::numeric_limits<Whole>::max();
    constexpr Whole lowest = std::numeric_limits<Whole>::min();
    const std::vector<std::pair<double, Whole>> cases = {
        {0.5, 0},       {1.5, 2},      {2.5, 2},         {-0.5, 0},        {-1.5, -2},
        {2.5000001, 3}, {468.75, 469}, {1e300, highest}, {-1e300, lowest}, {std::nan(""), 0}};
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(RoundHalfEven(value), rounded) << value;
    }
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
    for (const char* none : {"", "   ", "...", "-", "H7", "inf", "nan", "-infinity", "e5", ",5"}) {
        EXPECT_EQ(NumberAtStart(none), 0) << none;
    }
}

TEST(TextList, ASortedListOrdersByLettersThenByCodeAndFindsBeginnings)
{
    TextList list(TextList::Order::Sorted);
    for (const char* text : {"blue", "Blue", "cyan", "\u00C9t\u00E9", "07", "...", "70"}) {
        list.Add(text);
    }
    list.AddAll({"BLUE", "\xE9TE", "06"}); // its accent is no UTF-8
    const std::vector<std::string> expected = {"...",  "06",   "07",   "70",     "BLUE",
                                               "Blue", "blue", "cyan", "\xE9TE", "\u00C9t\u00E9"};
    EXPECT_EQ(std::vector<std::string>(list.begin(), list.end()), expected);
    EXPECT_EQ(list.Add("Azure"), 4U);
    EXPECT_EQ(list.Find("bLU"), 5U);
    EXPECT_EQ(list.Find("bLU", 8), 5U) << "once round";
    EXPECT_EQ(list.Find("\u00E9T"), 9U);
    EXPECT_EQ(list.Find("\xC9T\xC9"), 10U);
    EXPECT_EQ(list.Find("blues"), std::nullopt);
}

TEST(Letters, AreLoweredInTheEncodingThatTheTextHas)
{
    EXPECT_EQ(LowerCase("GR\u00DCNE STRA\u1E9EE \u03A3\u0416 \u0130\u20AC"),
              "gr\u00FCne stra\u00DFe \u03C3\u0436 i\u0307\u20AC");
    EXPECT_EQ(LowerCase("GR\xDCN \xD7\x9F\xFF"), "gr\xFCn \xD7\x9F\xFF");
    EXPECT_EQ(Folded("STRASSE"), Folded("stra\xDF"
                                        "e"));
    for (const std::string noLetter :
         {"\xC1\xA1", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\xF8"}) {
        EXPECT_EQ(Letters(noLetter).size(), noLetter.size()) << "a letter for each byte";
    }
}

TEST(Files, LinesEndWithOneOrTwoCharacters)
{
    using Lines = std::vector<std::string>;
    EXPECT_EQ(SplitLines("a\r\nb\n\r\nc"), (Lines{"a", "b", "", "c"}));
    EXPECT_EQ(SplitLines("\n"), Lines{""});
    EXPECT_EQ(SplitLines(""), Lines{});
    EXPECT_EQ(SplitLines(" \ra\r\r\nb\r"), (Lines{" \ra\r", "b"}));
}

} // namespace
} // namespace tessarine
