#pragma once

#include "core/reach/reachenvironment.h"

#include <QCoreApplication>
#include <QStringList>

// Runs a program with the system folders it reads taken from a sysroot
// instead of the real system: a private mount namespace (unshare --mount; as
// a user --map-root-user too, then a second user namespace that maps the
// user back, so that the program sees its own uid) in which the sysroot's
// folders, or empty ones where the sysroot has none, are bound over the
// system's. Nothing outside the namespace sees the mounts.
//
// Where unshare is missing or the kernel refuses user namespaces, a run with
// a sysroot fails with a sentence that says so: it never falls back to the
// real folders. Without a sysroot the command runs as it is.
class SysrootCommand
{
    Q_DECLARE_TR_FUNCTIONS(SysrootCommand)

public:
    // What a shell reads from the system.
    static QStringList shellFolders();
    // What the systemd environment generator reads, /etc last.
    static QStringList generatorFolders();

    // `program` names the program in failure sentences.
    SysrootCommand(const ReachEnvironment &environment, const QStringList &folders,
                   const QString &program);

    bool active() const { return !sysroot.isEmpty(); }
    // Set when the namespace cannot be built at all.
    QString failure() const { return buildFailure; }
    // The command to run instead of `command`.
    QStringList wrap(const QStringList &command) const;

    // After a run that ended by itself: why the folders could not be put in
    // place (from the output and the last line on stderr), or empty.
    QString runFailure(const QByteArray &output, const QString &lastErrorLine) const;
    // The output without the line the namespace wrote before the program.
    QByteArray programOutput(const QByteArray &output) const;
    // A path the program named, as seen from outside the namespace.
    QString outsidePath(const QString &path) const;

private:
    QString sysroot;
    QString program;
    QString buildFailure;
    QStringList mounts; // pairs: source ("-" for an empty folder), target
    QString unshare;
    QString mount;
    QByteArray token;
};
