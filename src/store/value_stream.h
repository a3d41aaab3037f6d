// A text file read as a stream of values, whatever its lines.
#pragma once

#include "runtime/files.h"
#include "runtime/units.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessarine
{

/// A value ends at a comma or the end of its line, a number also at a blank. Blanks in front of a
/// value are skipped.
class ValueStream
{
public:
    explicit ValueStream(std::string_view text) : lines_(text) {}

    /// Drops a line. False at the end of the text.
    bool SkipLine() { return lines_.Next().has_value(); }

    // The next value; a number is 0 where none stands. False at the end of the text.
    bool Read(Whole& value);
    bool Read(float& value);
    /// As it stands.
    bool Read(std::string& value);

private:
    std::optional<std::string_view> TakeUntil(std::string_view ends);

    LineReader lines_;
    std::optional<std::string_view> rest_; ///< of the present line, if a value may follow on it
};

} // namespace tessarine
