#include "desktop/files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
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

bool IsRegular(int descriptor)
{
    struct stat facts {
    };
    return ::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode);
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

std::string FolderOf(const std::string& path)
{
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// The new name is on the disk only when the folder is. The rename itself has been done by now and a
/// file system that can't flush a folder does so in its own time, so there is nothing to report.
void FlushFolder(const std::string& folder)
{
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) {
        ::fsync(descriptor.Number());
    }
}

} // namespace

std::optional<std::string> Read(const std::string& path)
{
    // Without O_NONBLOCK the opening of a pipe would wait for somebody to write into it.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen() || !IsRegular(file.Number())) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, 16384> piece{};
    for (;;) {
        const ssize_t count = ::read(file.Number(), piece.data(), piece.size());
        if (count == 0) {
            return bytes;
        }
        if (count > 0) {
            bytes.append(piece.data(), static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return std::nullopt;
        }
    }
}

bool WriteNew(const std::string& path, std::string_view bytes)
{
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0666));
    return file.IsOpen() && IsRegular(file.Number()) && WriteAll(file.Number(), bytes) &&
           ::fsync(file.Number()) == 0 && file.Close();
}

bool Rename(const std::string& from, const std::string& to)
{
    if (std::rename(from.c_str(), to.c_str()) != 0) {
        return false;
    }
    FlushFolder(FolderOf(to));
    return true;
}

void Remove(const std::string& path)
{
    ::unlink(path.c_str());
}

bool IsPlain(const std::string& path)
{
    const std::string name = std::filesystem::path(path).filename().string();
    struct stat facts {
    };
    return !name.empty() && name.front() != '.' && ::stat(path.c_str(), &facts) == 0 &&
           S_ISREG(facts.st_mode);
}

std::string CurrentFolder()
{
    std::error_code failure;
    return std::filesystem::current_path(failure).string();
}

void ChangeFolder(const std::string& folder)
{
    std::error_code failure;
    std::filesystem::current_path(folder, failure);
}

} // namespace tessarine::files
