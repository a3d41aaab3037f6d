// The headless platform's disk: a map of paths to bytes that can be made to fail.
#include "headless/headless_platform.h"

namespace tessarine
{
namespace
{

std::string_view FolderOf(std::string_view path)
{
    const auto separator = path.rfind('/');
    return separator == std::string_view::npos ? std::string_view() : path.substr(0, separator);
}

} // namespace

bool HeadlessPlatform::FileOperationFails()
{
    const int operation = fileOperations++;
    if (failingFileOperation < 0) {
        return false;
    }
    return operation == failingFileOperation || (failsFromThere && operation > failingFileOperation);
}

std::string HeadlessPlatform::Resolved(const std::string& path) const
{
    if (path.starts_with('/')) {
        return path;
    }
    return currentFolder.ends_with('/') ? currentFolder + path : currentFolder + '/' + path;
}

bool HeadlessPlatform::IsReadOnly(const std::string& resolved) const
{
    const std::string folder(FolderOf(resolved));
    return readOnlyFolders.contains(folder) || readOnlyFolders.contains(folder + '/');
}

bool HeadlessPlatform::IsFolder(const std::string& resolved) const
{
    return resolved.ends_with('/') || files.contains(resolved + '/');
}

std::optional<std::string> HeadlessPlatform::ReadFile(const std::string& path)
{
    const std::string resolved = Resolved(path);
    const auto file = files.find(resolved);
    if (FileOperationFails() || file == files.end() || IsFolder(resolved)) {
        return std::nullopt;
    }
    return file->second;
}

bool HeadlessPlatform::WriteNewFile(const std::string& path, std::string_view bytes)
{
    const std::string resolved = Resolved(path);
    const bool fails = FileOperationFails();
    if (IsReadOnly(resolved) || IsFolder(resolved)) {
        return false;
    }
    files[resolved] = fails ? bytes.substr(0, bytes.size() / 2) : bytes;
    return !fails;
}

bool HeadlessPlatform::RenameFile(const std::string& from, const std::string& to)
{
    const std::string source = Resolved(from);
    const std::string target = Resolved(to);
    const bool fails = FileOperationFails() || IsReadOnly(source) || IsReadOnly(target);
    if (fails || IsFolder(source) || IsFolder(target) || !files.contains(source)) {
        return false;
    }
    std::string bytes = std::move(files[source]);
    files.erase(source);
    files[target] = std::move(bytes);
    return true;
}

void HeadlessPlatform::RemoveFile(const std::string& path)
{
    const std::string resolved = Resolved(path);
    if (!IsReadOnly(resolved) && !IsFolder(resolved)) {
        files.erase(resolved);
    }
}

bool HeadlessPlatform::IsPlainFile(const std::string& path)
{
    const std::string resolved = Resolved(path);
    return files.contains(resolved) && !IsFolder(resolved) && !hiddenFiles.contains(resolved);
}

std::string HeadlessPlatform::CurrentFolder()
{
    return currentFolder;
}

void HeadlessPlatform::ChangeFolder(const std::string& folder)
{
    currentFolder = Resolved(folder);
    if (currentFolder.size() > 1 && currentFolder.ends_with('/')) {
        currentFolder.pop_back();
    }
}

} // namespace tessarine
