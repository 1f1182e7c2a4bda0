#include "core/save/restore.h"

#include "core/files/backups.h"
#include "core/files/safefile.h"
#include "core/save/commit.h"

#include <QFile>
#include <QFileInfo>

Result<Restore::Contents> Restore::read(const QString &path)
{
    if (SafeFile::isScratch(path)) {
        // Anyone can plant a file in the shared temporary folder: read it
        // only under the rules a save uses for it.
        const Result<SafeFile::Contents> safe = SafeFile::read(path);
        if (!safe)
            return safe.failure();
        return Contents{safe->exists, safe->bytes};
    }
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return Contents();
    // Anything but a regular file could block or never end.
    if (!info.isFile())
        return Failure{path, Failure::Step::Open, tr("it is not a regular file")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{path, Failure::Step::Open, file.errorString()};
    const qint64 size = file.size();
    Contents contents{true, file.readAll()};
    if (file.error() != QFileDevice::NoError || contents.bytes.size() != size)
        return Failure{path, Failure::Step::Read,
                       file.error() != QFileDevice::NoError
                           ? file.errorString()
                           : tr("it could not be read completely")};
    return contents;
}

Result<QString> Restore::copy(const QString &copyPath, const QString &original)
{
    const Result<QByteArray> copy = Backups::readCopy(copyPath);
    if (!copy)
        return Failure{copyPath, Failure::Step::Read, copy.reason()};
    const Result<SafeFile::Contents> now = SafeFile::read(original);
    if (!now)
        return Failure{original, Failure::Step::Open, now.reason()};
    SavePlan::File file;
    file.path = original;
    file.existed = now->exists;
    file.before = now->bytes;
    file.after = copy.value();
    const Result<CommittedFile> written = commitFile(file);
    if (!written)
        return Failure{original, Failure::Step::Write, written.reason()};
    return written->copy;
}

QString Restore::sentence(const Failure &failure)
{
    switch (failure.step) {
    case Failure::Step::Read:
        return tr("The copy %1 cannot be read: %2").arg(failure.path, failure.reason);
    case Failure::Step::Open:
        return tr("%1 cannot be opened for writing: %2").arg(failure.path, failure.reason);
    default:
        return tr("%1 could not be written: %2").arg(failure.path, failure.reason);
    }
}

QString Restore::timeText(const QDateTime &time)
{
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}
