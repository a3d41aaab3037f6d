#include "store/value_stream.h"

#include <algorithm>
#include <limits>

namespace tessarine
{
namespace
{

constexpr std::string_view EndsOfNumber = " ,";
constexpr std::string_view EndsOfText = ",";

std::string_view WithoutBlanksBefore(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

} // namespace

bool ValueStream::Read(Whole& value)
{
    const auto text = TakeUntil(EndsOfNumber);
    value = WholeAtStart(text.value_or(""));
    return text.has_value();
}

bool ValueStream::Read(float& value)
{
    const auto text = TakeUntil(EndsOfNumber);
    // A number that is too large for the kind is held at its end: out of range nothing is defined.
    constexpr double largest = std::numeric_limits<float>::max();
    value = static_cast<float>(std::clamp(NumberAtStart(text.value_or("")), -largest, largest));
    return text.has_value();
}

bool ValueStream::Read(std::string& value)
{
    const auto text = TakeUntil(EndsOfText);
    value = text.value_or("");
    return text.has_value();
}

std::optional<std::string_view> ValueStream::TakeUntil(std::string_view ends)
{
    if (!rest_) {
        rest_ = lines_.Next();
    }
    if (!rest_) {
        return std::nullopt;
    }
    const std::string_view line = WithoutBlanksBefore(*rest_);
    const auto length = std::min(line.find_first_of(ends), line.size());
    const std::string_view behind = WithoutBlanksBefore(line.substr(length));
    if (behind.empty()) {
        rest_.reset();
    } else {
        rest_ = behind.substr(behind.starts_with(',') ? 1 : 0);
    }
    return line.substr(0, length);
}

} // namespace tessarine
