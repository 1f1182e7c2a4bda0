// A preload library that makes one kind of system call fail on one file, so
// tests can see what the program does when a disk fills up or a read goes
// wrong. Idle unless ORV_FAIL_CALL is set:
//   ORV_FAIL_CALL   read | write | fsync | ftruncate | fallocate (read: pread,
//                   write: pwrite and write)
//   ORV_FAIL_PATH   the file, as /proc/self/fd shows it
//   ORV_FAIL_ERRNO  the error to report; 0 makes a read or write return 0,
//                   as at the end of a file
//   ORV_FAIL_AFTER  for read and write: bytes that still go through first
//   ORV_FAIL_TIMES  how many calls fail before calls go through again
// orv_failio_reset() starts the counting afresh.

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

long passedBytes = 0;
long failedCalls = 0;

long setting(const char *name, long fallback)
{
    const char *value = std::getenv(name);
    return value ? std::atol(value) : fallback;
}

bool isTarget(const char *call, int fd)
{
    const char *wanted = std::getenv("ORV_FAIL_CALL");
    const char *path = std::getenv("ORV_FAIL_PATH");
    if (!wanted || !path || std::strcmp(wanted, call) != 0)
        return false;
    char link[64];
    char target[4096];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = ::readlink(link, target, sizeof target - 1);
    if (length < 0)
        return false;
    target[length] = '\0';
    return std::strcmp(target, path) == 0;
}

bool fails()
{
    if (failedCalls >= setting("ORV_FAIL_TIMES", 1))
        return false;
    ++failedCalls;
    errno = int(setting("ORV_FAIL_ERRNO", EIO));
    return true;
}

constexpr ssize_t endOfFile = -2;

// How many of `count` bytes go through; -1 with errno set when the call
// fails, endOfFile when it is to report no more bytes.
ssize_t allowance(const char *call, int fd, size_t count)
{
    if (!isTarget(call, fd))
        return ssize_t(count);
    const long left = setting("ORV_FAIL_AFTER", 0) - passedBytes;
    if (left > 0 || failedCalls >= setting("ORV_FAIL_TIMES", 1)) {
        const ssize_t allowed = left > 0 && long(count) > left ? ssize_t(left) : ssize_t(count);
        passedBytes += allowed;
        return allowed;
    }
    if (!fails())
        return ssize_t(count);
    return errno == 0 ? endOfFile : -1;
}

template <typename Function>
Function real(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

template <typename Function, typename Buffer, typename... Offset>
ssize_t transfer(Function function, const char *call, int fd, Buffer buffer, size_t count,
                 Offset... offset)
{
    const ssize_t allowed = allowance(call, fd, count);
    if (allowed < 0)
        return allowed == endOfFile ? 0 : -1;
    return function(fd, buffer, size_t(allowed), offset...);
}

template <typename Function, typename... Arguments>
int other(Function function, const char *call, int fd, Arguments... arguments)
{
    return isTarget(call, fd) && fails() ? -1 : function(fd, arguments...);
}

} // namespace

extern "C" {

void orv_failio_reset()
{
    passedBytes = 0;
    failedCalls = 0;
}

ssize_t pread(int fd, void *buffer, size_t count, off_t offset)
{
    static const auto function = real<decltype(&pread)>("pread");
    return transfer(function, "read", fd, buffer, count, offset);
}

ssize_t write(int fd, const void *buffer, size_t count)
{
    static const auto function = real<decltype(&write)>("write");
    return transfer(function, "write", fd, buffer, count);
}

ssize_t pwrite(int fd, const void *buffer, size_t count, off_t offset)
{
    static const auto function = real<decltype(&pwrite)>("pwrite");
    return transfer(function, "write", fd, buffer, count, offset);
}

int fsync(int fd)
{
    static const auto function = real<decltype(&fsync)>("fsync");
    return other(function, "fsync", fd);
}

int ftruncate(int fd, off_t length)
{
    static const auto function = real<decltype(&ftruncate)>("ftruncate");
    return other(function, "ftruncate", fd, length);
}

int fallocate(int fd, int mode, off_t offset, off_t length)
{
    static const auto function = real<decltype(&fallocate)>("fallocate");
    return other(function, "fallocate", fd, mode, offset, length);
}
}
