#include "stage.h"

#include <QImage>

#include <array>
#include <deque>
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

class Palette : public UserControl
{
protected:
    // As odd as positions can be: a scale of its own, cells that end between two pixels.
    void Draw(Canvas& canvas) const override
    {
        for (int cell = 0; cell < 16; ++cell) {
            const int row = cell / 4;
            const Twips x = 37.1 + 241.5 * (cell % 4);
            const Twips y = 29.9 + 224.2 * row;
            canvas.FillBox({x, y}, {x + 204.3, y + 199.3}, PaletteColour(cell));
        }
        for (int level = 0; level <= 256; ++level) {
            const Twips x = (10 + level) * 3.7149463;
            canvas.DrawLine({x, 946.7}, {x, 1146.0}, Rgb(level * 200 / 256, level * 100 / 256, 0));
        }
    }
};

class PaintingTest : public DesktopTest
{
protected:
    PaintingTest()
    {
        surface.SetBounds(30, 450, 3900, 3000);
        surface.SetBackColor(Ground);
        form.Add(surface);
    }

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

    Form form{forms, "painting", {4000, 3600}};
    PictureBox surface;
    std::deque<Label> labels;
};

TEST_F(PaintingTest, EdgesAreSharpAndBordersEvenAtEveryScale)
{
    const Label& label = AddLabel(647.5, 193.75, Face);
    form.SetBackColor(Ground);
    form.Show();
    const std::set<QRgb> expected = {Pixel(Ground), Pixel(Face), Pixel(Black)};
    for (const double scale : Scales) {
        const QImage image = Shown(form, scale);
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colours.insert(image.pixel(x, y));
            }
        }
        EXPECT_EQ(colours, expected) << "a mixed colour is a soft edge, at " << scale;

        const int border = NearestPixel(scale);
        const QRect onSurface =
            RoundedRect(label.Left(), label.Top(), label.Width(), label.Height(), scale / 15);
        // At 1.25 the surface itself begins between two pixels.
        const QRect rect = onSurface.translated(NearestPixel(2 * scale), NearestPixel(30 * scale));
        const QPoint middle = rect.center();
        for (int i = 0; i < border; ++i) {
            EXPECT_EQ(image.pixel(rect.left() + i, middle.y()), Pixel(Black)) << scale;
            EXPECT_EQ(image.pixel(rect.right() - i, middle.y()), Pixel(Black)) << scale;
            EXPECT_EQ(image.pixel(middle.x(), rect.top() + i), Pixel(Black)) << scale;
            EXPECT_EQ(image.pixel(middle.x(), rect.bottom() - i), Pixel(Black)) << scale;
        }
        EXPECT_EQ(image.pixel(rect.left() - 1, middle.y()), Pixel(Ground)) << scale;
        EXPECT_EQ(image.pixel(rect.left() + border, middle.y()), Pixel(Face)) << scale;
        EXPECT_EQ(image.pixel(rect.right() - border, middle.y()), Pixel(Face)) << scale;
    }
}

TEST_F(PaintingTest, WhatIsInFrontHidesWhatIsBehind)
{
    Label& back = AddLabel(300, 300, PaletteColour(1));
    Label& front = AddLabel(450, 450, PaletteColour(4));
    const Label& glass = AddLabel(600, 300, PaletteColour(14));
    labels.back().SetOpaque(false);
    Palette button;
    button.SetBounds(420, 420, 150, 150);
    button.SetBackColor(PaletteColour(9));
    surface.Add(button);
    form.Show();
    const QPoint both(43, 40); // in the first two labels
    const QPoint onButton(29, 29);
    EXPECT_EQ(Shown(surface, 1).pixel(both), Pixel(front.BackColor()));
    EXPECT_EQ(Shown(surface, 1).pixel(onButton), Pixel(button.BackColor()));
    EXPECT_EQ(Shown(surface, 1).pixel(60, 25), Pixel(Ground)) << "a label that is not opaque";
    EXPECT_EQ(Shown(surface, 1).pixel(50, 20), Pixel(Black)) << "has its border all the same";
    EXPECT_FALSE(glass.IsOpaque());

    back.BringToFront();
    EXPECT_EQ(Shown(surface, 1).pixel(both), Pixel(back.BackColor()));
    EXPECT_EQ(Shown(surface, 1).pixel(onButton), Pixel(button.BackColor()));
    back.SetVisible(false);
    EXPECT_EQ(Shown(surface, 1).pixel(both), Pixel(front.BackColor()));
}

