#include "store/value_stream.h"

#include "runtime/units.h"

#include <algorithm>

namespace tessarine
{

bool ValueStream::SkipLine()
{
    if (rest_.empty()) {
        return false;
    }
    TakeUntil("\n");
    SkipDelimiter();
    return true;
}

bool ValueStream::ReadNumber(double& value)
{
    SkipBlanks();
    if (rest_.empty()) {
        return false;
    }
    value = NumberAtStart(TakeUntil(" ,\r\n"));
    SkipBlanks();
    SkipDelimiter();
    return true;
}

bool ValueStream::ReadText(std::string& value)
{
    SkipBlanks();
    if (rest_.empty()) {
        return false;
    }
    value = TakeUntil(",\r\n");
    SkipDelimiter();
    return true;
}

void ValueStream::SkipBlanks()
{
    rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
}

std::string_view ValueStream::TakeUntil(std::string_view ends)
{
    const auto length = std::min(rest_.find_first_of(ends), rest_.size());
    const std::string_view value = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return value;
}

/// One comma or one end of a line: CR LF, LF or CR.
void ValueStream::SkipDelimiter()
{
    if (rest_.starts_with("\r\n")) {
        rest_.remove_prefix(2);
    } else if (rest_.starts_with(',') || rest_.starts_with('\r') || rest_.starts_with('\n')) {
        rest_.remove_prefix(1);
    }
}

} // namespace tessarine
