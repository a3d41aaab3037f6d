#include "store/file_trouble.h"

#include "runtime/files.h"

namespace tessarine
{

Trouble TroubleWith(const std::string& path, FileFault fault)
{
    if (fault == FileFault::None) {
        return std::nullopt;
    }
    return FileTrouble{path, std::string(Reason(fault))};
}

std::string NoticeOf(std::string_view what, const FileTrouble& trouble, std::string_view stands)
{
    std::string text(what);
    text.append(LineEnd).append(trouble.path).append(LineEnd);
    return text.append(trouble.reason).append(". ").append(stands);
}

} // namespace tessarine
