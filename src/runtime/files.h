// The files that a program reads and writes. Every write is whole: beside its place, flushed to the
// disk, then over it, so that the old file or the new one is there and never a part.
#pragma once

#include "runtime/platform.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessarine
{

/// Writes a file whole. False: nothing of the old file is lost, and no other file is left behind.
bool ReplaceFile(Platform& platform, const std::string& path, std::string_view bytes);

/// Copies a file whole. False: the source can't be read or the copy can't be written.
bool CopyFile(Platform& platform, const std::string& from, const std::string& to);

/// The lines of a text, without their ends: CR LF, or LF alone. A last line without an end counts.
std::vector<std::string> SplitLines(std::string_view text);

/// The lines, each with CR LF behind it.
std::string JoinLines(const std::vector<std::string>& lines);

/// The folder with the platform's separator at its end, added only if it is not there.
std::string WithSeparator(const Platform& platform, const std::string& folder);

inline constexpr std::string_view LineEnd = "\r\n";

} // namespace tessarine
