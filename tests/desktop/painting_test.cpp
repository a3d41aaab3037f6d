#include "appearance/colour_picker.h"
#include "desktop/painter.h"
#include "desktop/text.h"
#include "kit/box_button.h"
#include "stage.h"
#include "support/seen_contrast.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPushButton>

#include <deque>
#include <map>
#include <random>
#include <set>

namespace tessarine
{
namespace
{

constexpr std::array<double, 5> Scales = {1, 1.25, 1.5, 2, 3};
constexpr Colour Ground = Rgb(188, 208, 190);
constexpr Colour Face = Rgb(0, 128, 0);
// Between the two greys that stand out best black and white are nearly even.
constexpr std::array Grounds = {
    Black, White,  Rgb(117, 117, 117), Rgb(118, 118, 118), Rgb(119, 119, 119),
    Face,  Ground, Rgb(255, 0, 0),     Rgb(0, 0, 255),     Rgb(200, 80, 0)};

QRgb Pixel(Colour colour)
{
    return qRgb(clrRed(colour), clrGreen(colour), clrBlue(colour));
}

double ContrastOf(QRgb one, QRgb other)
{
    return SeenContrast({qRed(one), qGreen(one), qBlue(one)},
                        {qRed(other), qGreen(other), qBlue(other)});
}

/// What encloses the pixels that are none of those that may be there; empty for none.
template <class MayBe> QRect Wrong(const QImage& image, MayBe mayBe)
{
    QRect wrong;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!mayBe(QPoint(x, y), image.pixel(x, y))) {
                wrong |= QRect(x, y, 1, 1);
            }
        }
    }
    return wrong;
}
QRect InkOn(const QImage& image, Colour ground)
{
    return Wrong(image, [=](QPoint, QRgb pixel) { return pixel == Pixel(ground); });
}

/// The pixel that begins nearest to a place, of a control's own container.
int PixelAt(Twips place, double scale)
{
    return static_cast<int>(std::floor(place * scale / 15 + 0.5));
}
QRect PixelsOf(const Control& control, double scale)
{
    const auto at = [=](Twips x, Twips y) { return QPoint(PixelAt(x, scale), PixelAt(y, scale)); };
    return {at(control.Left(), control.Top()),
            at(control.Left() + control.Width(), control.Top() + control.Height()) - QPoint(1, 1)};
}

const Picture Square{8, {{Shape::Kind::Polygon, {{0, 0}, {8, 0}, {8, 8}, {0, 8}}, Face, {}, 1, 0, 0}}};

class PaintingTest : public DesktopTest
{
protected:
    PaintingTest()
    {
        list.Add("HHHHHH");
        list.Add("second");
        text.SetText("HHHHHH");
        const auto write = [](auto&... control) { (control.SetCaption("HHHHHH"), ...); };
        write(box, button, option, check, label);
    }

    /// What the control's widget shows at a scale of the screen.
    QImage Shown(const Control& control, double scale)
    {
        QWidget& widget = WidgetOf(platform, control);
        QImage shown(NearestPixel(widget.width() * scale), NearestPixel(widget.height() * scale),
                     QImage::Format_RGB32);
        shown.setDevicePixelRatio(scale);
        shown.fill(Qt::magenta);
        widget.render(&shown);
        return shown;
    }
    /// What has really come to the screen.
    QImage OnScreen()
    {
        Events();
        const QWidget& window = *platform.WindowOf(form);
        return window.screen()->grabWindow(window.winId()).toImage();
    }

