#include "kit/box_button.h"

#include "headless/headless_platform.h"

#include <gtest/gtest.h>

#include <variant>
#include <vector>

namespace tessarine
{
namespace
{

constexpr Colour Face = Rgb(150, 170, 165);

class BoxButton : public testing::Test
{
protected:
    BoxButton()
    {
        button.SetBounds(30, 30, 360, 360);
        button.SetBackColor(Face);
        form.Add(button);
        form.Show();
        button.OnMouseUp = [this](const MouseEvent& event) { releasedWith.push_back(event.button); };
    }

    template <class Stroke> std::vector<Stroke> Drawn() const
    {
        std::vector<Stroke> found;
        for (const auto& stroke : button.Drawing().Strokes()) {
            if (const auto* wanted = std::get_if<Stroke>(&stroke)) {
                found.push_back(*wanted);
            }
        }
        return found;
    }

    Colour At(Twips x, Twips y) const { return button.Drawing().ColourAt({x, y}, TwipsPerPixel); }

    HeadlessPlatform platform;
    Forms forms{platform};
    Form form{forms, "Form", {3000, 3000}};
    BoxControl button;
    std::vector<int> releasedWith;
};

TEST_F(BoxButton, HasLightEdgesAboveAndLeftAndDarkOnesBelowAndRight)
{
    EXPECT_EQ(At(0, 180), White);
    EXPECT_EQ(At(180, 0), White);
    EXPECT_EQ(At(340, 180), Black);
    EXPECT_EQ(At(180, 340), Black);
    EXPECT_EQ(At(180, 180), Face);
    EXPECT_EQ(At(355, 180), Face) << "the dark edge stands in from the side";

    button.SetWidth(600);
    EXPECT_EQ(At(580, 180), Black);
    EXPECT_EQ(At(340, 180), Face) << "the edge of the old width is gone";
}

TEST_F(BoxButton, CentresItsCaptionByTheHeightOfACapital)
{
    button.SetWidth(885);
    EXPECT_TRUE(Drawn<Canvas::Text>().empty());

    button.SetCaption("Ok");
    const auto texts = Drawn<Canvas::Text>();
    ASSERT_EQ(texts.size(), 1U);
    const Font font{"Arial", 8.25};
    EXPECT_EQ(texts[0].text, "Ok");
    EXPECT_EQ(texts[0].font, font);
    EXPECT_EQ(texts[0].colour, ButtonText);
    const Whole width = RoundHalfEven(platform.TextSize(font, "Ok").width);
    const Whole height = RoundHalfEven(platform.TextSize(font, "W").height);
    EXPECT_EQ(texts[0].upperLeft, (Point{(885 - width) / 2.0, (360 - height) / 2.0}));

    button.SetCaption("A caption that is far too wide");
    EXPECT_LT(Drawn<Canvas::Text>()[0].upperLeft.x, 0);
}

TEST_F(BoxButton, PaintsThePictureOverTheCaptionALittleLeftOfAndAboveTheMiddle)
{
    const Picture picture{16, {}};
    button.SetCaption("x");
    button.SetPicture(picture);
    const auto& strokes = button.Drawing().Strokes();
    ASSERT_TRUE(std::holds_alternative<Canvas::Drawing>(strokes.back()));
    const auto& drawing = std::get<Canvas::Drawing>(strokes.back());
    EXPECT_EQ(drawing.picture, &picture);
    // 16 pixels are 423 hundredths of a millimetre, and count as 211.5 twips.
    EXPECT_EQ(drawing.upperLeft, (Point{50.25, 50.25}));
    EXPECT_EQ(Drawn<Canvas::Text>().size(), 1U);
}

TEST_F(BoxButton, IsPressedByAnyMouseButtonAndActsAtTheReleaseWhereverThatIs)
{
    platform.Press(form, 200, 200);
    EXPECT_TRUE(button.HasBorder());
    EXPECT_TRUE(releasedWith.empty());
    platform.MoveMouse(form, 2000, 2000);
    EXPECT_TRUE(button.HasBorder());
    platform.Release(form, 2000, 2000);
    EXPECT_FALSE(button.HasBorder());

    platform.Click(button, RightButton);
    EXPECT_FALSE(button.HasBorder());
    button.UserActivates(); // by the keyboard
    EXPECT_EQ(releasedWith, (std::vector<int>{LeftButton, RightButton, LeftButton}));
}

TEST_F(BoxButton, DoesNothingWhileItIsNotEnabled)
{
    button.SetEnabled(false);
    platform.Press(form, 200, 200);
    EXPECT_FALSE(button.HasBorder());
    platform.Release(form, 200, 200);
    button.UserActivates();
    EXPECT_TRUE(releasedWith.empty());
}

} // namespace
} // namespace tessarine
