#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

// Copies of the start-up files, kept before each rewrite so that a crash or a
// power loss in the middle of a save loses nothing, and so that an earlier
// version can be brought back.
//
// They live in the program's data folder, in "backups" under
// QStandardPaths::AppDataLocation (e.g. ~/.local/share/Orv/orv-admin-env/
// backups), one file per copy, mode 0600. A copy's name is the start-up
// file's path with "%" written as "%25" and "/" as "%2F", then "@", the UTC
// time of the copy in ISO 8601 with milliseconds, "~" and the copy's number
// among the copies of that file:
//
//     %2Fhome%2Fann%2F.bashrc@2026-11-23T10:15:30.123Z~42
//
// The number, not the time, tells the order the copies were made in: clocks
// jump. Names without a number (older copies) count as number 0. A copy is
// written under a temporary name and renamed only once it is whole and on
// the disk, so a listed copy is never cut short. The newest `keptPerFile`
// copies of each start-up file are kept.
namespace Backups {

constexpr int keptPerFile = 20;

struct Copy
{
    QString path;     // of the copy
    QString original; // the start-up file it was taken of
    QDateTime time;   // UTC
    int number = 0;   // in the order made
    qint64 size = 0;
};

QString directory();
QString fileName(const QString &original, const QDateTime &time, int number = 0);
// Reads a copy's file name; false for any other name.
bool parseFileName(const QString &name, Copy *copy);

// The copies of one start-up file, or of all when `original` is empty,
// newest first. A folder not made yet just holds no copies; no data folder,
// or one that cannot be read, is a Failure.
Result<QList<Copy>> list(const QString &original = QString());

// Stores a copy of `bytes` as the newest of `original` and drops the oldest
// beyond keptPerFile, never the one just made. Returns the copy's path.
Result<QString> keep(const QString &original, const QByteArray &bytes);

// The bytes of a copy named by its path: only a regular file directly in the
// backups folder, of the user's own, reached without following a link. Any
// other file is refused with a Failure of step Check that says why.
Result<QByteArray> readCopy(const QString &path);

} // namespace Backups
