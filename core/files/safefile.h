#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QString>

// Reading and rewriting start-up files so that no failure loses a byte.
namespace SafeFile {

// A file as a save finds it.
struct Contents
{
    bool exists = false;
    QByteArray bytes; // all of it, when it exists
};

// What a save may do with a path. Usable are a regular file that opens for
// reading and writing and reads completely, and a missing file whose folder
// could hold it; anything else is a Failure. The two scratch files in the
// shared temporary folder count only while they are ours: no link, a regular
// file of the effective user with a single name.
Result<Contents> read(const QString &path);

// Rewrites a file in place: same inode, owner, mode and hard links, and a
// symbolic link keeps pointing at it. The file must still hold `before`;
// room for `after` is reserved before any old byte changes, the new bytes
// are written from where they first differ, the file is cut to their length
// and synced.
// On any failure `before` is put back (a file the call created is left
// empty); a Failure of step PutBack says that putting it back failed too.
Status rewrite(const QString &path, bool existed, const QByteArray &before,
               const QByteArray &after);

// Whether the path is one of the two scratch files, which other users could
// have planted in the shared temporary folder.
bool isScratch(const QString &path);

} // namespace SafeFile
