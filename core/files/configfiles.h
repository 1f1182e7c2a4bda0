#pragma once

#include <QString>
#include <QStringList>

// Which start-up files the editor reads and writes: the user's shell kind,
// home and root status from the environment, the system-wide and the user's
// file with their fallbacks, and the lists of files scanned for exports.
namespace ConfigFiles {

enum ShellKind { Other = 0, Bash = 1, Csh = 2 };

// What the environment says about the session. The flags are only ever set.
struct Session
{
    bool rootSession = false;
    bool bashShell = false; // kept, though nothing reads it
    int shellKind = Other;
    QString homeDir;
};
// HOME gives the home directory, LOGNAME "root" in any case a root session,
// SHELL holding "bash" or else "csh" (in any case) the shell kind.
void scanEnvironmentEntry(Session &session, const QString &name, const QString &value);

// The files for a shell kind before any is checked.
struct Candidates
{
    QString global;
    QString local;
};
Candidates candidates(int shellKind, const QString &home);

// Replaces each candidate by the first of its fallbacks that opens for
// reading and writing, which creates a missing one; the last resorts are the
// scratch files in the temporary folder, which are not opened here.
void choose(int shellKind, const QString &home, QString &global, QString &local);

// The stored lists with the chosen files put in front where missing:
// "/etc/profile" always, the global file for root, the local file always.
struct Lists
{
    QStringList systemFiles;
    QStringList userFiles;
};
Lists readLists(int shellKind, bool rootSession, const QString &global, const QString &local);
// Stores the lists under the keys of the shell kind; the user list of a
// kind without a key is not stored.
void storeLists(int shellKind, const QStringList &systemFiles, const QStringList &userFiles);

} // namespace ConfigFiles
