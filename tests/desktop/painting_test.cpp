#include "appearance/colour_picker.h"
#include "kit/box_button.h"
#include "stage.h"
#include "support/seen_contrast.h"

#include <QPushButton>

#include <deque>
#include <map>
#include <set>

namespace tessarine
{
namespace
{

constexpr std::array<double, 5> Scales = {1, 1.25, 1.5, 2, 3};
constexpr Colour Ground = Rgb(188, 208, 190);
constexpr Colour Face = Rgb(0, 128, 0);

QRgb Pixel(Colour colour)
{
    return qRgb(clrRed(colour), clrGreen(colour), clrBlue(colour));
}

/// What encloses the pixels that have another colour than the one expected there; empty for none.
template <class Expected> QRect Differing(const QImage& image, Expected expectedAt)
{
    QRect differing;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != Pixel(expectedAt(QPoint(x, y)))) {
                differing |= QRect(x, y, 1, 1);
            }
        }
    }
    return differing;
}

QRect PixelsOf(const Label& label, double scale)
{
    return RoundedRect(label.Left(), label.Top(), label.Width(), label.Height(), scale / TwipsPerPixel);
}
QRect InsideBorder(const QRect& rect, double scale)
{
    const int border = NearestPixel(scale);
    return rect.adjusted(border, border, -border, -border);
}

class PaintingTest : public DesktopTest
{
protected:
    PaintingTest() { surface.SetBackColor(Ground); }

    Label& AddLabel(Twips left, Twips top, Colour colour)
    {
        Label& label = labels.emplace_back();
        label.SetBounds(left, top, 405, 375);
        label.SetBackColor(colour);
        label.SetForeColor(White);
        label.SetBorder(true);
        label.SetAlign(Alignment::Centre);
        surface.Add(label);
        return label;
    }

    /// What the control's widget shows at a scale of the screen.
    QImage Shown(const Control& control, double scale)
    {
        QWidget& widget = WidgetOf(platform, control);
        QImage image(NearestPixel(widget.width() * scale), NearestPixel(widget.height() * scale),
                     QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::magenta);
        widget.render(&image);
        return image;
    }

    std::deque<Label> labels;
};

TEST_F(PaintingTest, EdgesAreSharpAndBordersEvenAtEveryScale)
{
    const Label& label = AddLabel(647.5, 193.75, Face);
    form.SetBackColor(Ground);
    Show({&surface});
    for (const double scale : Scales) {
        // At 1.25 the surface itself begins between two pixels.
        const QPoint corner(NearestPixel(2 * scale), NearestPixel(30 * scale));
        const QRect rect = PixelsOf(label, scale).translated(corner);
        const QRect wrong = Differing(Shown(form, scale), [&](QPoint at) {
            return InsideBorder(rect, scale).contains(at) ? Face : rect.contains(at) ? Black : Ground;
        });
        EXPECT_TRUE(wrong.isEmpty()) << wrong.x() << ", " << wrong.y() << " at " << scale;
    }
}

TEST_F(PaintingTest, TheBaseOfAColumnIsSunk)
{
    AddLabel(300, 300, Face).SetSunken(true);
    Show({&surface});
    const QImage shown = Shown(surface, 1).copy(20, 20, 27, 25);
    const auto lightness = [&](int x, int y) { return qGray(shown.pixel(x, y)); };
    EXPECT_LT(std::max(lightness(13, 0), lightness(0, 12)), lightness(13, 12));
    EXPECT_GT(std::min(lightness(13, 24), lightness(26, 12)), lightness(13, 12));
}

