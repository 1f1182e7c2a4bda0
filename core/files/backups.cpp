#include "core/files/backups.h"

#include "core/files/descriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Backups {

namespace {

const QString timeFormat = QStringLiteral("yyyy-MM-dd'T'HH:mm:ss.zzz'Z'");

QString encodePath(const QString &path)
{
    QString encoded = path;
    encoded.replace(QLatin1Char('%'), QLatin1String("%25"));
    encoded.replace(QLatin1Char('/'), QLatin1String("%2F"));
    return encoded;
}

Failure copyFailure(const QString &path, int code)
{
    return Failure{path, Failure::Step::Copy, qt_error_string(code)};
}

// A copy larger than the process may write fails before a byte is written:
// the write past the limit would raise SIGXFSZ and end the program.
bool fitsSizeLimit(qint64 size)
{
    struct rlimit limit;
    return ::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY ||
           quint64(size) <= quint64(limit.rlim_cur);
}

// The folder, private to the user; made when missing.
Status makeDirectory(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
        return copyFailure(path, errno);
    return Status();
}

void syncDirectory(const QString &folder)
{
    const Descriptor dir(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (dir >= 0)
        ::fsync(dir);
}

// Newest first: by the number, then by the time, then by the name.
bool newerThan(const Copy &a, const Copy &b)
{
    if (a.number != b.number)
        return a.number > b.number;
    return a.time != b.time ? a.time > b.time : a.path > b.path;
}

// The copies in the folder, without asking whether it can be read.
QList<Copy> copiesIn(const QString &folder, const QString &original)
{
    QList<Copy> copies;
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &entry : entries) {
        Copy copy;
        if (!parseFileName(entry.fileName(), &copy))
            continue;
        if (!original.isEmpty() && copy.original != original)
            continue;
        copy.path = entry.filePath();
        copy.size = entry.size();
        copies.append(copy);
    }
    std::sort(copies.begin(), copies.end(), newerThan);
    return copies;
}

const QString partialPrefix = QStringLiteral(".partial-");

// Copies cut short by a program that ended while writing them: their names
// carry the process, which is gone.
void removeAbandoned(const QString &folder)
{
    const QStringList partials =
        QDir(folder).entryList({partialPrefix + QLatin1Char('*')}, QDir::Files | QDir::Hidden);
    for (const QString &name : partials) {
        const pid_t pid = name.mid(partialPrefix.size()).section(QLatin1Char('-'), 0, 0).toInt();
        if (pid > 0 && ::kill(pid, 0) != 0 && errno == ESRCH)
            QFile::remove(folder + QLatin1Char('/') + name);
    }
}

// A whole copy under a temporary name, on the disk: the caller renames it.
Result<QString> writeTemporary(const QString &folder, const QByteArray &bytes)
{
    for (int attempt = 0;; ++attempt) {
        const QString path = folder + QLatin1Char('/') + partialPrefix +
                             QStringLiteral("%1-%2").arg(::getpid()).arg(attempt);
        const Descriptor fd(::open(QFile::encodeName(path).constData(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (fd < 0) {
            if (errno == EEXIST && attempt < 1000)
                continue;
            return copyFailure(path, errno);
        }
        if (writeAllAt(fd, bytes) && ::fsync(fd) == 0)
            return path;
        const int error = errno;
        QFile::remove(path);
        return copyFailure(path, error);
    }
}

} // namespace

QString directory()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return data.isEmpty() ? QString() : data + QStringLiteral("/backups");
}

QString fileName(const QString &original, const QDateTime &time, int number)
{
    QString name = encodePath(original) + QLatin1Char('@') + time.toUTC().toString(timeFormat);
    if (number > 0)
        name += QLatin1Char('~') + QString::number(number);
    return name;
}

bool parseFileName(const QString &name, Copy *copy)
{
    const int at = name.lastIndexOf(QLatin1Char('@'));
    if (at <= 0)
        return false;
    QString time = name.mid(at + 1);
    int number = 0;
    const int tilde = time.indexOf(QLatin1Char('~'));
    if (tilde >= 0) {
        bool ok = false;
        number = time.mid(tilde + 1).toInt(&ok);
        if (!ok || number <= 0)
            return false;
        time.truncate(tilde);
    }
    QDateTime parsed = QDateTime::fromString(time, timeFormat);
    parsed.setTimeSpec(Qt::UTC);
    const QString path = QUrl::fromPercentEncoding(name.left(at).toUtf8());
    if (!parsed.isValid() || !path.startsWith(QLatin1Char('/')) ||
        fileName(path, parsed, number) != name)
        return false;
    copy->original = path;
    copy->time = parsed;
    copy->number = number;
    return true;
}

Result<QList<Copy>> list(const QString &original)
{
    const QString folder = directory();
    if (folder.isEmpty())
        return Failure{folder, Failure::Step::List, qt_error_string(ENOENT)};
    DIR *dir = ::opendir(QFile::encodeName(folder).constData());
    if (!dir) {
        if (errno == ENOENT)
            return QList<Copy>();
        return Failure{folder, Failure::Step::List, qt_error_string(errno)};
    }
    ::closedir(dir);
    return copiesIn(folder, original);
}

Result<QString> keep(const QString &original, const QByteArray &bytes)
{
    const QString folder = directory();
    if (folder.isEmpty())
        return copyFailure(folder, ENOENT);
    if (!fitsSizeLimit(bytes.size()))
        return copyFailure(folder, EFBIG);
    const Status made = makeDirectory(folder);
    if (!made)
        return made.failure();

    removeAbandoned(folder);
    const QList<Copy> earlier = copiesIn(folder, original);
    const int number = earlier.isEmpty() ? 1 : earlier.first().number + 1;
    const Result<QString> partial = writeTemporary(folder, bytes);
    if (!partial)
        return partial;
    // Linked to its name only now, whole and synced; a name taken already
    // (two copies within a millisecond) moves the time on.
    QDateTime time = QDateTime::currentDateTimeUtc();
    QString path;
    int linked = -1;
    for (int attempt = 0; linked != 0 && attempt < 1000; ++attempt, time = time.addMSecs(1)) {
        path = folder + QLatin1Char('/') + fileName(original, time, number);
        linked = ::link(QFile::encodeName(partial.value()).constData(),
                        QFile::encodeName(path).constData());
        if (linked != 0 && errno != EEXIST)
            break;
    }
    const int error = errno;
    QFile::remove(partial.value());
    if (linked != 0)
        return copyFailure(path, error);
    syncDirectory(folder);

    // The copy just made has the highest number, so it is never among these.
    for (int i = keptPerFile - 1; i < earlier.size(); ++i)
        QFile::remove(earlier.at(i).path);
    return path;
}

Result<QByteArray> readCopy(const QString &path)
{
    const auto refused = [&path](const char *reason) {
        return Failure{path, Failure::Step::Check, QCoreApplication::translate("Backups", reason)};
    };
    if (QFileInfo(path).absolutePath() != QFileInfo(directory()).absoluteFilePath())
        return refused(QT_TRANSLATE_NOOP("Backups", "it is not in the folder of copies"));
    const Descriptor fd(::open(QFile::encodeName(path).constData(),
                               O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (fd < 0) {
        if (errno == ELOOP)
            return refused(QT_TRANSLATE_NOOP("Backups", "it is a symbolic link"));
        return Failure{path, Failure::Step::Open, qt_error_string(errno)};
    }
    struct stat info;
    if (::fstat(fd, &info) != 0)
        return Failure{path, Failure::Step::Open, qt_error_string(errno)};
    if (!S_ISREG(info.st_mode))
        return refused(QT_TRANSLATE_NOOP("Backups", "it is not a regular file"));
    if (info.st_uid != ::geteuid())
        return refused(QT_TRANSLATE_NOOP("Backups", "it belongs to another user"));
    QByteArray bytes(int(info.st_size), Qt::Uninitialized);
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t got = ::read(fd, bytes.data() + done, size_t(bytes.size() - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return Failure{path, Failure::Step::Read,
                           got < 0 ? qt_error_string(errno)
                                   : QCoreApplication::translate(
                                         "SafeFile", "it could not be read completely")};
        done += got;
    }
    return bytes;
}

} // namespace Backups