    Label label;
    Image image;
    Frame frame;
    ListBox list;
    TextBox text;
    OptionButton option;
    CheckBox check;
    PushButton button;
    BoxControl box;
    ScrollBar bar{ScrollBar::Direction::Down};
    std::mt19937 random{5};
    int Any(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    Colour AnyColour() { return Rgb(Any(6) * 51, Any(6) * 51, Any(6) * 51); }
};
using ScreenTest = PaintingTest; ///< runs at several scale factors of the whole program, too

TEST_F(ScreenTest, AfterAnyChangesTheScreenIsThatOfAWindowMadeAnew)
{
    OptionButton other;
    std::deque<Label> labels(6);
    const std::vector<Control*> windowed = {&surface, &frame, &list,   &text, &option,
                                            &other,   &check, &button, &box,  &bar};
    std::vector<Control*> all = windowed;
    for (Label& each : labels) {
        (&each == &labels.back() ? static_cast<Container&>(frame) : surface).Add(each);
        all.insert(all.end(), {&each, &each, &each});
    }
    surface.Add(image);
    image.Show(Square);
    all.push_back(&image);
    const auto anyOf = [this](auto& many, std::size_t first = 0) -> auto&
    {
        return many[first + static_cast<std::size_t>(Any(static_cast<int>(many.size() - first)))];
    };
    const auto yes = [this] { return Any(3) > 0; };
    const auto digits = [this] { return std::to_string(Any(99)); };
    Control* one = nullptr;
    const auto place = [&] {
        one->SetBounds(Any(300) * 13, Any(200) * 14, 250 + Any(1500), 250 + Any(900));
    };
    for (Control* each : all) {
        one = each;
        place();
    }
    const std::vector<std::function<void()>> changes = {
        place,
        [&] { one->Move(one->Left() + 40 - Any(80), one->Top() + 35 - Any(70)); },
        [&] { one->SetVisible(yes()); },
        [&] { one->SetBackColor(AnyColour()); },
        [&] { one->SetForeColor(yes() ? WindowText : AnyColour()); },
        [&] {
            one->SetFont({"Arial", 8.0 + Any(9), yes(), yes(), yes()});
        },
        [&] { one->BringToFront(); },
        [&] { one->SendToBack(); },
        [&] { anyOf(labels).SetCaption(digits()); },
        [&] { anyOf(labels).SetBorder(yes()); },
        [&] { anyOf(labels).SetOpaque(yes()); },
        [&] { one->SetEnabled(yes()); },
        [&] { frame.SetCaption(digits()); },
        [&] { text.SetText(digits() + "\r\nmore"); },
        [&] { box.SetCaption(digits()); },
        [&] { option.SetValue(yes()); },
        [&] { other.SetValue(yes()); },
        [&] { check.SetValue(yes()); },
        [&] { bar.SetRange(Any(9), Any(9), 1, 1 + Any(3)); },
        [&] { bar.SetValue(Any(9)); },
        [&] { list.Add(digits()); },
        [&] { list.Select(static_cast<std::size_t>(Any(6))); },
        [&] { form.SetBackColor(AnyColour()); },
        [&] {
            form.SetClientArea({4500.0 + Any(50) * 30, 3750.0 + Any(50) * 15});
        }};
    constexpr int ofLabels = 11;
    form.Sizable = true;
    form.TakesKeys = false;
    Show(windowed);
    for (int round = 0; round < 400 && !HasFailure(); ++round) {
        const bool isFrozen = Any(5) == 0;
        const QImage before = OnScreen();
        platform.FreezeSurface(isFrozen ? &surface : nullptr);
        for (int more = Any(5); more >= 0; --more) {
            one = isFrozen ? &labels[static_cast<std::size_t>(Any(5))] : anyOf(all);
            (isFrozen ? changes[static_cast<std::size_t>(Any(ofLabels))] : anyOf(changes))();
        }
        EXPECT_TRUE(!isFrozen || OnScreen() == before) << round;
        platform.FreezeSurface(nullptr);
        const QImage shown = OnScreen();
        form.Unload();
        form.Show();
        EXPECT_TRUE(!shown.isNull() && shown == OnScreen()) << round;
    }
}

TEST_F(ScreenTest, AClickTakesTheColourThatItsPixelShows)
{
    constexpr Colour base = Rgb(200, 100, 50);
    ColPik picker;
    surface.SetBounds(120, 240, 4500, 3000);
    surface.Add(picker);
    picker.SetBounds(35, 37, 2025, 1635); // its corner is no whole pixel
    Show({&surface});
    picker.SetSchemeColor(base);
    Events();
    FormWindow& window = *platform.WindowOf(form);
    const QImage shown = window.grab().toImage();
    const double ratio = shown.devicePixelRatio();
    std::set<QRgb> taken;
    for (int y = PixelAt(300, ratio); y < PixelAt(1647, ratio); ++y) {
        for (int x = PixelAt(170, ratio) + y % 3; x < PixelAt(1185, ratio);
             x += y == PixelAt(1327, ratio) ? 1 : 3) {
            const QPointF at = QPointF(x, y) / ratio;
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, {});
                QCoreApplication::sendEvent(window.windowHandle(), &event);
            }
            ASSERT_EQ(Pixel(picker.SchemeColor()), shown.pixel(x, y))
                << x << ", " << y << " at " << ratio;
            taken.insert(shown.pixel(x, y));
            picker.SetSchemeColor(base);
        }
    }
    EXPECT_TRUE(taken.contains(Pixel(Black)) && taken.contains(Pixel(base))) << "both ends can be seen";
}

