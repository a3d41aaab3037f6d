#include "desktop/files.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <utility>

namespace tessarine::files
{
namespace
{

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

/// What keeps the place from being a plain file that can be opened; Missing where nothing is.
FileFault FaultOfKind(const fs::path& path)
{
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    switch (status.type()) {
    case fs::file_type::regular:
        return FileFault::None;
    case fs::file_type::directory:
        return FileFault::IsFolder;
    case fs::file_type::not_found:
        return FileFault::Missing;
    default:
        return failure ? FaultOf(failure) : FileFault::Other;
    }
}

/// Where a chain of links ends, whether or not something is there, and what failed on the way. One that
/// goes in circles is given up.
fs::path EndOfLinks(fs::path path, std::error_code& failure)
{
    constexpr int longestChain = 40;
    for (int links = 0; links < longestChain && fs::is_symlink(fs::symlink_status(path, failure));
         ++links) {
        const fs::path target = fs::read_symlink(path, failure);
        if (failure) {
            break;
        }
        path = path.parent_path() / target; // the target alone, if it names its whole way
    }
    return path;
}

} // namespace

fs::path PathOf(std::string_view utf8)
{
    return {std::u8string(utf8.begin(), utf8.end())};
}

FileFault FaultOf(const std::error_code& failure)
{
    static constexpr std::array<std::pair<std::errc, FileFault>, 9> faults = {{
        {std::errc::no_such_file_or_directory, FileFault::Missing},
        {std::errc::not_a_directory, FileFault::Missing},
        {std::errc::permission_denied, FileFault::Forbidden},
        {std::errc::operation_not_permitted, FileFault::Forbidden},
        {std::errc::read_only_file_system, FileFault::Forbidden},
        {std::errc::is_a_directory, FileFault::IsFolder},
        {std::errc::directory_not_empty, FileFault::IsFolder},
        {std::errc::no_space_on_device, FileFault::Full},
        {std::errc::file_too_large, FileFault::Full},
    }};
    if (!failure) {
        return FileFault::None;
    }
    for (const auto& [error, fault] : faults) {
        if (failure == error) {
            return fault;
        }
    }
    return FileFault::Other;
}

FileResult Read(const std::string& path)
{
    const fs::path place = PathOf(path);
    if (const FileFault fault = FaultOfKind(place); fault != FileFault::None) {
        return fault;
    }
    std::ifstream file(place, std::ios::binary);
    if (!file) {
        return FaultOf({errno, std::generic_category()});
    }
    std::string bytes;
    std::array<char, 16384> piece{};
    while (file && bytes.size() <= LargestFile) {
        file.read(piece.data(), piece.size());
        bytes.append(piece.data(), static_cast<std::size_t>(file.gcount()));
    }
    if (file.bad()) {
        return FileFault::Other;
    }
    if (bytes.size() > LargestFile) {
        return FileFault::TooLarge;
    }
    return bytes;
}

FileResult PlaceToWrite(const std::string& path)
{
    std::error_code failure;
    const fs::path place = EndOfLinks(PathOf(path), failure);
    const FileFault fault = FaultOfKind(place);
    // What could not be looked at may be a link, which a new file must not take the place of.
    if (failure && FaultOf(failure) != fault) {
        return FaultOf(failure);
    }
    if (fault == FileFault::None && IsWriteProtected(place)) {
        return FileFault::Forbidden;
    }
    if (fault != FileFault::None && fault != FileFault::Missing) {
        return fault;
    }
    return Utf8(place);
}

void Remove(const std::string& path)
{
    std::error_code failure;
    fs::remove(PathOf(path), failure);
}

bool IsPlain(const std::string& path)
{
    const fs::path place = PathOf(path);
    return FaultOfKind(place) == FileFault::None && !IsHidden(place);
}

std::string CurrentFolder()
{
    std::error_code failure;
    return Utf8(fs::current_path(failure));
}

void ChangeFolder(const std::string& folder)
{
    std::error_code failure;
    fs::current_path(PathOf(folder), failure);
}

std::string_view FolderSeparators()
{
    return fs::path::preferred_separator == '/' ? "/" : "\\/";
}

} // namespace tessarine::files
