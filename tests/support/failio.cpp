// A preload library that makes one kind of system call fail on one file, so
// tests can see what the program does when a disk fills up or a read goes
// wrong. Idle unless ORV_FAIL_CALL is set:
//   ORV_FAIL_CALL   pread | pwrite | fsync | ftruncate | fallocate
//   ORV_FAIL_PATH   the file, by any of its names
//   ORV_FAIL_ERRNO  the error to report; 0 makes pread report the file's end
//   ORV_FAIL_AFTER  bytes that pread or pwrite still pass before failing
//   ORV_FAIL_TIMES  how many calls fail before calls go through again
// orv_failio_reset() starts the counting afresh.

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
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
    struct stat opened, named;
    return wanted && path && std::strcmp(wanted, call) == 0 && ::fstat(fd, &opened) == 0 &&
           ::stat(path, &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

// How many of `count` bytes go through; -1 with errno set when the call
// fails, 0 when it is to report the end of the file.
ssize_t allowance(const char *call, int fd, size_t count)
{
    if (!isTarget(call, fd) || failedCalls >= setting("ORV_FAIL_TIMES"))
        return ssize_t(count);
    const long left = setting("ORV_FAIL_AFTER") - passedBytes;
    if (left > 0) {
        const long allowed = left < long(count) ? left : long(count);
        passedBytes += allowed;
        return allowed;
    }
    ++failedCalls;
    errno = int(setting("ORV_FAIL_ERRNO"));
    return errno == 0 ? 0 : -1;
}

template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
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
    const ssize_t allowed = allowance("pread", fd, count);
    return allowed < 0 ? -1 : next<decltype(&pread)>("pread")(fd, buffer, size_t(allowed), offset);
}

ssize_t pwrite(int fd, const void *buffer, size_t count, off_t offset)
{
    const ssize_t allowed = allowance("pwrite", fd, count);
    return allowed < 0 ? -1
                       : next<decltype(&pwrite)>("pwrite")(fd, buffer, size_t(allowed), offset);
}

int fsync(int fd)
{
    return allowance("fsync", fd, 0) < 0 ? -1 : next<decltype(&fsync)>("fsync")(fd);
}

int ftruncate(int fd, off_t length)
{
    return allowance("ftruncate", fd, 0) < 0 ? -1
                                             : next<decltype(&ftruncate)>("ftruncate")(fd, length);
}

int fallocate(int fd, int mode, off_t offset, off_t length)
{
    const auto real = next<decltype(&fallocate)>("fallocate");
    return allowance("fallocate", fd, 0) < 0 ? -1 : real(fd, mode, offset, length);
}
}
