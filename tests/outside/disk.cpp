// Loaded into the program from outside (LD_PRELOAD): a disk that fails. Counts each operation of the
// program's own thread on files in or below the folder DISK_FOLDER, tells them to the file DISK_LOG, and
// does to the one with the number DISK_AT what DISK_FATE says: an error by its number, "short" (a part
// of the bytes, and no room for the rest), "before" or "after" (the program is killed then).
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr std::size_t Most = 4096;
std::array<bool, Most> ours{}; // by descriptor
std::array<bool, Most> noRoom{};
int counted = 0;

template <class Function> Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::string_view Setting(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool IsOurs(std::string_view path)
{
    const std::string_view folder = Setting("DISK_FOLDER");
    return !folder.empty() && gettid() == getpid() &&
           (path.starts_with(folder) || (!path.starts_with('/') && !path.empty()));
}
bool IsOurs(int descriptor)
{
    return descriptor >= 0 && descriptor < static_cast<int>(Most) &&
           ours[static_cast<std::size_t>(descriptor)] && gettid() == getpid();
}

class Operation
{
public:
    template <class On> Operation(const char* name, On on)
    {
        if (!IsOurs(on)) {
            return;
        }
        std::string line = std::to_string(++counted) + ' ' + name + ' ';
        if constexpr (!std::is_same_v<On, int>) {
            line += on;
        }
        static const int log = Real<int(const char*, int, ...)>("open")(
            std::string(Setting("DISK_LOG")).c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
        static_cast<void>(Real<ssize_t(int, const void*, std::size_t)>("write")(
            log, (line + '\n').c_str(), line.size() + 1));
        if (std::to_string(counted) != Setting("DISK_AT")) {
            return;
        }
        const std::string_view fate = Setting("DISK_FATE");
        isShort = fate == "short";
        isLast = fate == "after";
        error = std::atoi(fate.data());
        if (fate == "before") {
            kill(getpid(), SIGKILL);
        }
        errno = error;
    }
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;
    ~Operation()
    {
        if (isLast) {
            kill(getpid(), SIGKILL);
        }
    }

    int error = 0;
    bool isShort = false;
    bool isLast = false;
};

template <class Result, class On, class... Types> Result Do(const char* name, On on, Types... arguments)
{
    const Operation operation(name, on);
    return operation.error != 0 ? Result{-1} : Real<Result(Types...)>(name)(arguments...);
}

void Note(int descriptor, bool isOurs)
{
    if (descriptor >= 0 && descriptor < static_cast<int>(Most)) {
        ours[static_cast<std::size_t>(descriptor)] = isOurs;
        noRoom[static_cast<std::size_t>(descriptor)] = false;
    }
}

int Open(const char* name, const char* path, int flags, mode_t mode)
{
    const Operation operation(name, path);
    const int descriptor =
        operation.error != 0 ? -1 : Real<int(const char*, int, ...)>(name)(path, flags, mode);
    Note(descriptor, IsOurs(path));
    return descriptor;
}

std::FILE* OpenFile(const char* name, const char* path, const char* mode)
{
    const Operation operation(name, path);
    std::FILE* const file =
        operation.error != 0 ? nullptr : Real<std::FILE*(const char*, const char*)>(name)(path, mode);
    Note(file == nullptr ? -1 : fileno(file), IsOurs(path));
    return file;
}

} // namespace

// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name,cppcoreguidelines-*): the library's
// own names
extern "C" {

// The mode that follows is in its register, given or not.
#define OPEN(name)                                                                                      \
    int name(const char* path, int flags, ...)                                                          \
    {                                                                                                   \
        std::va_list more;                                                                              \
        va_start(more, flags);                                                                          \
        const mode_t mode = va_arg(more, mode_t);                                                       \
        va_end(more);                                                                                   \
        return Open(#name, path, flags, mode);                                                          \
    }
OPEN(open)
OPEN(open64)
std::FILE* fopen(const char* path, const char* mode)
{
    return OpenFile("fopen", path, mode);
}
std::FILE* fopen64(const char* path, const char* mode)
{
    return OpenFile("fopen64", path, mode);
}

int fclose(std::FILE* file)
{
    Note(fileno(file), false);
    return Real<int(std::FILE*)>("fclose")(file);
}

ssize_t read(int descriptor, void* bytes, std::size_t count)
{
    const Operation operation("read", descriptor);
    return operation.error != 0 ? -1
                                : Real<ssize_t(int, void*, std::size_t)>("read")(
                                      descriptor, bytes, operation.isShort ? 7 : count);
}

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    const Operation operation("write", descriptor);
    if (IsOurs(descriptor) && noRoom[static_cast<std::size_t>(descriptor)]) {
        errno = ENOSPC;
        return -1;
    }
    if (operation.isShort) {
        noRoom[static_cast<std::size_t>(descriptor)] = true;
        count /= 2;
    }
    return operation.error != 0
               ? -1
               : Real<ssize_t(int, const void*, std::size_t)>("write")(descriptor, bytes, count);
}

int close(int descriptor)
{
    const Operation operation("close", descriptor);
    Note(descriptor, false);
    const int result = Real<int(int)>("close")(descriptor);
    errno = operation.error != 0 ? operation.error : errno;
    return operation.error != 0 ? -1 : result;
}

int fsync(int descriptor)
{
    return Do<int>("fsync", descriptor, descriptor);
}
int stat(const char* path, struct stat* facts) noexcept
{
    return Do<int>("stat", path, path, facts);
}
int lstat(const char* path, struct stat* facts) noexcept
{
    return Do<int>("lstat", path, path, facts);
}
int chmod(const char* path, mode_t mode) noexcept
{
    return Do<int>("chmod", path, path, mode);
}
int mkdir(const char* path, mode_t mode) noexcept
{
    return Do<int>("mkdir", path, path, mode);
}
int remove(const char* path) noexcept
{
    return Do<int>("remove", path, path);
}
int unlink(const char* path) noexcept
{
    return Do<int>("unlink", path, path);
}
int rename(const char* from, const char* to) noexcept
{
    return Do<int>("rename", to, from, to);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept
{
    return Do<int>("faccessat", path, folder, path, mode, flags);
}
ssize_t readlink(const char* path, char* to, std::size_t size) noexcept
{
    return Do<ssize_t>("readlink", path, path, to, size);
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name,cppcoreguidelines-*)
