// The files that a program reads and writes. Every write is whole: beside its place, flushed to the
// disk, then over it, so that the old file or the new one is there and never a part.
#pragma once

#include "runtime/platform.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

/// Writes a file whole. With a fault nothing of the old file is lost, and no other file is left behind.
FileFault ReplaceFile(Platform& platform, const std::string& path, std::string_view bytes);

/// Copies a file whole. With a fault the source can't be read or the copy can't be written.
FileFault CopyFile(Platform& platform, const std::string& from, const std::string& to);

inline constexpr std::string_view LineEnd = "\r\n";

/// Hands out the lines of a text one by one, without their ends: CR LF, or LF alone. A last line
/// without an end counts, also one that was cut between the two.
class LineReader
{
public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    /// None at the end of the text.
    std::optional<std::string_view> Next();

private:
    std::string_view rest_;
};

/// All lines of a text.
std::vector<std::string> SplitLines(std::string_view text);

/// The lines, each with CR LF behind it.
std::string JoinLines(const std::vector<std::string>& lines);

/// The folder with the platform's separator at its end, added only if none is there.
std::string WithSeparator(const Platform& platform, const std::string& folder);

/// Where the file's own name begins in a path: behind the last separator.
std::size_t NameStart(const Platform& platform, std::string_view path);

} // namespace tessarine