TEST_F(PaintingTest, ADigitIsNeverCutOff)
{
    Label& high = AddLabel(300, 300, Black);
    Label& low = AddLabel(1200, 300, Black);
    high.SetHeight(1500);
    form.Show();
    const auto ink = [&](const Label& label, double scale) {
        const QRect rect =
            RoundedRect(label.Left(), label.Top(), label.Width(), label.Height(), scale / 15);
        const int border = NearestPixel(scale);
        const QImage image = Shown(surface, scale).copy(rect.adjusted(border, border, -border, -border));
        QRect inked;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != Pixel(Black)) {
                    inked |= QRect(x, y, 1, 1);
                }
            }
        }
        return inked;
    };
    for (const char* const name : {"Arial", "DejaVu Sans", "C059", "Courier New"}) {
        for (const double points : {13.0, 16.0, 17.0}) { // lines of the last are higher than the label
            for (Label* label : {&high, &low}) {
                label->SetFont({.name = name, .size = points, .bold = true, .underline = true});
                label->SetCaption("8");
            }
            for (const double scale : Scales) {
                EXPECT_GT(ink(high, scale).height(), points * scale / 2)
                    << name << points << " at " << scale;
                EXPECT_EQ(ink(low, scale).height(), ink(high, scale).height())
                    << name << ' ' << points << " at " << scale;
            }
        }
    }
}

TEST_F(PaintingTest, AClickFindsTheColourThatADrawingShows)
{
    Palette palette;
    palette.SetBounds(150, 270, 2025, 1635);
    palette.SetBackColor(White);
    form.Add(palette);
    form.Show();
    for (const double scale : {1.0, 2.0}) {
        const QImage image = Shown(palette, scale);
        const Twips pixel = TwipsPerPixel / scale;
        int wrong = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const Colour colour = palette.Drawing().ColourAt({x * pixel, y * pixel}, TwipsPerPixel);
                wrong += image.pixel(x, y) == Pixel(colour) ? 0 : 1;
            }
        }
        EXPECT_EQ(wrong, 0) << "pixels at " << scale;
    }
}

TEST_F(PaintingTest, OnlyWhatChangedIsPaintedAndOnlyOnce)
{
    constexpr int many = 60;
    for (int i = 0; i < many; ++i) {
        const int row = i / 8;
        AddLabel(40 + 480.0 * (i % 8), 100 + 375.0 * row, Face);
    }
    form.Show();
    QTest::qWait(50);
    PaintCounter onSurface;
    onSurface.Watch(WidgetOf(platform, surface));
    PaintCounter onForm;
    onForm.Watch(*platform.WindowOf(form));

    Label& moved = labels.front();
    moved.BringToFront();
    moved.Move(moved.Left() + 45, moved.Top() + 30);
    moved.SetCaption("7");
    moved.SetBackColor(PaletteColour(4));
    QTest::qWait(20);
    EXPECT_EQ(onSurface.events, 1);
    EXPECT_EQ(onSurface.pixels, (27 + 3) * (25 + 2)) << "the place before and the place after";
    EXPECT_EQ(onForm.events, 0);

    moved.SetCaption("7");
    moved.Move(moved.Left(), moved.Top());
    QTest::qWait(20);
    EXPECT_EQ(onSurface.events, 1) << "no change, no paint";

    onSurface.pixels = 0;
    moved.Move(3000, 2000); // far away: two places, not all that lies between
    QTest::qWait(20);
    EXPECT_GE(onSurface.pixels, 2 * 27 * 25);
    EXPECT_LE(onSurface.pixels, 2 * 28 * 26);
}

} // namespace
} // namespace tessarine
