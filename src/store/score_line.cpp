#include "store/score_line.h"

#include <charconv>
#include <cmath>
#include <vector>

namespace tessarine
{
namespace
{

std::vector<std::string> FieldsOf(std::string_view line)
{
    std::vector<std::string> fields;
    for (auto blank = line.find(' '); blank != std::string_view::npos; blank = line.find(' ')) {
        fields.emplace_back(line.substr(0, blank));
        line.remove_prefix(blank + 1);
    }
    fields.emplace_back(line);
    return fields;
}

} // namespace

ScoreLine ScoreLine::New(const DateTime& now)
{
    return {ScoreDate(now), {"0", "0", "0", "0"}};
}

std::optional<ScoreLine> ScoreLine::Read(std::string_view text)
{
    const std::vector<std::string> fields = FieldsOf(text);
    ScoreLine line;
    if (fields.size() <= line.counts.size()) {
        return std::nullopt;
    }
    line.date = fields[0];
    for (std::size_t i = 0; i < line.counts.size(); ++i) {
        line.counts[i] = fields[i + 1];
    }
    return line;
}

std::string ScoreLine::Text() const
{
    std::string text = date + ' ';
    for (const std::string& count : counts) {
        text += count + ' ';
    }
    return text;
}

std::string ScoreDate(const DateTime& now)
{
    std::string month = now.shortMonth;
    std::erase(month, ' ');
    return TwoDigits(now.day) + month + std::to_string(now.year);
}

std::string OneMore(std::string_view count)
{
    std::array<char, 320> digits{}; // the largest number has 309
    const double next = std::trunc(NumberAtStart(count)) + 1;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), next, std::chars_format::fixed, 0);
    return {digits.data(), end.ptr};
}

} // namespace tessarine