TEST_F(PaintingTest, ADigitIsNeverCutOff)
{
    Label& high = AddLabel(300, 300, Black);
    Label& low = AddLabel(1200, 300, Black);
    high.SetHeight(1500);
    Show({&surface});
    const auto ink = [&](const Label& label, double scale) {
        const QRect inside = InsideBorder(PixelsOf(label, scale), scale);
        return Differing(Shown(surface, scale).copy(inside), [](QPoint) { return Black; }).height();
    };
    for (const char* const name : {"Arial", "DejaVu Sans", "C059", "Courier New"}) {
        for (const double points : {13.0, 17.0}) { // lines of the last are higher than the label
            for (Label* label : {&high, &low}) {
                label->SetFont({.name = name, .size = points, .bold = true, .underline = true});
                label->SetCaption("8");
            }
            for (const double scale : Scales) {
                EXPECT_GT(ink(high, scale), points * scale / 2) << name << points << " at " << scale;
                EXPECT_EQ(ink(low, scale), ink(high, scale)) << name << points << " at " << scale;
            }
        }
    }
}

/// Of cards that overlap, each point shows the one in front; a digit stands in the middle.
TEST_F(PaintingTest, WhatLiesInFrontIsSeenAndADigitIsInTheMiddle)
{
    for (int i = 0; i < 6; ++i) {
        AddLabel(300 + 105 * (i % 3), 300 + 135 * (i % 4), Rgb(30 * i, 90, 250 - 40 * i))
            .SetBorder(false);
    }
    Show({&surface});
    for (const int toFront : {0, 2, 0, 4}) {
        labels[static_cast<std::size_t>(toFront)].BringToFront();
        Events();
        const QImage shown = WidgetOf(platform, surface).grab().toImage();
        const QRect wrong = Differing(shown, [&](QPoint at) {
            const Control* const front = surface.FrontMostAt(at.x() * 15 + 7, at.y() * 15 + 7);
            return front == nullptr ? Ground : front->BackColor();
        });
        EXPECT_TRUE(wrong.isEmpty()) << wrong.x() << ", " << wrong.y();
    }
    std::deque<BoxButton> buttons(2);
    for (BoxButton& button : buttons) {
        button.SetBounds(1500, 1500, 600, 300);
        surface.Add(button);
    }
    for (BoxButton* toFront : {&buttons[0], &buttons[1], &buttons[0]}) {
        toFront->BringToFront();
        Events();
        EXPECT_EQ(WidgetOf(platform, surface).childAt(110, 110), &WidgetOf(platform, *toFront));
    }
    Label& digit = AddLabel(2000, 300, Black);
    digit.SetFont({.name = "Arial", .size = 13, .bold = true});
    digit.SetCaption("8");
    for (const double scale : Scales) {
        const QRect inside = InsideBorder(PixelsOf(digit, scale), scale);
        const QRect ink = Differing(Shown(surface, scale).copy(inside), [](QPoint) { return Black; });
        EXPECT_NEAR(ink.left(), inside.width() - 1 - ink.right(), 1 + scale) << scale;
    }
    std::vector<QImage> looks;
    for (const auto& [bold, italic] : {std::pair(false, false), {true, false}, {false, true}}) {
        digit.SetFont({.name = "Arial", .size = 13, .bold = bold, .italic = italic});
        const QImage shown = Shown(surface, 1);
        EXPECT_EQ(std::ranges::count(looks, shown), 0) << bold << italic;
        looks.push_back(shown);
    }
}

/// Runs at several scale factors of the whole program.
TEST_F(PaintingTest, AClickTakesTheColourThatItsPixelShows)
{
    constexpr Colour base = Rgb(200, 100, 50);
    ColPik picker;
    picker.SetBounds(155, 277, 2025, 1635); // its corner is no whole pixel
    Show({&picker});
    picker.SetSchemeColor(base);
    Events();
    FormWindow& window = *platform.WindowOf(form);
    const QImage shown = window.grab().toImage();
    const double ratio = shown.devicePixelRatio();
    const auto pixels = [ratio](Twips twips) { return NearestPixel(twips / TwipsPerPixel * ratio); };
    QPoint wrong;
    std::set<QRgb> inBar;
    for (int y = pixels(300); y < pixels(277 + 1370); ++y) {
        for (int x = pixels(170); x < pixels(155 + 1030); ++x) {
            const QPointF at = QPointF(x, y) / ratio;
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, {});
                QCoreApplication::sendEvent(window.windowHandle(), &event);
            }
            if (Pixel(picker.SchemeColor()) != shown.pixel(x, y)) {
                wrong = {x, y};
            }
            if (y == pixels(277 + 1050)) {
                inBar.insert(shown.pixel(x, y));
            }
            picker.SetSchemeColor(base);
        }
    }
    EXPECT_TRUE(wrong.isNull()) << wrong.x() << ", " << wrong.y() << " at " << ratio;
    EXPECT_TRUE(inBar.contains(Pixel(Black)) && inBar.contains(Pixel(base))) << "both ends can be seen";
}

