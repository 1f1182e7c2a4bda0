#include "core/files/safefile.h"

#include "core/files/descriptor.h"
#include "core/files/systempaths.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace SafeFile {

namespace {

// A QByteArray holds a little less than 2 GiB.
constexpr qint64 largestReadable = 0x7fffffff - 4096;

QString systemError(int code)
{
    return qt_error_string(code);
}

QString notRegular()
{
    return QCoreApplication::translate("SafeFile", "it is not a regular file");
}

QString notOurs()
{
    return QCoreApplication::translate("SafeFile",
                                       "it belongs to another user or has more than one name");
}

bool isOurs(const struct stat &info)
{
    return info.st_uid == ::geteuid() && info.st_nlink == 1;
}

// The whole file; the Failure's path is the caller's to fill in.
Result<QByteArray> readAll(int fd)
{
    const auto failed = [](const QString &reason) {
        return Failure{QString(), Failure::Step::Read, reason};
    };
    struct stat info;
    if (::fstat(fd, &info) != 0)
        return failed(systemError(errno));
    if (info.st_size > largestReadable)
        return failed(systemError(EFBIG));
    QByteArray data(int(info.st_size), Qt::Uninitialized);
    qint64 total = 0;
    for (;;) {
        if (total == data.size())
            data.resize(data.size() + 65536); // the file grew meanwhile
        const ssize_t got = ::pread(fd, data.data() + total, size_t(data.size() - total), total);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return failed(systemError(errno));
        if (got == 0)
            break;
        total += got;
        if (total > largestReadable)
            return failed(systemError(EFBIG));
    }
    if (total < info.st_size)
        return failed(QCoreApplication::translate("SafeFile", "it could not be read completely"));
    data.resize(int(total));
    return data;
}

// Whether a missing file could be made there.
Status canCreate(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const auto failed = [&path](int code) {
        return Failure{path, Failure::Step::Create, systemError(code)};
    };
    struct stat info;
    if (::stat(folder.constData(), &info) != 0)
        return failed(errno);
    if (!S_ISDIR(info.st_mode))
        return failed(ENOTDIR);
    if (::access(folder.constData(), W_OK | X_OK) != 0)
        return failed(errno);
    return Status();
}

// Files larger than the process may write fail before anything is written:
// a write past the limit would also raise SIGXFSZ.
bool fitsSizeLimit(qint64 size)
{
    struct rlimit limit;
    if (::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return true;
    return quint64(size) <= quint64(limit.rlim_cur);
}

bool reserve(int fd, qint64 size)
{
    if (size == 0 || ::fallocate(fd, FALLOC_FL_KEEP_SIZE, 0, size) == 0)
        return true;
    // Some file systems cannot reserve; the checked writes still protect the file.
    return errno == EOPNOTSUPP || errno == ENOSYS;
}

bool putBack(int fd, const QByteArray &before, qint64 from)
{
    return writeAllAt(fd, before, from) && ::ftruncate(fd, before.size()) == 0 && ::fsync(fd) == 0;
}

// Where two contents start to differ: the bytes before it stay as they are.
qint64 firstDifference(const QByteArray &a, const QByteArray &b)
{
    const int common = qMin(a.size(), b.size());
    return std::mismatch(a.constBegin(), a.constBegin() + common, b.constBegin()).first -
           a.constBegin();
}

} // namespace

bool isScratch(const QString &path)
{
    return path == SystemPaths::globalScratch() || path == SystemPaths::localScratch();
}

Result<Contents> read(const QString &path)
{
    const auto failed = [&path](Failure::Step step, const QString &reason) {
        return Failure{path, step, reason};
    };
    const QByteArray name = QFile::encodeName(path);
    const bool scratch = isScratch(path);
    struct stat info;
    if ((scratch ? ::lstat(name.constData(), &info) : ::stat(name.constData(), &info)) != 0) {
        if (errno != ENOENT)
            return failed(Failure::Step::Open, systemError(errno));
        const Status creatable = canCreate(path);
        if (!creatable)
            return creatable.failure();
        return Contents();
    }
    // Anything but a regular file (a FIFO would block) counts as unopenable.
    if (!S_ISREG(info.st_mode))
        return failed(Failure::Step::Open, notRegular());
    if (scratch && !isOurs(info))
        return failed(Failure::Step::Open, notOurs());

    const int flags = O_RDWR | O_CLOEXEC | O_NOCTTY | (scratch ? O_NOFOLLOW : 0);
    const Descriptor fd(::open(name.constData(), flags));
    if (fd < 0)
        return failed(Failure::Step::Open, systemError(errno));
    // The same checks on what was opened, in case the name changed meanwhile.
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || (scratch && !isOurs(info)))
        return failed(Failure::Step::Open, S_ISREG(info.st_mode) ? notOurs() : notRegular());
    const Result<QByteArray> bytes = readAll(fd);
    if (!bytes)
        return failed(Failure::Step::Read, bytes.reason());
    return Contents{true, bytes.value()};
}

Status rewrite(const QString &path, bool existed, const QByteArray &before, const QByteArray &after)
{
    const auto failed = [&path](Failure::Step step, const QString &reason) {
        return Failure{path, step, reason};
    };
    const bool scratch = isScratch(path);
    int flags = O_RDWR | O_CLOEXEC | O_NOCTTY;
    if (scratch)
        flags |= O_NOFOLLOW | (existed ? 0 : O_CREAT | O_EXCL);
    else if (!existed)
        flags |= O_CREAT;
    const Descriptor fd(::open(QFile::encodeName(path).constData(), flags, scratch ? 0600 : 0666));
    if (fd < 0)
        return failed(existed ? Failure::Step::Open : Failure::Step::Create, systemError(errno));
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || (scratch && !isOurs(info)))
        return failed(Failure::Step::Open, S_ISREG(info.st_mode) ? notOurs() : notRegular());

    const Result<QByteArray> current = readAll(fd);
    if (!current)
        return failed(Failure::Step::Read, current.reason());
    if (current.value() != before)
        return failed(
            Failure::Step::Read,
            QCoreApplication::translate("SafeFile", "another program changed it during the save"));
    if (!fitsSizeLimit(before.size()) || !fitsSizeLimit(after.size()))
        return failed(Failure::Step::Write, systemError(EFBIG));
    if (!reserve(fd, qMax(before.size(), after.size())))
        return failed(Failure::Step::Write, systemError(errno));

    // From here on old bytes change: any failure puts them back.
    const qint64 from = firstDifference(before, after);
    const bool written = writeAllAt(fd, after, from) &&
                         (after.size() >= before.size() || ::ftruncate(fd, after.size()) == 0);
    const bool synced = written && ::fsync(fd) == 0;
    if (synced)
        return Status();
    const QString reason = systemError(errno);
    if (!putBack(fd, before, from))
        return failed(Failure::Step::PutBack, reason);
    return failed(written ? Failure::Step::Sync : Failure::Step::Write, reason);
}

} // namespace SafeFile
