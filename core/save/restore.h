#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

// Bringing an earlier copy of a start-up file back, with the safety of a
// save: a copy of what the file holds now is kept first, and the file is
// rewritten in place with every check.
struct Restore
{
    Q_DECLARE_TR_FUNCTIONS(Restore)

public:
    // A whole file read without opening it for writing; a missing one is
    // read as not existing.
    struct Contents
    {
        bool exists = false;
        QByteArray bytes;
    };
    static Result<Contents> read(const QString &path);

    // Writes the copy back into `original`. Returns the copy kept of what
    // the file held before (empty when none could be made). A Failure names
    // the copy (step Read) or the original: it cannot be opened for writing
    // (step Open) or could not be written (step Write).
    static Result<QString> copy(const QString &copyPath, const QString &original);
    // A failure of copy() as one sentence that names the file.
    static QString sentence(const Failure &failure);

    // A copy's time as the user reads it: local, to the second.
    static QString timeText(const QDateTime &time);
};