TEST_F(PaintingTest, EveryPixelShowsTheFrontMostOfWhatLiesThere)
{
    std::deque<Label> labels(20);
    image.Show(Square);
    image.SetBounds(500, 400, 1207, 600);
    surface.Add(image);
    for (Label& each : labels) {
        surface.Add(each);
    }
    surface.SetBounds(30, 450, 2100, 1395); // at 1.25 its corner is between two pixels
    Show({&surface});
    for (int round = 0; round < 6; ++round) {
        surface.SetBackColor(AnyColour());
        for (Label& each : labels) {
            each.SetBounds(Any(1900), Any(1100), 300 + Any(1100), 250 + Any(400));
            each.SetBackColor(AnyColour());
            each.SetBorder(Any(2) > 0);
            each.SetSunken(Any(3) == 0);
            each.SetOpaque(Any(4) > 0);
            each.SetVisible(Any(4) > 0);
        }
        labels[static_cast<std::size_t>(Any(20))].BringToFront();
        Events();
        for (const double scale : Scales) {
            std::vector<std::pair<const Label*, QRect>> seen; // back to front; none is the image
            for (const Control* each : surface.Children()) {
                QRect rect = PixelsOf(*each, scale);
                if (each == &image) { // its picture is a square
                    rect.adjust((rect.width() - rect.height()) / 2, 0, 0, 0);
                    rect.setWidth(rect.height());
                }
                if (each->Visible()) {
                    seen.emplace_back(dynamic_cast<const Label*>(each), rect);
                }
            }
            const auto mayBe = [&](QPoint at, QRgb pixel) {
                for (auto place = seen.rbegin(); place != seen.rend(); ++place) {
                    const auto& [front, rect] = *place;
                    if (rect.contains(at) && front == nullptr) {
                        return pixel == Pixel(Face);
                    }
                    if (!rect.contains(at)) {
                        continue;
                    }
                    // As thick as it would be on a card of the first size, and seen on either side.
                    const double lines = std::max(1.0, std::floor(front->Width() / 405));
                    const int border = front->HasBorder() ? PixelAt(lines * 15, scale) : 0;
                    if (!rect.adjusted(border, border, -border, -border).contains(at)) {
                        return ContrastOf(pixel, Pixel(front->BackColor())) >= 1.5 &&
                               ContrastOf(pixel, Pixel(surface.BackColor())) >= 1.5;
                    }
                    if (front->IsOpaque()) {
                        return pixel == Pixel(front->BackColor());
                    }
                }
                return pixel == Pixel(surface.BackColor());
            };
            const QImage shown = Shown(form, scale).copy(PixelsOf(surface, scale));
            EXPECT_EQ(Wrong(shown, mayBe), QRect()) << round << " at " << scale;
        }
    }
    Label& base = labels.back();
    base.Move(0, 0);
    base.SetBackColor(Face);
    base.SetBorder(true);
    base.SetSunken(true);
    base.SetVisible(true);
    base.BringToFront();
    surface.SetBackColor(Ground);
    Events();
    const QImage shown = Shown(surface, 1).copy(PixelsOf(base, 1));
    EXPECT_LT(std::max(qGray(shown.pixel(9, 0)), qGray(shown.pixel(0, 9))), qGray(Pixel(Face)));
    const QPoint end = shown.rect().bottomRight();
    EXPECT_GT(std::min(qGray(shown.pixel(9, end.y())), qGray(shown.pixel(end.x(), 9))),
              qGray(Pixel(Face)));
}

