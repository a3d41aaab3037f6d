// The scrambled form of the scores line.
#pragma once

#include <string>
#include <string_view>

namespace tessarine
{

/// Two characters for each character of the text.
std::string ScrambleLine(std::string_view text);
/// The plain text again; a pair that isn't hexadecimal counts as 0.
std::string UnscrambleLine(std::string_view text);

} // namespace tessarine
