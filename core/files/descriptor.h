#pragma once

#include <QByteArray>

#include <cerrno>
#include <unistd.h>

// A file descriptor that is closed when it goes out of scope.
class Descriptor
{
public:
    explicit Descriptor(int fd)
        : fd(fd)
    {}
    ~Descriptor()
    {
        if (fd >= 0)
            ::close(fd);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    operator int() const { return fd; }

private:
    int fd;
};

// Writes the bytes from `from` on to the same place in the file, the whole
// of them; false with errno set when a write fails.
inline bool writeAllAt(int fd, const QByteArray &bytes, qint64 from = 0)
{
    qint64 done = from;
    while (done < bytes.size()) {
        const ssize_t put =
            ::pwrite(fd, bytes.constData() + done, size_t(bytes.size() - done), done);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0) {
            if (put == 0)
                errno = EIO;
            return false;
        }
        done += put;
    }
    return true;
}
