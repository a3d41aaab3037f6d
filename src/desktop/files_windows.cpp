#include "desktop/files.h"

#include <algorithm>
#include <utility>

#include <windows.h>

namespace tessarine::files
{
namespace
{

class Handle
{
public:
    explicit Handle(HANDLE handle) : handle_(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }

    bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }
    /// A network disk may report a lost write only here.
    bool Close() { return !IsOpen() || CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0; }

private:
    HANDLE handle_;
};

/// Why the last call of the system failed.
FileFault LastFault()
{
    switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
        return FileFault::Missing;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
        return FileFault::Forbidden;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return FileFault::InUse;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return FileFault::Full;
    default:
        return FileFault::Other;
    }
}

bool WriteAll(HANDLE file, std::string_view bytes)
{
    constexpr std::size_t largestPiece = 1U << 20U;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
        if (WriteFile(file, bytes.data(), piece, &written, nullptr) == 0 || written == 0) {
            return false;
        }
        bytes.remove_prefix(written);
    }
    return true;
}

/// Replacing an open file is merely denied; opening it for that tells why.
FileFault FaultOfReplacing(const std::filesystem::path& path)
{
    const FileFault fault = LastFault();
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const Handle file(CreateFileW(path.c_str(), DELETE, shareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    return !file.IsOpen() && LastFault() == FileFault::InUse ? FileFault::InUse : fault;
}

bool HasAttributes(const std::filesystem::path& path, DWORD some)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & some) != 0;
}

} // namespace

FileFault WriteNew(const std::filesystem::path& path, std::string_view bytes)
{
    Handle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    const bool isOnDisk = file.IsOpen() && WriteAll(file.Get(), bytes) &&
                          FlushFileBuffers(file.Get()) != 0 && file.Close();
    if (isOnDisk) {
        return FileFault::None;
    }
    const FileFault fault = LastFault();
    return HasAttributes(path, FILE_ATTRIBUTE_DIRECTORY) ? FileFault::IsFolder : fault;
}

FileFault Rename(const std::filesystem::path& from, const std::filesystem::path& to)
{
    // A scanner that looks into every new file holds it for a moment.
    constexpr int tries = 5;
    constexpr DWORD pauseMilliseconds = 20;
    constexpr DWORD flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    for (int left = tries; MoveFileExW(from.c_str(), to.c_str(), flags) == 0; --left) {
        const FileFault fault = FaultOfReplacing(to);
        if (left == 1 || (fault != FileFault::InUse && fault != FileFault::Forbidden)) {
            return fault;
        }
        Sleep(pauseMilliseconds);
    }
    return FileFault::None;
}

bool IsWriteProtected(const std::filesystem::path& path)
{
    return HasAttributes(path, FILE_ATTRIBUTE_READONLY);
}

bool IsHidden(const std::filesystem::path& path)
{
    return HasAttributes(path, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
}

} // namespace tessarine::files