double ContrastOf(QRgb one, QRgb other)
{
    return SeenContrast({qRed(one), qGreen(one), qBlue(one)},
                        {qRed(other), qGreen(other), qBlue(other)});
}

/// How wide each line is that the way from a place crosses, up to the middle of the image.
std::vector<int> LinesOnWay(const QImage& image, QPoint from, QPoint step, QRgb ground, double visible)
{
    std::vector<int> lines(1);
    for (QPoint at = from; at != image.rect().center(); at += step) {
        const QRgb pixel = image.pixel(at);
        if (pixel != ground) {
            ++lines.back();
            EXPECT_GE(ContrastOf(pixel, ground), visible) << "on " << std::hex << ground;
        } else if (lines.back() > 0) {
            lines.push_back(0);
        }
    }
    lines.pop_back();
    return lines;
}

TEST_F(PaintingTest, FramesAndMarksAreSeenOnEveryGroundAndEvenAtEveryScale)
{
    Frame frame;
    ListBox list;
    TextBox text;
    OptionButton option;
    const std::vector<Control*> controls = {&frame, &list, &text, &option};
    for (Control* control : controls) {
        control->SetBounds(155, 200 + (control == &frame ? 0.0 : 1055), 995, 845);
    }
    Show({&frame, &list, &text, &option});
    for (const Colour ground : {Black, White, Rgb(117, 117, 117), Rgb(255, 0, 0), Rgb(0, 0, 255)}) {
        for (Control* control : controls) {
            control->SetBackColor(ground);
            control->BringToFront();
            Events();
            if (control->TakesFocus()) {
                WidgetOf(platform, *control).setFocus();
            }
            const std::size_t lines = control == &list ? 2 : 1; // frame and mark
            for (const double scale : Scales) {
                const QImage shown = Shown(*control, scale);
                const QPoint middle = shown.rect().center();
                const auto way = [&](QPoint from, QPoint step) {
                    return LinesOnWay(shown, from, step, Pixel(ground), 3);
                };
                const std::vector<int> wanted(lines, NearestPixel(scale));
                EXPECT_EQ(way({middle.x(), shown.height() - 1}, {0, -1}), wanted) << scale;
                EXPECT_EQ(way({shown.width() - 1, middle.y()}, {-1, 0}), wanted) << scale;
                if (control != &option) {
                    EXPECT_EQ(way({0, middle.y()}, {1, 0}), wanted) << scale;
                    EXPECT_EQ(way({middle.x(), 0}, {0, 1}), wanted) << scale;
                }
            }
        }
    }
}

TEST_F(PaintingTest, AButtonOfTheToolkitLooksLikeOneOfTheProgram)
{
    BoxControl box;
    PushButton button;
    const auto bothAlike = [&](const char* state) {
        Events();
        for (const double scale : Scales) {
            EXPECT_EQ(Shown(button, scale), Shown(box, scale)) << state << " at " << scale;
        }
    };
    const auto furnish = [](auto& control, Twips top) {
        control.SetCaption("Wide & Fair");
        control.SetBounds(300, top, 1095, 375);
        control.SetBackColor(Face);
    };
    furnish(box, 300), furnish(button, 900);
    form.TakesKeys = false;
    Show({&button, &box});
    bothAlike("up");
    box.MousePressed({});
    Native<QPushButton>(button).setDown(true);
    bothAlike("down");
}

