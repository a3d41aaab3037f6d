#include "runtime/letters.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>

namespace tessarine
{
namespace
{

/// Capitals in a row, each or each second number, with the same distance to their small letters.
struct Capitals {
    char32_t first;
    char32_t last;
    char32_t step;
    std::int32_t toSmall;
};

// Latin, Greek, Cyrillic and Armenian. The capital I with a dot is two small letters, and not here.
constexpr auto AllCapitals = std::to_array<Capitals>(
    {{0x0041, 0x005A, 1, 32},    {0x00C0, 0x00D6, 1, 32},   {0x00D8, 0x00DE, 1, 32},
     {0x0100, 0x012E, 2, 1},     {0x0132, 0x0136, 2, 1},    {0x0139, 0x0147, 2, 1},
     {0x014A, 0x0176, 2, 1},     {0x0178, 0x0178, 1, -121}, {0x0179, 0x017D, 2, 1},
     {0x0181, 0x0181, 1, 210},   {0x0182, 0x0184, 2, 1},    {0x0186, 0x0186, 1, 206},
     {0x0187, 0x0187, 1, 1},     {0x0189, 0x018A, 1, 205},  {0x018B, 0x018B, 1, 1},
     {0x018E, 0x018E, 1, 79},    {0x018F, 0x018F, 1, 202},  {0x0190, 0x0190, 1, 203},
     {0x0191, 0x0191, 1, 1},     {0x0193, 0x0193, 1, 205},  {0x0194, 0x0194, 1, 207},
     {0x0196, 0x0196, 1, 211},   {0x0197, 0x0197, 1, 209},  {0x0198, 0x0198, 1, 1},
     {0x019C, 0x019C, 1, 211},   {0x019D, 0x019D, 1, 213},  {0x019F, 0x019F, 1, 214},
     {0x01A0, 0x01A4, 2, 1},     {0x01A6, 0x01A6, 1, 218},  {0x01A7, 0x01A7, 1, 1},
     {0x01A9, 0x01A9, 1, 218},   {0x01AC, 0x01AC, 1, 1},    {0x01AE, 0x01AE, 1, 218},
     {0x01AF, 0x01AF, 1, 1},     {0x01B1, 0x01B2, 1, 217},  {0x01B3, 0x01B5, 2, 1},
     {0x01B7, 0x01B7, 1, 219},   {0x01B8, 0x01B8, 1, 1},    {0x01BC, 0x01BC, 1, 1},
     {0x01C4, 0x01C4, 1, 2},     {0x01C5, 0x01C5, 1, 1},    {0x01C7, 0x01C7, 1, 2},
     {0x01C8, 0x01C8, 1, 1},     {0x01CA, 0x01CA, 1, 2},    {0x01CB, 0x01DB, 2, 1},
     {0x01DE, 0x01EE, 2, 1},     {0x01F1, 0x01F1, 1, 2},    {0x01F2, 0x01F4, 2, 1},
     {0x01F6, 0x01F6, 1, -97},   {0x01F7, 0x01F7, 1, -56},  {0x01F8, 0x021E, 2, 1},
     {0x0220, 0x0220, 1, -130},  {0x0222, 0x0232, 2, 1},    {0x023A, 0x023A, 1, 10795},
     {0x023B, 0x023B, 1, 1},     {0x023D, 0x023D, 1, -163}, {0x023E, 0x023E, 1, 10792},
     {0x0241, 0x0241, 1, 1},     {0x0243, 0x0243, 1, -195}, {0x0244, 0x0244, 1, 69},
     {0x0245, 0x0245, 1, 71},    {0x0246, 0x024E, 2, 1},    {0x0370, 0x0372, 2, 1},
     {0x0376, 0x0376, 1, 1},     {0x037F, 0x037F, 1, 116},  {0x0386, 0x0386, 1, 38},
     {0x0388, 0x038A, 1, 37},    {0x038C, 0x038C, 1, 64},   {0x038E, 0x038F, 1, 63},
     {0x0391, 0x03A1, 1, 32},    {0x03A3, 0x03AB, 1, 32},   {0x03CF, 0x03CF, 1, 8},
     {0x03D8, 0x03E0, 2, 1},     {0x03F4, 0x03F4, 1, -60},  {0x03F7, 0x03F7, 1, 1},
     {0x03F9, 0x03F9, 1, -7},    {0x03FA, 0x03FA, 1, 1},    {0x03FD, 0x03FF, 1, -130},
     {0x0400, 0x040F, 1, 80},    {0x0410, 0x042F, 1, 32},   {0x0460, 0x0480, 2, 1},
     {0x048A, 0x04BE, 2, 1},     {0x04C0, 0x04C0, 1, 15},   {0x04C1, 0x04CD, 2, 1},
     {0x04D0, 0x052E, 2, 1},     {0x0531, 0x0556, 1, 48},   {0x1E00, 0x1E94, 2, 1},
     {0x1E9E, 0x1E9E, 1, -7615}, {0x1EA0, 0x1EFE, 2, 1},    {0x1F08, 0x1F0F, 1, -8},
     {0x1F18, 0x1F1D, 1, -8},    {0x1F28, 0x1F2F, 1, -8},   {0x1F38, 0x1F3F, 1, -8},
     {0x1F48, 0x1F4D, 1, -8},    {0x1F59, 0x1F5F, 2, -8},   {0x1F68, 0x1F6F, 1, -8},
     {0x1F88, 0x1F8F, 1, -8},    {0x1F98, 0x1F9F, 1, -8},   {0x1FA8, 0x1FAF, 1, -8},
     {0x1FB8, 0x1FB9, 1, -8},    {0x1FBA, 0x1FBB, 1, -74},  {0x1FBC, 0x1FBC, 1, -9},
     {0x1FC8, 0x1FCB, 1, -86},   {0x1FCC, 0x1FCC, 1, -9},   {0x1FD8, 0x1FD9, 1, -8},
     {0x1FDA, 0x1FDB, 1, -100},  {0x1FE8, 0x1FE9, 1, -8},   {0x1FEA, 0x1FEB, 1, -112},
     {0x1FEC, 0x1FEC, 1, -7},    {0x1FF8, 0x1FF9, 1, -128}, {0x1FFA, 0x1FFB, 1, -126},
     {0x1FFC, 0x1FFC, 1, -9},    {0xA640, 0xA66C, 2, 1},    {0xA680, 0xA69A, 2, 1}});

/// Letters that are no capitals and yet count as others: variants of a letter, and several in one.
struct Alike {
    char32_t letter;
    std::u32string_view countsAs;
};
constexpr auto AllAlike = std::to_array<Alike>({{0x00B5, U"\u03BC"},
                                                {0x00DF, U"ss"},
                                                {0x0149, U"\u02BCn"},
                                                {0x017F, U"s"},
                                                {0x01F0, U"j\u030C"},
                                                {0x0390, U"\u03B9\u0308\u0301"},
                                                {0x03B0, U"\u03C5\u0308\u0301"},
                                                {0x03C2, U"\u03C3"},
                                                {0x03D0, U"\u03B2"},
                                                {0x03D1, U"\u03B8"},
                                                {0x03D5, U"\u03C6"},
                                                {0x03D6, U"\u03C0"},
                                                {0x03F0, U"\u03BA"},
                                                {0x03F1, U"\u03C1"},
                                                {0x03F5, U"\u03B5"},
                                                {0x0587, U"\u0565\u0582"},
                                                {0x1C80, U"\u0432"},
                                                {0x1C81, U"\u0434"},
                                                {0x1C82, U"\u043E"},
                                                {0x1C83, U"\u0441"},
                                                {0x1C84, U"\u0442"},
                                                {0x1C85, U"\u0442"},
                                                {0x1C86, U"\u044A"},
                                                {0x1C87, U"\u0463"},
                                                {0x1C88, U"\uA64B"},
                                                {0x1E96, U"h\u0331"},
                                                {0x1E97, U"t\u0308"},
                                                {0x1E98, U"w\u030A"},
                                                {0x1E99, U"y\u030A"},
                                                {0x1E9A, U"a\u02BE"},
                                                {0x1E9B, U"\u1E61"},
                                                {0x1FBE, U"\u03B9"},
                                                {0xFB00, U"ff"},
                                                {0xFB01, U"fi"},
                                                {0xFB02, U"fl"},
                                                {0xFB03, U"ffi"},
                                                {0xFB04, U"ffl"},
                                                {0xFB05, U"st"},
                                                {0xFB06, U"st"}});

constexpr char32_t CapitalIWithDot = 0x0130;
constexpr std::u32string_view SmallIWithDot = U"i\u0307";

void AppendSmall(std::u32string& text, char32_t letter)
{
    if (letter == CapitalIWithDot) {
        text += SmallIWithDot;
        return;
    }
    const auto* const row = std::ranges::lower_bound(AllCapitals, letter, {}, &Capitals::last);
    const bool isCapital =
        row != AllCapitals.end() && letter >= row->first && (letter - row->first) % row->step == 0;
    text += isCapital ? static_cast<char32_t>(static_cast<std::int32_t>(letter) + row->toSmall) : letter;
}

std::u32string Small(std::u32string_view letters)
{
    std::u32string small;
    small.reserve(letters.size());
    for (const char32_t letter : letters) {
        AppendSmall(small, letter);
    }
    return small;
}

constexpr char32_t Byte(char c)
{
    return static_cast<unsigned char>(c);
}

/// Takes one letter off the front of UTF-8; none if what stands there is no letter.
std::optional<char32_t> TakeLetter(std::string_view& text)
{
    const char32_t first = Byte(text.front());
    const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if ((first >= 0x80 && first < 0xC0) || first >= 0xF8 || text.size() < length) {
        return std::nullopt;
    }
    char32_t letter = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (const char more : text.substr(1, length - 1)) {
        if ((Byte(more) & 0xC0U) != 0x80) {
            return std::nullopt;
        }
        letter = (letter << 6U) | (Byte(more) & 0x3FU);
    }
    static constexpr std::array<char32_t, 5> leastOfLength = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = letter >= 0xD800 && letter < 0xE000;
    if (letter < leastOfLength[length] || letter > 0x10FFFF || isSurrogate) {
        return std::nullopt;
    }
    text.remove_prefix(length);
    return letter;
}

/// None if the text is no UTF-8.
std::optional<std::u32string> FromUtf8(std::string_view text)
{
    std::u32string letters;
    letters.reserve(text.size());
    while (!text.empty()) {
        const auto letter = TakeLetter(text);
        if (!letter) {
            return std::nullopt;
        }
        letters += *letter;
    }
    return letters;
}

std::u32string FromLatin1(std::string_view text)
{
    std::u32string letters;
    std::ranges::transform(text, std::back_inserter(letters), Byte);
    return letters;
}

std::string ToUtf8(std::u32string_view letters)
{
    std::string text;
    for (const char32_t letter : letters) {
        const int more = letter < 0x80 ? 0 : letter < 0x800 ? 1 : letter < 0x10000 ? 2 : 3;
        static constexpr std::array<char32_t, 4> marks = {0, 0xC0, 0xE0, 0xF0};
        text += static_cast<char>(marks[static_cast<std::size_t>(more)] |
                                  (letter >> (6U * static_cast<unsigned>(more))));
        for (int left = more - 1; left >= 0; --left) {
            text += static_cast<char>(0x80U | ((letter >> (6U * static_cast<unsigned>(left))) & 0x3FU));
        }
    }
    return text;
}

bool IsPlainAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char letter) { return (letter & 0x80) == 0; });
}

char SmallAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

} // namespace

std::u32string Letters(std::string_view text)
{
    auto letters = FromUtf8(text);
    return letters ? *std::move(letters) : FromLatin1(text);
}

std::string LowerCase(std::string_view text)
{
    if (const auto letters = FromUtf8(text)) {
        return ToUtf8(Small(*letters));
    }
    std::string lower;
    // Every capital of Latin-1 has its small letter there too.
    std::ranges::transform(Small(FromLatin1(text)), std::back_inserter(lower),
                           [](char32_t letter) { return static_cast<char>(letter); });
    return lower;
}

std::u32string Folded(std::string_view text)
{
    std::u32string folded;
    for (const char32_t letter : Small(Letters(text))) {
        const auto* const alike = std::ranges::lower_bound(AllAlike, letter, {}, &Alike::letter);
        if (alike != AllAlike.end() && alike->letter == letter) {
            folded += alike->countsAs;
        } else {
            folded += letter;
        }
    }
    return folded;
}

std::weak_ordering CompareFolded(std::string_view one, std::string_view other)
{
    if (!IsPlainAscii(one) || !IsPlainAscii(other)) {
        return Folded(one) <=> Folded(other);
    }
    return std::lexicographical_compare_three_way(
        one.begin(), one.end(), other.begin(), other.end(),
        [](char a, char b) { return SmallAscii(a) <=> SmallAscii(b); });
}

bool BeginsFolded(std::string_view text, std::string_view beginning)
{
    if (!IsPlainAscii(text) || !IsPlainAscii(beginning)) {
        return Folded(text).starts_with(Folded(beginning));
    }
    return text.size() >= beginning.size() &&
           std::ranges::equal(text.substr(0, beginning.size()), beginning, {}, SmallAscii, SmallAscii);
}

} // namespace tessarine
