#pragma once

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
