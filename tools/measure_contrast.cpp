// Measures from pixels how well everything stands out that the program shows, in every colour scheme, at
// every scale, with and without the keyboard, held down or not, and tells the lowest of each kind:
//   measure_contrast PROGRAM-FOLDER
// Run by hand; needs no display (QT_QPA_PLATFORM=offscreen).
#include "desktop/desktop_platform.h"
#include "desktop/dress_style.h"
#include "desktop/peer.h"
#include "desktop/pixels.h"
#include "form1.h"
#include "runtime/contrast.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

using namespace tessarine;

namespace
{

constexpr std::array<double, 4> Scales = {1, 1.25, 1.5, 2};

double ContrastOf(QRgb one, QRgb other)
{
    return Contrast(Rgb(qRed(one), qGreen(one), qBlue(one)),
                    Rgb(qRed(other), qGreen(other), qBlue(other)));
}

/// The widget alone, without those on it.
QImage Shown(QWidget& widget, double scale)
{
    QImage image(NearestPixel(widget.width() * scale), NearestPixel(widget.height() * scale),
                 QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image, {}, {}, QWidget::DrawWindowBackground);
    return image;
}

/// The colour that there is most of.
QRgb GroundOf(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y)];
        }
    }
    return std::ranges::max_element(counts, {}, &std::pair<const QRgb, int>::second)->first;
}

/// What stands out most from the ground.
double BestOn(const QImage& image)
{
    const QRgb ground = GroundOf(image);
    double best = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            best = std::max(best, ContrastOf(image.pixel(x, y), ground));
        }
    }
    return best;
}

class Measures
{
public:
    void Begin(const std::string& scheme) { scheme_ = scheme; }

    /// Every widget of a window.
    void TakeAll(QWidget& window)
    {
        const QString title = window.windowTitle();
        for (QWidget* const widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && !widget->visibleRegion().isEmpty()) {
                for (const double scale : Scales) {
                    Take(*widget, scale, title);
                }
            }
        }
    }
    void Print() const
    {
        for (const auto& [kind, low] : lowest_) {
            std::printf("%-16s %6.2f  %s (%d measured)\n", kind.c_str(), low.contrast, low.where.c_str(),
                        low.count);
        }
    }

private:
    struct Lowest {
        double contrast = 99;
        std::string where;
        int count = 0;
    };

    void Take(QWidget& widget, double scale, const QString& window)
    {
        const QString name =
            widget.accessibleName() + QLatin1Char(' ') + QLatin1String(widget.metaObject()->className());
        where_ = scheme_ + " at " + std::to_string(scale).substr(0, 4) + ": " +
                 (window + QLatin1String(", ") + name).toStdString();
        const Peer* const peer = PeerBehind(&widget);
        Control* const control = peer == nullptr ? nullptr : peer->TheControl();
        const QImage image = Shown(widget, scale);
        if (auto* const box = dynamic_cast<BoxControl*>(control)) {
            where_ += box->AccessibleName();
            Note(box->Caption().empty() ? "icon" : "button", BestOn(Inside(image, 5 * scale)));
            box->SetBorder(true);
            const QImage down = Shown(widget, scale);
            box->SetBorder(false);
            const QPoint at(0, down.height() / 2); // the lit edge, in place of which the border stands
            Note("held down", ContrastOf(down.pixel(at), GroundOf(image)));
        } else if (const auto* on = dynamic_cast<const Container*>(control)) {
            TakeLabels(*on, image, scale);
        } else if (qobject_cast<QLabel*>(&widget) != nullptr) {
            Note("text", BestOn(image));
        } else if (qobject_cast<QAbstractButton*>(&widget) != nullptr && widget.isEnabled()) {
            Note(widget.inherits("QToolButton") ? "toolkit's icon" : "button",
                 BestOn(Inside(image, 5 * scale)));
        }
        if (IsFramed(widget)) {
            Note("frame",
                 ContrastOf(image.pixel(0, image.height() / 2),
                            GroundOf(widget.inherits("QLineEdit") ? Inside(image, 5 * scale) : image)));
        }
        TakeMark(widget, scale, image);
    }

    static QImage Inside(const QImage& image, double margin)
    {
        const int m = std::min({NearestPixel(margin), image.width() / 3, image.height() / 3});
        return image.copy(image.rect().adjusted(m, m, -m, -m));
    }

    static bool IsFramed(const QWidget& widget)
    {
        const auto* const frame = qobject_cast<const QFrame*>(&widget);
        return qobject_cast<const QGroupBox*>(&widget) != nullptr ||
               qobject_cast<const QLineEdit*>(&widget) != nullptr ||
               (frame != nullptr && frame->frameShape() == QFrame::StyledPanel);
    }

    /// What is painted on a container: words, and the borders of cards.
    void TakeLabels(const Container& on, const QImage& image, double scale)
    {
        for (const Control* child : on.Children()) {
            const auto* const label = dynamic_cast<const Label*>(child);
            const bool isCovered = label == nullptr || !label->Visible() || label->Caption().empty() ||
                                   std::ranges::any_of(on.Children(), [&](const Control* other) {
                                       return other->Visible() && other != child &&
                                              PixelRect(*other).intersects(PixelRect(*child)) &&
                                              std::ranges::find(on.Children(), other) >
                                                  std::ranges::find(on.Children(), child);
                                   });
            if (isCovered) {
                continue;
            }
            const QRect rect = RoundedRect(child->Left(), child->Top(), child->Width(), child->Height(),
                                           scale * PixelsPerTwip) &
                               image.rect();
            if (rect.width() > 12 && rect.height() > 6) {
                const std::string before = where_;
                where_ += " " + label->AccessibleName();
                Note(label->HasBorder()       ? "card's digit"
                     : label->ForeColor() > 0 ? "fixed colour"
                                              : "text",
                     BestOn(Inside(image.copy(rect), 3 * scale)));
                where_ = before;
            }
        }
    }

    /// Each pixel of the ground that the keyboard's coming changes.
    void TakeMark(QWidget& widget, double scale, const QImage& without)
    {
        if (!(widget.focusPolicy() & Qt::TabFocus) || !widget.isEnabled()) {
            return;
        }
        QWidget* const before = QApplication::focusWidget();
        widget.setFocus(Qt::TabFocusReason);
        const QImage with = widget.hasFocus() && before != &widget ? Shown(widget, scale) : without;
        const bool isBar = widget.inherits("QScrollBar"); // its thumb wears the mark
        const QRgb ground = isBar ? widget.palette().color(QPalette::Button).rgb() : GroundOf(without);
        double lowest = 99;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x) {
                if (without.pixel(x, y) == ground && with.pixel(x, y) != ground) {
                    lowest = std::min(lowest, ContrastOf(with.pixel(x, y), ground));
                }
            }
        }
        if (lowest < 99) {
            Note("keyboard's mark", lowest);
        } else if (before != &widget) {
            Note("no mark", 1);
        }
        widget.clearFocus();
    }

    void Note(const char* kind, double contrast)
    {
        Lowest& low = lowest_[kind];
        ++low.count;
        if (contrast < low.contrast) {
            low.contrast = contrast;
            low.where = where_;
        }
    }

    std::map<std::string, Lowest> lowest_;
    std::string scheme_;
    std::string where_;
};

void Wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Measures the box that comes up, and closes it.
void WhenBox(Measures& measures)
{
    QTimer::singleShot(30, qApp, [&measures] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box == nullptr) {
            return WhenBox(measures);
        }
        box->activateWindow();
        Wait(30);
        measures.TakeAll(*box);
        box->close();
        if (auto* const peer = PeerBehind(box)) {
            static_cast<Form*>(peer->TheControl())->Hide();
        }
    });
}

void TakeScheme(Measures& measures, DesktopPlatform& platform, Form1& form, const std::string& scheme)
{
    measures.Begin(scheme);
    form.shared.SchemeFile = scheme + ".col";
    form.Command2.SetValue(true);
    for (Form* shown : std::initializer_list<Form*>{&form, &form.form6, &form.form4, &form.aboutForm}) {
        shown->Show();
        Wait(30);
        measures.TakeAll(*platform.WindowOf(*shown));
        if (shown != &form) {
            shown->Hide();
        }
    }
    form.Show();
    Wait(5);
    WhenBox(measures);
    form.msgForm.MsgboxA("Exit?", "vbquestion+vbyesno");
    WhenBox(measures);
    platform.PlainMessage("Clear ALL scores", PlainButtons::YesNo);
    WhenBox(measures);
    platform.AskForText("Name");
    WhenBox(measures);
    platform.ChooseFile(
        {.title = "Load", .typesName = "games", .types = "*.gam", .folder = {}, .name = {}}, &form);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication::setStyle(new DressStyle);
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: measure_contrast PROGRAM-FOLDER\n");
        return 1;
    }
    const QTemporaryDir folder;
    const QDir program(QString::fromLocal8Bit(argv[1]));
    for (const char* const name : {"all.col", "tessarine.htm"}) {
        QFile::copy(program.filePath(QLatin1String(name)), folder.filePath(QLatin1String(name)));
    }
    QFile configuration(folder.filePath(QStringLiteral("tessarine.cfg")));
    if (!configuration.open(QIODevice::WriteOnly)) {
        return 1;
    }
    configuration.write(
        "\r\n 1 16777215 0 \r\n 2 \r\n 0 \r\n 8388608 \r\n 32768 \r\n 32896 \r\n 128 \r\n"
        "default.col\r\narial\r\n");
    configuration.close();
    QDir::setCurrent(folder.path());

    DesktopPlatform platform;
    Form1 form(platform, folder.path().toStdString(), "tessarine");
    form.Start();
    form.Score1.SetVisible(true);
    Measures measures;
    for (const std::string& scheme : form.form6.List1.Items()) {
        TakeScheme(measures, platform, form, scheme);
    }
    measures.Print();
    return 0;
}
