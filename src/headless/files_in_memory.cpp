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

FileFault HeadlessPlatform::NextOperationsFault()
{
    const int operation = fileOperations++;
    const bool fails =
        failingFileOperation >= 0 &&
        (operation == failingFileOperation || (failsFromThere && operation > failingFileOperation));
    return fails ? failure : FileFault::None;
}

std::string HeadlessPlatform::Resolved(const std::string& path) const
{
    if (path.starts_with('/')) {
        return path;
    }
    return currentFolder.ends_with('/') ? currentFolder + path : currentFolder + '/' + path;
}

bool HeadlessPlatform::IsFolder(const std::string& resolved) const
{
    return resolved.ends_with('/') || files.contains(resolved + '/');
}

/// What keeps a file of this name from being made, put in place or removed.
FileFault HeadlessPlatform::FaultOfChange(const std::string& resolved) const
{
    const std::string folder(FolderOf(resolved));
    if (readOnlyFolders.contains(folder) || readOnlyFolders.contains(folder + '/')) {
        return FileFault::Forbidden;
    }
    return IsFolder(resolved) ? FileFault::IsFolder : FileFault::None;
}

FileFault HeadlessPlatform::FaultOfRead(const std::string& resolved) const
{
    if (IsFolder(resolved)) {
        return FileFault::IsFolder;
    }
    const auto file = files.find(resolved);
    if (file == files.end()) {
        return FileFault::Missing;
    }
    return file->second.size() > LargestFile ? FileFault::TooLarge : FileFault::None;
}

FileResult HeadlessPlatform::ReadFile(const std::string& path)
{
    const auto link = links.find(Resolved(path));
    const std::string resolved = link == links.end() ? Resolved(path) : link->second;
    FileFault fault = NextOperationsFault();
    if (fault == FileFault::None) {
        fault = FaultOfRead(resolved);
    }
    return fault == FileFault::None ? FileResult(files[resolved]) : FileResult(fault);
}

FileResult HeadlessPlatform::PlaceToWrite(const std::string& path)
{
    const auto link = links.find(Resolved(path));
    const std::string place = link == links.end() ? path : link->second;
    FileFault fault = NextOperationsFault();
    if (fault == FileFault::None && IsFolder(Resolved(place))) {
        fault = FileFault::IsFolder;
    }
    if (fault == FileFault::None && writeProtected.contains(Resolved(place))) {
        fault = FileFault::Forbidden;
    }
    return fault == FileFault::None ? FileResult(place) : FileResult(fault);
}

FileFault HeadlessPlatform::WriteNewFile(const std::string& path, std::string_view bytes)
{
    const std::string resolved = Resolved(path);
    const FileFault fault = NextOperationsFault();
    if (const FileFault own = FaultOfChange(resolved); own != FileFault::None) {
        return own;
    }
    if (fault == FileFault::None) {
        files[resolved] = bytes;
    } else if (fault == FileFault::Full || fault == FileFault::Other) {
        files[resolved] = bytes.substr(0, bytes.size() / 2);
    }
    return fault;
}

FileFault HeadlessPlatform::RenameFile(const std::string& from, const std::string& to)
{
    const std::string source = Resolved(from);
    const std::string target = Resolved(to);
    for (const FileFault fault :
         {NextOperationsFault(), FaultOfRead(source), FaultOfChange(source), FaultOfChange(target)}) {
        if (fault != FileFault::None) {
            return fault;
        }
    }
    std::string bytes = std::move(files[source]);
    files.erase(source);
    files[target] = std::move(bytes);
    return FileFault::None;
}

void HeadlessPlatform::RemoveFile(const std::string& path)
{
    const std::string resolved = Resolved(path);
    if (FaultOfChange(resolved) == FileFault::None) {
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
