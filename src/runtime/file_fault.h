// What an operation on a file gives: what was asked for, or why it can't be had.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace tessarine
{

enum class FileFault {
    None,
    Missing,   ///< no such file, or no such folder
    Forbidden, ///< write-protected, or not the user's
    InUse,     ///< another program has it open and shares it with nobody
    IsFolder,
    Full,     ///< no room on the disk
    TooLarge, ///< more than LargestFile
    Other     ///< no plain file, or the disk itself
};

/// What is larger is none of the program's files, and is not read.
inline constexpr std::size_t LargestFile = std::size_t{1} << 20;

/// The reason in plain words, a sentence without its end; empty for None.
std::string_view Reason(FileFault fault);

/// A text, or why there is none.
struct [[nodiscard]] FileResult {
    FileResult(FileFault why) : fault(why) {}
    FileResult(std::string what) : text(std::move(what)) {}

    FileFault fault = FileFault::None;
    std::string text; ///< empty with a fault

    explicit operator bool() const { return fault == FileFault::None; }
};

} // namespace tessarine
