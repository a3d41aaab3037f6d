// Fonts: how long a text is, and its pixels.
#pragma once

#include "runtime/font.h"
#include "runtime/units.h"

#include <QCache>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPoint>

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace tessarine
{

/// Reads the system's list of fonts on a thread of its own: with no text drawn yet it is the longest
/// step of the start, and meanwhile the table can be dealt and the window be opened. Whoever needs a
/// font before the thread is ready waits for it. Needs a QApplication.
std::jthread ReadFontsAhead();

/// The names of the fonts that digits can be written in at every size, each once.
std::vector<std::string> FontNames();

/// The font for one of the toolkit's own widgets.
QFont WidgetFont(const Font& font);

/// The lines of a text, parted by CR LF or LF. There is always at least one.
std::vector<std::string> LinesOf(std::string_view text);

/// The size of a text in twips, the same on every screen: for 96 pixels to the inch, in whole pixels.
Size TextSize(const Font& font, std::string_view text);

/// A line of text, drawn. Everything is in pixels of the device.
struct Ink {
    QImage image;          ///< only what is seen; null if nothing is
    QPoint offset;         ///< of the image from the left end of the base line
    int advance = 0;       ///< how far the line reaches
    int ascent = 0;        ///< from the upper edge of the line to the base line
    double lineHeight = 0; ///< from one base line to the next
};

/// Draws lines of text and remembers the latest of them: the same few digits are wanted again at every
/// step of a card's move.
class Typesetter
{
public:
    Typesetter();

    /// `ratio` is pixels of the device per logical pixel.
    Ink Draw(const std::string& line, const Font& font, const QColor& colour, double ratio);

private:
    struct Key {
        std::string line;
        Font font;
        QRgb colour = 0;
        double ratio = 1;

        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed) noexcept
        {
            return qHashMulti(seed, std::hash<std::string>()(key.line),
                              std::hash<std::string>()(key.font.name), key.font.size, key.font.bold,
                              key.font.italic, key.font.underline, key.colour, key.ratio);
        }
    };

    QCache<Key, Ink> drawn_;
};

} // namespace tessarine
