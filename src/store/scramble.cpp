#include "store/scramble.h"

#include "runtime/units.h"

#include <charconv>

namespace tessarine
{
namespace
{

constexpr std::string_view Key = "MIRTH";
constexpr std::string_view HexDigits = "0123456789ABCDEF";

unsigned KeyLetter(std::size_t position)
{
    return static_cast<unsigned char>(Key[position % Key.size()]);
}

unsigned HexValue(std::string_view pair)
{
    const std::string digits = TrimBlanks(pair);
    unsigned value = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, value, 16);
    return read.ec == std::errc() && read.ptr == end ? value : 0;
}

} // namespace

std::string ScrambleLine(std::string_view text)
{
    std::string scrambled;
    scrambled.reserve(text.size() * 2);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned code = static_cast<unsigned char>(text[i]) ^ KeyLetter(i);
        scrambled += code < 16 ? ' ' : HexDigits[code / 16];
        scrambled += HexDigits[code % 16];
    }
    return scrambled;
}

std::string UnscrambleLine(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size() / 2 + 1);
    for (std::size_t i = 0; i < text.size(); i += 2) {
        plain += static_cast<char>(KeyLetter(i / 2) ^ HexValue(text.substr(i, 2)));
    }
    return plain;
}

} // namespace tessarine
