// A preload library that makes one kind of system call fail on one file, so
// tests can see what the program does when a disk fills up or a read goes
// wrong. Idle unless ORV_FAIL_CALL is set:
//   ORV_FAIL_CALL   pread | pwrite | fsync | ftruncate | fallocate
//   ORV_FAIL_PATH   the file, as /proc/self/fd shows it
//   ORV_FAIL_ERRNO  the error to report; 0 makes a read return 0, as at the
//                   end of a file
//   ORV_FAIL_AFTER  for pread and pwrite: bytes that still go through first
//   ORV_FAIL_TIMES  how many calls fail before calls go through again
// orv_failio_reset() starts the counting afresh.

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

long passedBytes = 0;
long failedCalls = 0;

long setting(const char *name)
{
    const char *value = std::getenv(name);
    return value ? std::atol(value) : 0;
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

// How many of `count` bytes go through; -1 with errno set when the call fails.
ssize_t allowance(const char *call, int fd, size_t count)
{
    if (!isTarget(call, fd) || failedCalls >= setting("ORV_FAIL_TIMES"))
        return ssize_t(count);
    const long left = setting("ORV_FAIL_AFTER") - passedBytes;
    if (left > 0) {
        const ssize_t allowed = std::min(ssize_t(left), ssize_t(count));
        passedBytes += allowed;
        return allowed;
    }
    ++failedCalls;
    errno = int(setting("ORV_FAIL_ERRNO"));
    return -1;
}

// The definition the program would have called without this library.
template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

template <typename Function, typename Buffer>
ssize_t transfer(Function function, const char *call, int fd, Buffer buffer, size_t count,
                 off_t offset)
{
    const ssize_t allowed = allowance(call, fd, count);
    if (allowed < 0)
        return errno == 0 ? 0 : -1;
    return function(fd, buffer, size_t(allowed), offset);
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
    static const auto function = next<decltype(&pread)>("pread");
    return transfer(function, "pread", fd, buffer, count, offset);
}

ssize_t pwrite(int fd, const void *buffer, size_t count, off_t offset)
{
    static const auto function = next<decltype(&pwrite)>("pwrite");
    return transfer(function, "pwrite", fd, buffer, count, offset);
}

int fsync(int fd)
{
    static const auto function = next<decltype(&fsync)>("fsync");
    return allowance("fsync", fd, 0) < 0 ? -1 : function(fd);
}

int ftruncate(int fd, off_t length)
{
    static const auto function = next<decltype(&ftruncate)>("ftruncate");
    return allowance("ftruncate", fd, 0) < 0 ? -1 : function(fd, length);
}

int fallocate(int fd, int mode, off_t offset, off_t length)
{
    static const auto function = next<decltype(&fallocate)>("fallocate");
    return allowance("fallocate", fd, 0) < 0 ? -1 : function(fd, mode, offset, length);
}
}
