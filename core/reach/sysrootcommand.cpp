#include "core/reach/sysrootcommand.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <unistd.h>

namespace {

// Mounts each pair, tells that it did, then runs the program in its place.
const char mountScript[] = R"(ready=$1 failed=$2 mount=$3
shift 3
while [ "$1" != -- ]; do
    if [ "$1" = - ]; then
        error=$("$mount" -t tmpfs -o ro,mode=0755 tmpfs "$2" 2>&1)
    else
        error=$("$mount" --bind "$1" "$2" 2>&1)
    fi || { printf '%s%s\n' "$failed" "$error"; exit 125; }
    shift 2
done
shift
printf '%s\n' "$ready"
exec "$@")";

QStringList systemBin()
{
    return {QStringLiteral("/usr/bin"), QStringLiteral("/bin"), QStringLiteral("/usr/sbin"),
            QStringLiteral("/sbin")};
}

} // namespace

QStringList SysrootCommand::shellFolders()
{
    return {QStringLiteral("/etc")};
}

QStringList SysrootCommand::generatorFolders()
{
    // mount itself may look into /etc, so that goes last.
    return {QStringLiteral("/run/environment.d"), QStringLiteral("/usr/local/lib/environment.d"),
            QStringLiteral("/usr/lib/environment.d"), QStringLiteral("/etc")};
}

SysrootCommand::SysrootCommand(const ReachEnvironment &environment, const QStringList &folders,
                               const QString &program)
    : sysroot(environment.sysroot)
    , program(program)
{
    if (sysroot.isEmpty())
        return;
    token = "orv-reach-" + QByteArray::number(QRandomGenerator::global()->generate64(), 16);
    unshare = QStandardPaths::findExecutable(QStringLiteral("unshare"), systemBin());
    mount = QStandardPaths::findExecutable(QStringLiteral("mount"), systemBin());
    if (unshare.isEmpty() || mount.isEmpty()) {
        buildFailure =
            tr("%1 cannot run with the system folders of %2: %3 was not found")
                .arg(program, sysroot,
                     unshare.isEmpty() ? QStringLiteral("unshare") : QStringLiteral("mount"));
        return;
    }
    for (const QString &folder : folders) {
        const QString source = sysroot + folder;
        const bool sourceThere = QFileInfo(source).isDir();
        if (!QFileInfo(folder).isDir()) {
            // Nothing to mount over: the program reads nothing there, which
            // is right unless the sysroot has something for it.
            if (sourceThere) {
                buildFailure = tr("%1 cannot run with the system folders of %2: this system has no "
                                  "folder %3 to put %4 over")
                                   .arg(program, sysroot, folder, source);
                return;
            }
            continue;
        }
        mounts << (sourceThere ? source : QStringLiteral("-")) << folder;
    }
}

QStringList SysrootCommand::wrap(const QStringList &command) const
{
    if (!active())
        return command;
    const QString sh = QStandardPaths::findExecutable(QStringLiteral("sh"), systemBin());
    QStringList wrapped{unshare};
    const bool root = ::geteuid() == 0;
    if (!root)
        wrapped << QStringLiteral("--user") << QStringLiteral("--map-root-user");
    wrapped << QStringLiteral("--mount") << sh << QStringLiteral("-c")
            << QString::fromLatin1(mountScript) << QStringLiteral("sh")
            << QString::fromLatin1(token + ":ready") << QString::fromLatin1(token + ":failed:")
            << mount << mounts << QStringLiteral("--");
    if (!root)
        wrapped << unshare << QStringLiteral("--user")
                << QStringLiteral("--map-user=%1").arg(::getuid())
                << QStringLiteral("--map-group=%1").arg(::getgid());
    return wrapped + command;
}

QString SysrootCommand::runFailure(const QByteArray &output, const QString &lastErrorLine) const
{
    if (!active() || output.startsWith(token + ":ready\n"))
        return QString();
    const int failed = output.indexOf(token + ":failed:");
    const QString reason = failed >= 0
                               ? QString::fromUtf8(output.mid(failed + token.size() + 8).trimmed())
                               : lastErrorLine.trimmed();
    return tr("%1 cannot run with the system folders of %2: %3").arg(program, sysroot, reason);
}

QByteArray SysrootCommand::programOutput(const QByteArray &output) const
{
    const QByteArray ready = token + ":ready\n";
    return active() && output.startsWith(ready) ? output.mid(ready.size()) : output;
}

QString SysrootCommand::outsidePath(const QString &path) const
{
    for (int i = 0; active() && i + 1 < mounts.size(); i += 2) {
        const QString &target = mounts.at(i + 1);
        if (mounts.at(i) != QLatin1String("-") &&
            (path == target || path.startsWith(target + QLatin1Char('/'))))
            return sysroot + path;
    }
    return path;
}