TEST_F(PaintingTest, TextHasTheSizeAndLookOfItsFontAndStaysInTheMiddleOfItsLabel)
{
    Label low;
    label.SetBounds(300, 100, 1500, 1500);
    low.SetBounds(2000, 300, 405, 375);
    for (Label* each : {&label, &low}) {
        surface.Add(*each);
        each->SetAlign(Alignment::Centre);
        each->SetBackColor(Black);
        each->SetForeColor(White);
    }
    surface.SetBackColor(Black);
    Show({&surface});
    const auto inkOf = [&](Label& on, const std::string& caption, double scale) {
        on.SetCaption(caption);
        return InkOn(Shown(surface, scale).copy(PixelsOf(on, scale)), Black);
    };
    std::vector<QImage> looks;
    for (const char* const name : {"Arial", "DejaVu Sans", "C059", "Courier New"}) {
        if (looks.size() >= 5 && !QFontDatabase::hasFamily(QString::fromLatin1(name))) {
            continue; // what stands for it is looked at already
        }
        for (const int style : {0, 1, 2, 3, 4}) {
            const double points = style == 0 ? 17 : 13; // the first is higher than the low label
            QFont same(QString::fromLatin1(name));
            same.setBold(style == 2);
            same.setItalic(style == 3);
            label.SetFont({name, points, style == 2, style == 3, style == 4});
            low.SetFont(label.Font());
            for (const double scale : Scales) {
                SCOPED_TRACE(testing::Message() << name << style << " at " << scale);
                same.setPointSizeF(points * scale);
                const QFontMetricsF metrics(same);
                const QRectF tight = metrics.tightBoundingRect(QStringLiteral("j\u00C5f"));
                const QRect seen = inkOf(label, "j\u00C5f", scale);
                EXPECT_NEAR(seen.width(), tight.width(), style == 4 ? points * scale : 2 + scale);
                EXPECT_NEAR(seen.height(), tight.height(), 2 + scale);
                const int two = inkOf(label, "8\r\n8", scale).height();
                const QRect one = inkOf(label, "8", scale);
                EXPECT_NEAR(two - one.height(), metrics.height(), 2 + 2 * scale);
                const int beside = PixelsOf(label, scale).width() - 1 - one.right();
                EXPECT_NEAR(one.left(), beside, style == 3 ? points * scale / 2 : 1 + scale);
                EXPECT_EQ(inkOf(low, "8", scale).height(), one.height());
            }
            looks.push_back(Shown(surface, 1));
            EXPECT_EQ(std::ranges::count(looks, looks.back()), 1) << name << style;
        }
    }
    label.SetVisible(false);
    inkOf(low, "8888888888", 1);
    EXPECT_TRUE(PixelsOf(low, 1).contains(InkOn(Shown(surface, 1), Black))) << "it stays in its label";
    low.SetFontName("Arial");
    const QImage inArial = Shown(surface, 1);
    low.SetFontName("Ariel");
    EXPECT_EQ(Shown(surface, 1), inArial);
    const std::vector<std::string> fonts = platform.ScreenFonts();
    EXPECT_TRUE(!fonts.empty() && std::ranges::is_sorted(fonts, std::ranges::less_equal()));
    for (const std::string& name : fonts) {
        const auto systems = QFontDatabase::writingSystems(ToText(name));
        EXPECT_TRUE(name.find('[') == std::string::npos && !systems.contains(QFontDatabase::Symbol))
            << name;
    }
}

