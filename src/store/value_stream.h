// A text file read as a stream of values, whatever its lines.
#pragma once

#include <string>
#include <string_view>

namespace tessarine
{

/// A value ends at a comma or the end of its line, a number also at a blank. Blanks in front of a
/// value are skipped.
class ValueStream
{
public:
    explicit ValueStream(std::string_view text) : rest_(text) {}

    /// Drops what is left of the present line. False at the end of the text.
    bool SkipLine();
    /// The next value as a number; 0 where it is none. False at the end of the text.
    bool ReadNumber(double& value);
    /// The next value as it stands. False at the end of the text.
    bool ReadText(std::string& value);

private:
    void SkipBlanks();
    std::string_view TakeUntil(std::string_view ends);
    void SkipDelimiter();

    std::string_view rest_;
};

} // namespace tessarine
