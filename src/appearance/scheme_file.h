// The text of the file of colour schemes: entries of 14 lines, a name line and 13 colour lines.
#pragma once

#include "appearance/make_scheme.h"
#include "kit/dress.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

/// Ends every name line; what stands before it is the name that a list shows.
inline constexpr std::string_view SchemeSuffix = ".col";
/// The scheme of a new configuration, and the one that every failure falls back to.
inline constexpr std::string_view DefaultScheme = "default.col";

/// The name line of the scheme that a list or the user calls by this name.
std::string NameLine(std::string_view name);

/// The names to list, in the order of the file.
std::vector<std::string> SchemeNames(std::string_view text);

enum class SlotSource {
    File,   ///< every slot as the file has it
    Derived ///< slots 3 and 5 worked out from the background and the button colour
};

/// Reads the entry whose name line is exactly `name` into the slots 0 to 12. False if there is none or
/// the text ends inside it: the slots read so far stay read.
bool ReadEntry(std::string_view text, std::string_view name, SlotSource source, Dress& dress);

/// The 14 lines of an entry with the slots 0 to 12.
std::string EntryText(std::string_view nameLine, const Dress& dress);

/// The text with another entry behind it.
std::string WithEntryAdded(std::string text, std::string_view entry);

/// The text with `entry` in place of each entry of this name line; an empty one drops them. Without
/// such an entry all lines stay. None if the text ends inside such an entry.
std::optional<std::string> WithEntryReplaced(std::string_view text, std::string_view nameLine,
                                             std::string_view entry);

} // namespace tessarine
