#include "core/files/backups.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
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

bool writeCopy(int fd, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t put = ::write(fd, bytes.constData() + done, size_t(bytes.size() - done));
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return false;
        done += put;
    }
    return ::fsync(fd) == 0;
}

// The folder, private to the user; made when missing.
Status makeDirectory(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
        return Failure{path, Failure::Step::Copy, qt_error_string(errno)};
    return Status();
}

} // namespace

QString directory()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return data.isEmpty() ? QString() : data + QStringLiteral("/backups");
}

QString fileName(const QString &original, const QDateTime &time)
{
    return encodePath(original) + QLatin1Char('@') + time.toUTC().toString(timeFormat);
}

bool parseFileName(const QString &name, QString *original, QDateTime *time)
{
    const int at = name.lastIndexOf(QLatin1Char('@'));
    if (at <= 0)
        return false;
    QDateTime parsed = QDateTime::fromString(name.mid(at + 1), timeFormat);
    parsed.setTimeSpec(Qt::UTC);
    const QString path = QUrl::fromPercentEncoding(name.left(at).toUtf8());
    if (!parsed.isValid() || !path.startsWith(QLatin1Char('/')) || fileName(path, parsed) != name)
        return false;
    *original = path;
    *time = parsed;
    return true;
}

namespace {

// The copies in the folder, without asking whether it can be read.
QList<Copy> copiesIn(const QString &folder, const QString &original)
{
    QList<Copy> copies;
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &entry : entries) {
        Copy copy;
        if (!parseFileName(entry.fileName(), &copy.original, &copy.time))
            continue;
        if (!original.isEmpty() && copy.original != original)
            continue;
        copy.path = entry.filePath();
        copy.size = entry.size();
        copies.append(copy);
    }
    std::sort(copies.begin(), copies.end(), [](const Copy &a, const Copy &b) {
        return a.time != b.time ? a.time > b.time : a.path > b.path;
    });
    return copies;
}

} // namespace

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
        return Failure{folder, Failure::Step::Copy, qt_error_string(ENOENT)};
    const Status made = makeDirectory(folder);
    if (!made)
        return made.failure();

    // A name taken already (two saves within a millisecond) moves the time on.
    QDateTime time = QDateTime::currentDateTimeUtc();
    QString path;
    int fd = -1;
    for (int attempt = 0; fd < 0 && attempt < 1000; ++attempt, time = time.addMSecs(1)) {
        path = folder + QLatin1Char('/') + fileName(original, time);
        fd = ::open(QFile::encodeName(path).constData(),
                    O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
        if (fd < 0 && errno != EEXIST)
            break;
    }
    if (fd < 0)
        return Failure{path, Failure::Step::Copy, qt_error_string(errno)};
    const bool written = writeCopy(fd, bytes);
    const int writeError = errno;
    ::close(fd);
    if (!written) {
        QFile::remove(path);
        return Failure{path, Failure::Step::Copy, qt_error_string(writeError)};
    }
    // The copy's name must reach the disk too before the original changes.
    const int dir =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir >= 0) {
        ::fsync(dir);
        ::close(dir);
    }

    const QList<Copy> copies = copiesIn(folder, original);
    for (int i = keptPerFile; i < copies.size(); ++i)
        QFile::remove(copies.at(i).path);
    return path;
}

} // namespace Backups
