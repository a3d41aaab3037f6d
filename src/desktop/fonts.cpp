#include "desktop/fonts.h"

#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessarine
{
namespace
{

constexpr int CacheBytes = 16 * 1024 * 1024;
constexpr double SmallestPoints = 1;
constexpr double LargestPoints = 4000;

bool IsPlainAscii(std::string_view text)
{
    return std::ranges::all_of(text,
                               [](char letter) { return static_cast<unsigned char>(letter) < 128; });
}

/// The font for a text, at so many times its size. No system has an "Ariel", and each would put another
/// font in its place.
QFont ScaledFont(const Font& font, double ratio, std::string_view text = {})
{
    QFont scaled;
    if (IsPlainAscii(text)) {
        // Every font has these letters: no search for others that would help out.
        scaled.setStyleStrategy(QFont::NoFontMerging);
    }
    scaled.setFamilies({font.name == "Ariel" ? QStringLiteral("Arial") : ToText(font.name)});
    scaled.setPointSizeF(std::clamp(font.size * ratio, SmallestPoints, LargestPoints));
    scaled.setBold(font.bold);
    scaled.setItalic(font.italic);
    // Hinting across would make the length of a text depend on the scale of the screen.
    scaled.setHintingPreference(QFont::PreferVerticalHinting);
    return scaled;
}

/// The height of a line for 96 pixels to the inch: whole pixels above and below the base line.
struct LineShape {
    double ascent = 0;
    double descent = 0;
};

LineShape ShapeOf(const Font& font)
{
    const QFontMetricsF metrics(ScaledFont(font, 1));
    return {std::ceil(metrics.ascent()), std::ceil(metrics.descent())};
}

/// The part of an image that is not wholly transparent.
QRect InkedPart(const QImage& image)
{
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const auto* const end = row + image.width();
        const auto isInk = [](QRgb pixel) { return qAlpha(pixel) != 0; };
        const auto* const first = std::find_if(row, end, isInk);
        if (first == end) {
            continue;
        }
        const auto* last = end - 1;
        while (!isInk(*last)) {
            --last;
        }
        inked |= QRect(static_cast<int>(first - row), y, static_cast<int>(last - first) + 1, 1);
    }
    return inked;
}

void Underline(QPainter& painter, const QFontMetricsF& metrics, QPoint pen, int advance, QColor colour)
{
    const int thickness = std::max(1, NearestPixel(metrics.lineWidth()));
    const int y = pen.y() + std::max(1, NearestPixel(metrics.underlinePos()));
    painter.fillRect(QRect(pen.x(), y, advance, thickness), colour);
}

Ink DrawLine(const std::string& line, const Font& font, const QColor& colour, double ratio)
{
    const QFont scaled = ScaledFont(font, ratio, line);
    const QFontMetricsF metrics(scaled);
    const QString text = ToText(line);
    const LineShape shape = ShapeOf(font);

    Ink ink;
    ink.advance = NearestPixel(metrics.horizontalAdvance(text));
    ink.ascent = NearestPixel(shape.ascent * ratio);
    ink.lineHeight = (shape.ascent + shape.descent) * ratio;

    // Italics and accents may reach out of the line's own rectangle.
    const int margin = ink.ascent / 2 + 2;
    const QPoint pen(margin, ink.ascent + margin);
    QImage image(ink.advance + 2 * margin, static_cast<int>(ink.lineHeight) + 2 * margin,
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(scaled);
    painter.setPen(colour);
    painter.drawText(pen, text);
    if (font.underline && !text.isEmpty()) {
        Underline(painter, metrics, pen, ink.advance, colour);
    }
    painter.end();

    const QRect inked = InkedPart(image);
    if (!inked.isEmpty()) {
        ink.image = image.copy(inked);
        ink.offset = inked.topLeft() - pen;
    }
    return ink;
}

/// The numbers of the cards come in every size.
bool CanBeOnCards(const QString& family)
{
    const auto systems = QFontDatabase::writingSystems(family);
    return !QFontDatabase::isPrivateFamily(family) && QFontDatabase::isSmoothlyScalable(family) &&
           systems.contains(QFontDatabase::Latin) && !systems.contains(QFontDatabase::Symbol);
}

/// The toolkit adds " [foundry]" where a family comes from several.
QString WithoutFoundry(const QString& family)
{
    return family.endsWith(QLatin1Char(']')) ? family.section(QLatin1String(" ["), 0, 0) : family;
}

} // namespace

std::vector<std::string> FontNames()
{
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) {
        if (CanBeOnCards(family)) {
            names.push_back(ToBytes(WithoutFoundry(family)));
        }
    }
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

QFont WidgetFont(const Font& font)
{
    QFont plain = ScaledFont(font, 1);
    plain.setStyleStrategy(QFont::PreferDefault);
    plain.setUnderline(font.underline);
    return plain;
}

std::jthread ReadFontsAhead()
{
    return std::jthread([] { QFontDatabase::hasFamily(QStringLiteral("Arial")); });
}

std::vector<std::string> LinesOf(std::string_view text)
{
    std::vector<std::string> lines;
    for (;;) {
        const auto end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        if (end == std::string_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

Size TextSize(const Font& font, std::string_view text)
{
    const QFontMetricsF metrics(ScaledFont(font, 1, text));
    const LineShape shape = ShapeOf(font);
    Size size;
    for (const std::string& line : LinesOf(text)) {
        size.width = std::max(size.width, std::ceil(metrics.horizontalAdvance(ToText(line))));
        size.height += shape.ascent + shape.descent;
    }
    return {size.width * TwipsPerPixel, size.height * TwipsPerPixel};
}

Typesetter::Typesetter() : drawn_(CacheBytes) {}

Ink Typesetter::Draw(const std::string& line, const Font& font, const QColor& colour, double ratio)
{
    const Key key{line, font, colour.rgb(), ratio};
    if (const Ink* known = drawn_.object(key)) {
        return *known;
    }
    Ink ink = DrawLine(line, font, colour, ratio);
    constexpr qsizetype bookkeeping = 256;
    drawn_.insert(key, new Ink(ink), ink.image.sizeInBytes() + bookkeeping);
    return ink;
}

} // namespace tessarine