TEST_F(PaintingTest, ADrawingIsWhereItsControlDrewItAtEveryScale)
{
    using enum Shape::Kind;
    struct Drawing : UserControl {
        void Draw(Canvas& canvas) const override
        {
            canvas.Clear(Ground);
            canvas.DrawLine({100, 100}, {1000, 100}, White);
            canvas.Print({100, 300}, "H\nH", {.name = "Arial", .size = 20}, Rgb(0, 0, 255));
            canvas.Paint({608, 403}, picture);
        }
        Picture picture;
    } drawing;
    drawing.picture = {32,
                       {{Polygon, {{2, 2}, {14, 2}, {8, 14}}, Face, Black, 3, 0, 0},
                        {Polyline, {{20, 4}, {28, 4}, {28, 12}}, {}, Black, 3, 0, 0},
                        {Ellipse, {{2, 20}, {14, 28}}, Face, {}, 1, 0, 0},
                        {Arc, {{18, 18}, {30, 30}}, {}, Black, 3, 0, 90}}};
    const std::map<Colour, std::vector<QPointF>> places = {
        {Face, {{8, 6}, {8, 21.5}, {3.5, 24}}},
        {Black, {{5, 8}, {11, 8}, {19.3, 4}, {28, 12.6}, {28.2, 19.8}}},
        {Ground, {{2, 8}, {17.5, 4}, {24, 8}, {2.7, 20.7}, {8, 18.5}, {28.2, 28.2}, {19.8, 19.8}}}};
    drawing.SetBounds(155, 277, 1500, 1500);
    Show({&drawing});
    for (const double scale : Scales) {
        const QImage shown = Shown(drawing, scale);
        const auto placeOf = [&](Colour colour) {
            return Wrong(shown, [=](QPoint, QRgb pixel) { return pixel != Pixel(colour); });
        };
        const QPoint past(PixelAt(1005, scale), PixelAt(105, scale));
        EXPECT_EQ(placeOf(White),
                  QRect(QPoint(PixelAt(90, scale), PixelAt(90, scale)), past - QPoint(1, 1)));
        EXPECT_GT(placeOf(Rgb(0, 0, 255)).height(), 1.8 * 20 * scale) << "two lines of text";
        const QPointF corner(PixelAt(608, scale) - 0.5, PixelAt(403, scale) - 0.5);
        for (const auto& [colour, points] : places) {
            for (const QPointF& at : points) {
                EXPECT_EQ(shown.pixel((corner + at * scale).toPoint()), Pixel(colour))
                    << at.x() << ", " << at.y() << " at " << scale;
            }
        }
    }
}

/// How wide the lines are along the right side of an image, from its edge inwards.
std::vector<int> LinesBeside(const QImage& image, QRgb ground, double scale)
{
    constexpr double visible = 3;
    std::vector<int> lines;
    for (int in = 0; in < PixelAt(4 * 15, scale); ++in) {
        const auto at = [&](int x) { return image.pixel(image.width() - 1 - x, image.height() / 2); };
        if (at(in) != ground) {
            lines.resize(lines.size() + (in == 0 || at(in - 1) == ground ? 1 : 0));
            ++lines.back();
            EXPECT_GE(ContrastOf(at(in), ground), visible) << "on " << std::hex << ground;
        }
    }
    return lines;
}

/// The contrast of the colour that stands out most to the one that there is most of, beside a mark that
/// can be set.
double ContrastOfText(const QImage& image)
{
    std::map<QRgb, int> counts;
    Wrong(image.copy(24, 5, image.width() / 2 - 24, image.height() - 10),
          [&](QPoint, QRgb pixel) { return ++counts[pixel] > 0; });
    const QRgb ground = std::ranges::max_element(counts, {}, &std::pair<const QRgb, int>::second)->first;
    double best = 1;
    for (const auto& [pixel, count] : counts) {
        best = std::max(best, ContrastOf(pixel, ground));
    }
    return best;
}

