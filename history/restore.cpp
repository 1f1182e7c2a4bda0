#include "restore.h"

#include "commit.h"
#include "safefile.h"

#include <QFile>
#include <QFileInfo>

Restore::Contents Restore::read(const QString &path)
{
    Contents contents;
    if (SafeFile::isScratch(path)) {
        // Anyone can plant a file in the shared temporary folder: read it
        // only under the rules a save uses for it.
        const SafeFile::Contents safe = SafeFile::read(path);
        contents.readable = safe.usable || !safe.exists;
        contents.exists = safe.exists;
        contents.bytes = safe.bytes;
        contents.error = safe.error;
        return contents;
    }
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) {
        contents.readable = true;
        contents.error = qt_error_string(ENOENT);
        return contents;
    }
    contents.exists = true;
    // Anything but a regular file could block or never end.
    if (!info.isFile()) {
        contents.error = tr("it is not a regular file");
        return contents;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        contents.error = file.errorString();
        return contents;
    }
    const qint64 size = file.size();
    contents.bytes = file.readAll();
    if (file.error() != QFileDevice::NoError || contents.bytes.size() != size) {
        contents.error = file.error() != QFileDevice::NoError
                             ? file.errorString()
                             : tr("it could not be read completely");
        contents.bytes.clear();
        return contents;
    }
    contents.readable = true;
    return contents;
}

Restore Restore::copy(const QString &copyPath, const QString &original)
{
    Restore result;
    const Contents copy = read(copyPath);
    if (!copy.readable || !copy.exists) {
        result.error = tr("The copy %1 cannot be read: %2").arg(copyPath, copy.error);
        return result;
    }
    const SafeFile::Contents now = SafeFile::read(original);
    if (!now.usable) {
        result.error = tr("%1 cannot be opened for writing: %2").arg(original, now.error);
        return result;
    }
    SavePlan::File file;
    file.path = original;
    file.existed = now.exists;
    file.before = now.bytes;
    file.after = copy.bytes;
    const QString error = commitFile(file, &result.keptCopy);
    if (!error.isNull()) {
        result.error = tr("%1 could not be written: %2").arg(original, error);
        return result;
    }
    result.restored = true;
    return result;
}

QString Restore::timeText(const QDateTime &time)
{
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}
