// The letters of 8-bit text, capital and small.
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace tessarine
{

/// The letters by their Unicode numbers. Bytes that are valid UTF-8 are taken as such; of any other
/// text each byte is a letter of Latin-1.
std::u32string Letters(std::string_view text);

/// The text in small letters, UTF-8 or Latin-1 as it was. What is no capital stays as it is.
std::string LowerCase(std::string_view text);

/// What is the same in two texts that differ in letter case alone, or in UTF-8 and Latin-1. Letters
/// that stand for two, such as the German sharp s, count as these.
std::u32string Folded(std::string_view text);

/// The order of what Folded makes of two texts, sooner known for plain ASCII.
std::weak_ordering CompareFolded(std::string_view one, std::string_view other);

/// Whether a text begins with another one, both of them folded.
bool BeginsFolded(std::string_view text, std::string_view beginning);

} // namespace tessarine