TEST_F(PaintingTest, TextFramesMarksAndStatesAreSeenOnEveryGround)
{
    const std::vector<Control*> controls = {&box,  &button, &option,  &check,
                                            &text, &list,   &surface, &frame};
    Label onFrame;
    surface.Add(label);
    frame.Add(onFrame);
    Show(controls);
    for (Control* each : std::initializer_list<Control*>{&label, &onFrame}) {
        each->SetBounds(300, 240, 1400, 340);
    }
    for (std::size_t i = 0; i < controls.size(); ++i) {
        controls[i]->SetBounds(155, 500 * static_cast<Twips>(i), 1795, 645);
        controls[i]->SetFont({.name = "Arial", .size = 14, .bold = true});
    }
    list.SetHeight(405); // for one row
    onFrame.SetCaption("HHHHHH");
    frame.SetCaption(std::string(99, ' ')); // its line leaves room for it
    for (const Colour ground : Grounds) {
        for (const bool isSet : {false, true}) {
            list.Select(isSet ? std::optional<std::size_t>(0) : std::nullopt);
            for (Control* control : controls) {
                control->SetBackColor(ground);
                control->BringToFront();
                if (control->TakesFocus()) {
                    Native(*control).setFocus(Qt::MouseFocusReason);
                }
                for (Label* each : {&label, &onFrame}) {
                    each->SetOpaque(!isSet); // what it stands on is its ground then
                    each->SetBackColor(isSet ? White : ground);
                }
                Events();
                SCOPED_TRACE(testing::Message() << int(control->Kind()) << isSet << " on " << ground);
                EXPECT_GE(ContrastOfText(Shown(*control, 1)), ReadableContrast);
                const QImage title = Shown(*control, 1).copy(20, 0, 60, 14);
                EXPECT_TRUE(control != &frame || InkOn(title, ground).isEmpty());
                const bool hasFrame = control == &frame || control == &text || control == &list;
                const bool hasMark = control == &option || control == &check || control == &list;
                for (const int turn : {0, 1, 2, 3}) {
                    if (!hasFrame && (!hasMark || turn == 2)) {
                        continue; // nothing is there, or the mark of an option
                    }
                    const bool isOpen = turn == 1 && control == &frame;
                    const std::size_t count = (hasFrame && !isOpen ? 1 : 0) + (hasMark ? 1 : 0);
                    for (const double scale : Scales) {
                        EXPECT_EQ(LinesBeside(
                                      Shown(*control, scale).transformed(QTransform().rotate(90 * turn)),
                                      Pixel(ground), scale),
                                  std::vector<int>(count, NearestPixel(scale)))
                            << turn << " at " << scale;
                    }
                }
            }
        }
    }
    bar.SetBounds(4500, 150, 255, 1800);
    Show({&bar});
    const std::vector<std::pair<Control*, std::function<void()>>> changes = {
        {&option, [&] { option.SetValue(true); }},    {&check, [&] { check.SetValue(true); }},
        {&option, [&] { option.SetEnabled(false); }}, {&button, [&] { button.SetEnabled(false); }},
        {&list, [&] { list.SetEnabled(false); }},     {&bar, [&] { bar.SetValue(100); }},
        {&bar, [&] { bar.SetRange(0, 0, 1, 1); }}};
    for (const auto& [control, change] : changes) {
        const QImage before = Shown(*control, 1);
        change();
        Events();
        EXPECT_NE(Shown(*control, 1), before) << static_cast<int>(control->Kind());
    }
    const auto leftOfMiddle = [this](const Control& control) { // where a dot is and a tick is not
        const QImage shown = Shown(control, 1);
        const QRect mark = InkOn(shown.copy(0, 5, 16, 33), control.BackColor());
        return shown.pixel(mark.left() + mark.width() * 2 / 5, mark.center().y() + 5);
    };
    EXPECT_NE(leftOfMiddle(option), leftOfMiddle(check));
    const QImage arrows = Shown(bar, 1);
    const auto width = [&](int y) { // of the part of an arrow that lies in a row
        const auto isGround = [&](QPoint, QRgb pixel) { return pixel == arrows.pixel(3, 4); };
        return Wrong(arrows.copy(3, y, 11, 1), isGround).width();
    };
    EXPECT_LT(width(5), width(7)) << "upwards";
    EXPECT_GT(width(arrows.height() - 8), width(arrows.height() - 6)) << "downwards";
}

TEST_F(PaintingTest, AButtonOfTheToolkitLooksLikeOneOfTheProgram)
{
    Twips top = 300;
    for (Control* each : std::initializer_list<Control*>{&box, &button}) {
        each->SetBounds(300, top += 600, 1095, 375);
        each->SetBackColor(Face);
    }
    box.SetCaption("Wide & Fair");
    button.SetCaption("Wide & Fair");
    form.SetBackColor(Black);
    Show({&button, &box});
    const QImage up = Shown(box, 1).copy(30, 0, 10, 25);
    const auto rowsOf = [&](Colour colour) {
        return Wrong(up, [=](QPoint, QRgb pixel) { return pixel != Pixel(colour); });
    };
    EXPECT_EQ(rowsOf(White), QRect(0, 0, 10, 1)) << "its edges above";
    EXPECT_EQ(rowsOf(Black), QRect(0, 23, 10, 1)) << "and below";
    const auto withKeyboard = [this](Control& one, double scale, bool isDown) {
        Native(one).setFocus(Qt::TabFocusReason);
        Native<QPushButton>(button).setDown(isDown);
        return Shown(one, scale);
    };
    for (const bool isDown : {false, true}) {
        isDown ? box.MousePressed({}) : box.MouseTaken();
        Events();
        for (const double scale : Scales) {
            EXPECT_EQ(withKeyboard(button, scale, isDown), withKeyboard(box, scale, isDown))
                << isDown << " at " << scale;
        }
    }
}

} // namespace
} // namespace tessarine
