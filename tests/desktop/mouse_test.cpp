#include "stage.h"

#include <ostream>
#include <vector>

namespace tessarine
{
namespace
{

struct Heard {
    std::string what;
    int button = 0;
    int shift = 0;
    Twips x = 0;
    Twips y = 0;
    bool operator==(const Heard&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Heard& heard)
    {
        return out << heard.what << ' ' << heard.button << ' ' << heard.shift << " at " << heard.x
                   << ", " << heard.y;
    }
};

class MouseTest : public DesktopTest
{
protected:
    MouseTest()
    {
        surface.SetBounds(30, 450, 3900, 3000);
        card.SetBounds(300, 300, 405, 375);
        surface.Add(card);
        form.Add(surface);
        card.OnMouseDown = Listen("down");
        card.OnMouseMove = Listen("move");
        card.OnMouseUp = Listen("up");
        form.Show();
    }
    MouseHandler Listen(const std::string& what)
    {
        return [this, what](const MouseEvent& event) {
            heard.push_back({what, event.button, event.shift, event.x, event.y});
            cursors.push_back(platform.Cursor());
        };
    }

    Form form{forms, "mouse", {4000, 3600}};
    PictureBox surface;
    Label card;
    std::vector<Heard> heard;
    std::vector<PixelPoint> cursors;
};

TEST_F(MouseTest, ACardHasTheMouseFromPressToRelease)
{
    hand.Press(card, {3, 4});
    hand.Move(card, {103, -20});
    hand.Move(card, {5000, 2000}); // far outside the window
    hand.Move(card, {5, 6});
    hand.Release(card, {5, 6});
    const std::vector<Heard> expected = {{"down", LeftButton, 0, 45, 60},
                                         {"move", 0, 0, 1545, -300},
                                         {"move", 0, 0, 75000, 30000},
                                         {"move", 0, 0, 75, 90},
                                         {"up", LeftButton, 0, 75, 90}};
    EXPECT_EQ(heard, expected);
    ASSERT_EQ(cursors.size(), 5U);
    // The cursor moves by what the events say, whatever the window system tells meanwhile.
    EXPECT_EQ(cursors[1].x - cursors[0].x, 100);
    EXPECT_EQ(cursors[1].y - cursors[0].y, -24);
    EXPECT_EQ(cursors[4].x - cursors[0].x, 2);

    heard.clear();
    hand.Move(card, {4, 4});
    EXPECT_TRUE(heard.empty()) << "without a press";
}

TEST_F(MouseTest, EveryButtonHasItsNumberAndADoubleClickIsTwoPresses)
{
    QWindow& window = *platform.WindowOf(form)->windowHandle();
    const QPoint place(25, 55);
    QTest::mouseClick(&window, Qt::RightButton, Qt::ControlModifier, place);
    QTest::mouseClick(&window, Qt::MiddleButton, Qt::ShiftModifier | Qt::AltModifier, place);
    const Twips x = 25 * 15 - 330;
    const Twips y = 55 * 15 - 750;
    EXPECT_EQ(heard, (std::vector<Heard>{{"down", RightButton, ControlKey, x, y},
                                         {"up", RightButton, ControlKey, x, y},
                                         {"down", MiddleButton, ShiftKey + AltKey, x, y},
                                         {"up", MiddleButton, ShiftKey + AltKey, x, y}}));
    heard.clear();
    QTest::mouseDClick(&window, Qt::LeftButton, {}, place);
    ASSERT_GE(heard.size(), 4U);
    EXPECT_EQ(heard[heard.size() - 2].what, "down");
    EXPECT_EQ(heard.back().what, "up");
}

TEST_F(MouseTest, ALostReleaseDoesNotHoldTheMouseForEver)
{
    Label other;
    other.SetBounds(1500, 300, 405, 375);
    int otherPresses = 0;
    other.OnMouseDown = [&](const MouseEvent&) { ++otherPresses; };
    surface.Add(other);
    form.FeedMouseDown({LeftButton, 0, 400, 800}); // and its release never comes
    ASSERT_EQ(form.Captured(), &card);
    hand.Click(other);
    EXPECT_EQ(heard.back().what, "up");
    EXPECT_EQ(otherPresses, 1);
}

TEST_F(MouseTest, LabelsOnAFrameAndAFormWithItsInputHeld)
{
    Frame frame;
    frame.SetBounds(300, 1200, 2000, 1500);
    Label inFrame;
    inFrame.SetBounds(300, 600, 600, 300);
    frame.Add(inFrame);
    surface.Add(frame);
    inFrame.OnMouseUp = Listen("frame");
    Events();
    hand.Click(inFrame, {2, 3});
    EXPECT_EQ(heard, (std::vector<Heard>{{"frame", LeftButton, 0, 30, 45}}));
    {
        const InputHold hold(form);
        hand.Click(card);
    }
    EXPECT_EQ(heard.size(), 1U);
}

} // namespace
} // namespace tessarine