/// The contrast of the colour that stands out most to the one that there is most of, near the middle.
double ContrastOfText(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 5; y < image.height() - 5; ++y) {
        for (int x = 24; x < image.width() - 5; ++x) { // beside a mark that can be set
            ++counts[image.pixel(x, y)];
        }
    }
    const QRgb ground = std::ranges::max_element(counts, {}, &std::pair<const QRgb, int>::second)->first;
    double best = 1;
    for (const auto& [pixel, count] : counts) {
        best = std::max(best, ContrastOf(pixel, ground));
    }
    return best;
}

TEST_F(PaintingTest, TextOfNoFixedColourCanBeReadOnEveryGround)
{
    BoxControl box;
    PushButton button;
    OptionButton option;
    CheckBox check;
    Label label;
    std::vector<Control*> controls;
    const auto furnish = [&](auto& control) {
        control.SetCaption("HHHHHH");
        control.SetBounds(150, 600 * static_cast<Twips>(controls.size()), 1800, 600);
        control.SetFont({.name = "Arial", .size = 16, .bold = true});
        controls.push_back(&control);
    };
    furnish(box), furnish(button), furnish(option), furnish(check), furnish(label);
    Show({&box, &button, &option, &check, &surface});
    surface.Add(label);
    surface.BringToFront();
    label.SetBounds(0, 0, surface.Width(), surface.Height());
    // Between the two that stand out best black and white are nearly even.
    for (const Colour ground : {Black, White, Rgb(117, 117, 117), Rgb(118, 118, 118), Rgb(119, 119, 119),
                                Rgb(255, 0, 0), Rgb(0, 128, 0), Rgb(0, 0, 255), Rgb(200, 80, 0),
                                Rgb(0, 110, 200), Rgb(150, 60, 220), Rgb(90, 130, 20)}) {
        for (Control* control : controls) {
            control->SetBackColor(ground);
        }
        Events();
        for (const Control* control : controls) {
            const Control& shown = control == &label ? surface : *control;
            EXPECT_GE(ContrastOfText(Shown(shown, 1)), ReadableContrast)
                << static_cast<int>(control->Kind()) << " on " << ground;
        }
        label.SetOpaque(false); // what it stands on is its ground then
        label.SetBackColor(ButtonFace);
        surface.SetBackColor(ground);
        EXPECT_GE(ContrastOfText(Shown(surface, 1)), ReadableContrast) << "clear on " << ground;
        label.SetOpaque(true);
    }
}

TEST_F(PaintingTest, OnlyWhatChangedIsPaintedAndOnlyOnce)
{
    AddLabel(40, 100, Face);
    AddLabel(1000, 1000, Face);
    Show({&surface});
    QTest::qWait(50);
    PaintCounter onSurface;
    PaintCounter onForm;
    onSurface.Watch(WidgetOf(platform, surface));
    onForm.Watch(*platform.WindowOf(form));

    Label& moved = labels.front();
    moved.BringToFront();
    moved.Move(moved.Left() + 45, moved.Top() + 30);
    for (const char* const caption : {"7", "7"}) { // the second time there is no change
        moved.SetCaption(caption);
        QTest::qWait(20);
        EXPECT_EQ(onSurface.events, 1);
        EXPECT_EQ(onSurface.pixels, (27 + 3) * (25 + 2)) << "the place before and the place after";
    }
    moved.Move(3000, 2000); // far away: two places, not all that lies between
    QTest::qWait(20);
    EXPECT_GE(onSurface.pixels, (27 + 3) * (25 + 2) + 2 * 27 * 25);
    EXPECT_LE(onSurface.pixels, (27 + 3) * (25 + 2) + 2 * 28 * 26);
    EXPECT_EQ(onForm.events, 0);
}

} // namespace
} // namespace tessarine
