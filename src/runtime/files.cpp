#include "runtime/files.h"

namespace tessarine
{

bool ReplaceFile(Platform& platform, const std::string& path, std::string_view bytes)
{
    const std::string beside = path + ".part";
    if (platform.WriteNewFile(beside, bytes) && platform.RenameFile(beside, path)) {
        return true;
    }
    platform.RemoveFile(beside);
    return false;
}

bool CopyFile(Platform& platform, const std::string& from, const std::string& to)
{
    const auto bytes = platform.ReadFile(from);
    return bytes && ReplaceFile(platform, to, *bytes);
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (end != std::string_view::npos && line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

std::string JoinLines(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text.append(line).append(LineEnd);
    }
    return text;
}

std::string WithSeparator(const Platform& platform, const std::string& folder)
{
    return folder.ends_with(platform.FolderSeparator()) ? folder : folder + platform.FolderSeparator();
}

} // namespace tessarine
