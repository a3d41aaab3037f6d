#include "desktop/files.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarine::files
{
namespace
{

class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    /// A network disk may report a lost write only here.
    bool Close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

/// Why the last call of the system failed. A share of the disk that is used up is a full disk.
FileFault LastFault()
{
    return FaultOf({errno == EDQUOT ? ENOSPC : errno, std::generic_category()});
}

bool WriteAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// The file that goes in place of another is to be read and written by whom the other is.
void TakeOverMode(const std::filesystem::path& from, const std::filesystem::path& to)
{
    constexpr mode_t permissions = 07777;
    struct stat facts {
    };
    if (::stat(to.c_str(), &facts) == 0) {
        // A file system without modes refuses; there is none to keep on it.
        static_cast<void>(::chmod(from.c_str(), facts.st_mode & permissions));
    }
}

/// The new name is on the disk only when the folder is. The rename itself has been done by now and a
/// file system that can't flush a folder does so in its own time, so there is nothing to report.
void FlushFolder(const std::filesystem::path& folder)
{
    const Descriptor descriptor(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) {
        ::fsync(descriptor.Number());
    }
}

} // namespace

FileFault WriteNew(const std::filesystem::path& path, std::string_view bytes)
{
    // Without O_NONBLOCK the opening of a pipe would wait for somebody to read from it.
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0666));
    const bool isOnDisk =
        file.IsOpen() && WriteAll(file.Number(), bytes) && ::fsync(file.Number()) == 0 && file.Close();
    return isOnDisk ? FileFault::None : LastFault();
}

FileFault Rename(const std::filesystem::path& from, const std::filesystem::path& to)
{
    TakeOverMode(from, to);
    if (std::rename(from.c_str(), to.c_str()) != 0) {
        return LastFault();
    }
    FlushFolder(to.parent_path());
    return FileFault::None;
}

bool IsWriteProtected(const std::filesystem::path& path)
{
    constexpr mode_t writing = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat facts {
    };
    const bool nobodyWrites = ::stat(path.c_str(), &facts) == 0 && (facts.st_mode & writing) == 0;
    return nobodyWrites || ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

bool IsHidden(const std::filesystem::path& path)
{
    return path.filename().native().starts_with('.');
}

} // namespace tessarine::files
