// Storms through the toolkit: offscreen, or with QT_QPA_PLATFORM=xcb in real windows. Those that can be
// compared are played by a twin on the platform in memory first: after each gesture both programs have
// the same things in the same places, and the window shows the pixels that the twin says.
#include "desktop_stage.h"

#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

#include <map>
#include <set>
#include <sstream>

namespace tessarine::test
{
namespace
{

struct Spot {
    int x;
    int y;
    Colour colour;
};

/// What is to be seen of a program at rest.
struct Sight {
    std::set<std::string> things;
    std::string deal;
    std::vector<Spot> spots;
};

/// Place and look of each control that shows and has a name, but for the date. Which of two that lie
/// apart is in front depends on what was before.
std::set<std::string> ThingsOn(const Form1& form)
{
    std::set<std::string> things;
    const auto tell = [&](const Control& control) {
        const std::string name =
            ToBytes(ToText(control.AccessibleName()).remove(ToText(form.shared.AppDir)));
        if (name.empty() || &control == &form.Score1.Label1) {
            return;
        }
        std::ostringstream out;
        out << '"' << name << "\" " << control.Left() << ' ' << control.Top() << ' ' << control.Width()
            << ' ' << control.Height() << ' ' << control.BackColor();
        const auto* const label = dynamic_cast<const Label*>(&control);
        if (label != nullptr && !label->Caption().empty()) {
            const Font& font = label->Font();
            out << ' ' << label->ForeColor() << ' ' << font.name << ' ' << font.size << ' '
                << font.underline;
        }
        things.insert(out.str());
    };
    for (const Form* shown : form.AllForms().Loaded()) {
        if (shown->IsShown()) {
            things.insert(shown->Caption() + ' ' + DecimalText(static_cast<float>(shown->Width())) +
                          " by " + DecimalText(static_cast<float>(shown->Height())));
            ForEachShown(*shown, tell);
        }
    }
    for (const Colour colour : form.shared.SchemeColors) {
        things.insert("a colour of the scheme: " + NumberText(colour));
    }
    return things;
}

int Pixel(Twips place, double ratio)
{
    return static_cast<int>(std::floor(place * ratio / TwipsPerPixel + 0.5));
}

/// On narrower cards the text fills them.
constexpr Twips SmallestWithCorners = 300;

/// The four corners of each item that lie open, just inside its border, where no text comes.
std::vector<Spot> SpotsOf(const Form1& form, double ratio)
{
    const PictureBox& surface = form.table.Picture2;
    struct Area {
        int left, top, right, bottom;
        bool Has(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
    };
    const auto areaOf = [&](const Control& control) {
        const double right = control.Left() + control.Width();
        const double bottom = control.Top() + control.Height();
        return Area{Pixel(control.Left(), ratio), Pixel(control.Top(), ratio), Pixel(right, ratio),
                    Pixel(bottom, ratio)};
    };
    std::vector<Spot> spots;
    std::vector<Area> before; // those in front
    for (const bool light : {false, true}) {
        for (auto child = surface.Children().rbegin(); child != surface.Children().rend(); ++child) {
            const Control& item = **child;
            if (!item.Visible() || item.IsLight() != light) {
                continue;
            }
            const Area area = areaOf(item);
            const int border =
                std::max(1, Pixel(std::max(1.0, std::floor(item.Width() / 405)) * 15, ratio));
            for (const int x : {area.left + border, area.right - border - 1}) {
                for (const int y : {area.top + border, area.bottom - border - 1}) {
                    const auto hides = [&](const Area& other) { return other.Has(x, y); };
                    if (light && item.Width() >= SmallestWithCorners &&
                        std::ranges::none_of(before, hides)) {
                        spots.push_back({x, y, item.BackColor()});
                    }
                }
            }
            before.push_back(area);
        }
    }
    return spots;
}

/// Each program has its own luck, and what was before leaves traces: in which order items lie that lie
/// apart, and which show behind others.
void TakeDeal(Form1& form, const std::string& deal)
{
    Arrange(form, {});
    for (Label& item : form.table.cardy) {
        item.BringToFront();
    }
    const std::string path = form.shared.AppDir + "twin.gam";
    form.platform().WriteNewFile(path, deal);
    static_cast<void>(form.gameFile.LoadCardOrder(path));
    form.undo.Clear();
    static_cast<void>(form.snapshot.Take());
}

std::string Difference(const std::set<std::string>& here, const std::set<std::string>& there)
{
    const auto [one, other] = std::ranges::mismatch(here, there);
    return here == there ? ""
                         : (one == here.end() ? "nothing" : *one) + " and for the twin " +
                               (other == there.end() ? "nothing" : *other);
}

/// What the window shows elsewhere than the twin says. What another window may cover is not looked at.
std::string WrongPixel(DesktopStage& stage, const std::vector<Spot>& spots, StormCount& count)
{
    const auto& all = stage.form().AllForms().Loaded();
    if (std::ranges::count_if(all, &Form::IsShown) > 1) {
        return {};
    }
    FormWindow& window = *stage.platform().WindowOf(stage.form());
    const QImage image = window.screen()->grabWindow(window.winId()).toImage();
    const double ratio = window.devicePixelRatioF();
    const QRect screen = window.screen()->geometry().adjusted(1, 1, -1, -1);
    const PictureBox& surface = stage.form().table.Picture2;
    const QRect inside(QPoint(Pixel(surface.Left(), ratio), Pixel(surface.Top(), ratio)),
                       QSize(Pixel(surface.Width(), ratio) - 1, Pixel(surface.Height(), ratio) - 1));
    for (const Spot& spot : spots) {
        const QPoint at = inside.topLeft() + QPoint(spot.x, spot.y);
        const bool isOnScreen = screen.contains(window.mapToGlobal((QPointF(at) / ratio).toPoint()));
        if (!image.valid(at) || !inside.contains(at) || !isOnScreen) {
            continue;
        }
        ++count.pixels;
        const QColor shown = image.pixelColor(at);
        if (shown.red() + 256 * shown.green() + 65536 * shown.blue() != spot.colour) {
            return "the pixel " + std::to_string(at.x()) + ' ' + std::to_string(at.y()) + " is " +
                   shown.name().toStdString() + " and not " + std::to_string(spot.colour);
        }
    }
    return {};
}

/// Left out is what depends on time, on the focus, and on windows that keep their size.
std::vector<Gesture> Comparable(std::vector<Gesture> gestures)
{
    for (Gesture& gesture : gestures) {
        gesture.kind %= 64; // none lands inside
    }
    std::erase_if(gestures, [](const Gesture& gesture) {
        const GestureKind kind = KindOf(gesture);
        return kind == GestureKind::Refuse || (kind == GestureKind::Key && gesture.detail % 2 != 0);
    });
    return gestures;
}

} // namespace

std::string PlayHere(unsigned seed, const std::vector<Gesture>& gestures, StormCount& count)
{
    DesktopStage stage(seed);
    if (!IsCompared(seed)) {
        return PlayStorm(stage, seed, gestures, count);
    }
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const double ratio = screen.devicePixelRatio();
    std::vector<Gesture> comparable = Comparable(gestures);
    HeadlessStage twin(seed, ToTwips(screen.availableGeometry().size()));
    const QString folder = ToText(stage.form().shared.AppDir);
    const QString twinsFolder = ToText(twin.form().shared.AppDir);
    twin.world.platform.measure = [&](const Font& font, std::string_view text) {
        return stage.platform().TextSize(font, ToBytes(ToText(text).replace(twinsFolder, folder)));
    };
    twin.world.platform.fonts = stage.platform().ScreenFonts();
    StormCount twins;
    std::map<std::size_t, Sight> sights;
    std::string deal = twin.form().gameFile.Text();
    TakeDeal(twin.form(), deal);
    TakeDeal(stage.form(), deal);
    std::string broken = PlayStorm(twin, seed, comparable, twins, [&](std::size_t played) {
        if (const std::string now = twin.form().gameFile.Text(); now != deal) {
            TakeDeal(twin.form(), deal = now);
        }
        sights[played] = {ThingsOn(twin.form()), twin.form().gameFile.Text(),
                          SpotsOf(twin.form(), ratio)};
        return std::string();
    });
    if (!broken.empty() || sights.empty()) {
        return broken;
    }
    comparable.resize(twins.gestures);
    count.owed = comparable.size();
    return PlayStorm(stage, seed, comparable, count, [&](std::size_t played) -> std::string {
        const auto sight = sights.find(played);
        if (sight == sights.end()) {
            return "the twin has a form open";
        }
        count.owed = sights.rbegin()->first - played;
        if (stage.form().gameFile.Text() != sight->second.deal) {
            TakeDeal(stage.form(), sight->second.deal);
            stage.hands().Settle();
        }
        const std::string fault = Difference(ThingsOn(stage.form()), sight->second.things);
        return fault.empty() ? WrongPixel(stage, sight->second.spots, count) : fault;
    });
}

} // namespace tessarine::test
