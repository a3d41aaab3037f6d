#include "runtime/files.h"

namespace tessarine
{

std::string_view Reason(FileFault fault)
{
    switch (fault) {
    case FileFault::None:
        break;
    case FileFault::Missing:
        return "The file or its folder is not there";
    case FileFault::Forbidden:
        return "The file or its folder is protected";
    case FileFault::InUse:
        return "Another program has the file open";
    case FileFault::IsFolder:
        return "A folder has this name";
    case FileFault::Full:
        return "The disk is full";
    case FileFault::TooLarge:
        return "The file is too large to be one of this program";
    case FileFault::Other:
        return "It is no plain file, or the disk is at fault";
    }
    return {};
}

FileFault ReplaceFile(Platform& platform, const std::string& path, std::string_view bytes)
{
    const FileResult place = platform.PlaceToWrite(path);
    if (!place) {
        return place.fault;
    }
    const std::string beside = place.text + platform.OwnSuffix();
    FileFault fault = platform.WriteNewFile(beside, bytes);
    if (fault == FileFault::None) {
        fault = platform.RenameFile(beside, place.text);
    }
    if (fault != FileFault::None) {
        platform.RemoveFile(beside);
    }
    return fault;
}

FileFault CopyFile(Platform& platform, const std::string& from, const std::string& to)
{
    const FileResult bytes = platform.ReadFile(from);
    return bytes ? ReplaceFile(platform, to, bytes.text) : bytes.fault;
}

std::optional<std::string_view> LineReader::Next()
{
    if (rest_.empty()) {
        return std::nullopt;
    }
    const auto end = rest_.find('\n');
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    LineReader reader(text);
    for (auto line = reader.Next(); line; line = reader.Next()) {
        lines.emplace_back(*line);
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
    const bool hasOne = NameStart(platform, folder) == folder.size() && !folder.empty();
    return hasOne ? folder : folder + platform.FolderSeparators().front();
}

std::size_t NameStart(const Platform& platform, std::string_view path)
{
    const auto separator = path.find_last_of(platform.FolderSeparators());
    return separator == std::string_view::npos ? 0 : separator + 1;
}

} // namespace tessarine
