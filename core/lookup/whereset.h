#pragma once

#include "core/lookup/assignments.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

#include <optional>

// Which start-up files a login reads, and the lines in them that set or
// export one variable. Reads files; never writes them.
class WhereSet
{
    Q_DECLARE_TR_FUNCTIONS(WhereSet)

public:
    struct File
    {
        QString path;
        Assignments::Syntax syntax;
    };

    struct Line
    {
        QString path;
        int number = 0; // from 1; 0 for a file that could not be read
        QString text;   // the line as written, or why the file could not be read
        bool readable = true;
        bool commented = false;
        bool hasValue = false;
        QString value;
    };

    // The existing files a login of this shell kind reads, in the order it
    // reads them, each once: the PAM and systemd environment files, the
    // system-wide start-up files, then the user's. The lists the editor scans
    // are merged in, their own entries after the known files of their side.
    static QList<File> startupFiles(int shellKind, const QString &home,
                                    const QStringList &systemFiles, const QStringList &userFiles);

    // The lines of a file's contents that set or export `name`.
    static QList<Line> scanText(const QString &path, const QByteArray &contents,
                                const QString &name, Assignments::Syntax syntax);
    // The same for a file on disk; a file that cannot be read gives one line
    // that says why.
    static QList<Line> scanFile(const File &file, const QString &name);

    // A path under the home directory written with "~".
    static QString displayPath(const QString &path, const QString &home);

    // One sentence comparing the last assignment in the files with the
    // session's value (none when the session lacks the variable). A table
    // value equal to the file's is taken as one just saved.
    static QString explain(const QList<Line> &lines, const QString &name,
                           const std::optional<QString> &session, const QString &tableValue,
                           const QString &home);
};
