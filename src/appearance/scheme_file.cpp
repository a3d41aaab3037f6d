#include "appearance/scheme_file.h"

#include "runtime/files.h"
#include "runtime/letters.h"

#include <algorithm>
#include <array>

namespace tessarine
{
namespace
{

/// A colour as a line states it. A component may lie above 255 until it is stored.
struct Components {
    Whole red = 0;
    Whole green = 0;
    Whole blue = 0;

    Colour AsColour() const
    {
        return Rgb(std::min(red, 255), std::min(green, 255), std::min(blue, 255));
    }
};

bool SkipTo(LineReader& lines, std::string_view wanted)
{
    for (auto line = lines.Next(); line; line = lines.Next()) {
        if (*line == wanted) {
            return true;
        }
    }
    return false;
}

bool Skip(LineReader& lines, std::size_t count)
{
    for (; count > 0; --count) {
        if (!lines.Next()) {
            return false;
        }
    }
    return true;
}

/// A field that is missing, negative or no number counts as 0.
Components ReadComponents(std::string_view line)
{
    std::array<Whole, 3> fields{};
    for (Whole& field : fields) {
        const auto end = line.find(';');
        field = std::max(WholeAtStart(line.substr(0, end)), 0);
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
    return {fields[0], fields[1], fields[2]};
}

template <class Change> Components Changed(const Components& from, Change change)
{
    return {change(from.red), change(from.green), change(from.blue)};
}

/// One shade lighter than the background. A component of exactly 256 still counts as full.
Components LightEdge(const Components& background)
{
    return Changed(background, [](Whole component) {
        constexpr Whole full = 256;
        return component > full - 32 ? 254 : component + 32;
    });
}

/// One shade darker than the buttons.
Components DarkEdge(const Components& button)
{
    return Changed(button, [](Whole component) { return component - 32 < 1 ? 8 : component - 32; });
}

void AppendLine(std::string& text, std::string_view line)
{
    text.append(line).append(LineEnd);
}

std::string ColourLine(Colour colour)
{
    const Colour plain = TranslateColor(colour);
    return NumberText(clrRed(plain)) + ';' + NumberText(clrGreen(plain)) + ';' +
           NumberText(clrBlue(plain));
}

} // namespace

std::string NameLine(std::string_view name)
{
    return LowerCase(name).append(SchemeSuffix);
}

std::vector<std::string> SchemeNames(std::string_view text)
{
    std::vector<std::string> names;
    LineReader lines(text);
    for (auto line = lines.Next(); line; line = lines.Next()) {
        if (const auto end = line->find(SchemeSuffix); end != std::string_view::npos) {
            names.emplace_back(line->substr(0, end));
        }
    }
    return names;
}

bool ReadEntry(std::string_view text, std::string_view name, SlotSource source, Dress& dress)
{
    static constexpr std::size_t lightEdgeSlot = 3;
    static constexpr std::size_t darkEdgeSlot = 5;

    LineReader lines(text);
    if (!SkipTo(lines, name)) {
        return false;
    }
    Components colour;
    for (std::size_t slot = 0; slot < StoredSlots; ++slot) {
        const auto line = lines.Next();
        if (!line) {
            return false;
        }
        // The edges follow from the colour read just before them.
        if (source == SlotSource::Derived && slot == lightEdgeSlot) {
            colour = LightEdge(colour);
        } else if (source == SlotSource::Derived && slot == darkEdgeSlot) {
            colour = DarkEdge(colour);
        } else {
            colour = ReadComponents(*line);
        }
        dress.SchemeColors[slot] = colour.AsColour();
    }
    return true;
}

std::string EntryText(std::string_view nameLine, const Dress& dress)
{
    std::string entry;
    AppendLine(entry, nameLine);
    for (std::size_t slot = 0; slot < StoredSlots; ++slot) {
        AppendLine(entry, ColourLine(dress.SchemeColors[slot]));
    }
    return entry;
}

std::string WithEntryAdded(std::string text, std::string_view entry)
{
    if (!text.empty() && !text.ends_with('\n')) {
        text.append(LineEnd);
    }
    return text.append(entry);
}

std::optional<std::string> WithEntryReplaced(std::string_view text, std::string_view nameLine,
                                             std::string_view entry)
{
    std::string changed;
    changed.reserve(text.size() + entry.size());
    LineReader lines(text);
    for (auto line = lines.Next(); line; line = lines.Next()) {
        if (*line != nameLine) {
            AppendLine(changed, *line);
            continue;
        }
        if (!Skip(lines, StoredSlots)) {
            return std::nullopt;
        }
        changed.append(entry);
    }
    return changed;
}

} // namespace tessarine
