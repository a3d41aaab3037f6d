// What kept a file from being read or written, as the user is told it.
#pragma once

#include "runtime/file_fault.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessarine
{

struct FileTrouble {
    std::string path;
    std::string reason; ///< a sentence without its end
};

/// None: all went well.
using Trouble = std::optional<FileTrouble>;

Trouble TroubleWith(const std::string& path, FileFault fault);

/// The notice that is due: what did not work, the file, why, and what now stands.
std::string NoticeOf(std::string_view what, const FileTrouble& trouble, std::string_view stands);

} // namespace tessarine
