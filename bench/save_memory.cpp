// The memory and time a save takes on a large start-up file: one variable
// saved into a ~/.bashrc of SIZE megabytes (default 200), in a child process
// so that its peak resident memory is the save's own, beside `cp` plus
// `sed -i` making the same change on the same file. Prints the peak over the
// file's size (goal: at most 3.0) and the two times (goal: within 2x).
//
// usage: save_memory [SIZE_MB]   (run from a Release build; it writes the
// file twice into a temporary sandbox, so it needs about 4 times SIZE free)

#include "core/save/savecommit.h"
#include "core/save/saveplan.h"
#include "support/sandbox.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A start-up file of about `bytes`: export lines, comments and shell text,
// with FOO's export in the middle.
qint64 writeStartupFile(const QString &path, qint64 bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return -1;
    QByteArray chunk;
    for (int i = 0; chunk.size() < (1 << 20); ++i) {
        chunk += "export BENCH_" + QByteArray::number(i) + "=/opt/bench/" + QByteArray::number(i) +
                 "/lib:$PATH\n";
        chunk += "# a comment about line " + QByteArray::number(i) + " of the file\n";
        chunk += "alias l" + QByteArray::number(i) + "='ls -l --color=auto'\n";
    }
    for (qint64 written = 0; written < bytes; written += chunk.size()) {
        if (written >= bytes / 2 && written < bytes / 2 + chunk.size())
            file.write("export FOO=1\n");
        file.write(chunk);
    }
    return file.size();
}

double seconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e9;
}

} // namespace

int main(int argc, char *argv[])
{
    Sandbox::prepareProcess();
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Orv"));
    QCoreApplication::setApplicationName(QStringLiteral("orv-admin-env"));
    const qint64 megabytes = argc > 1 ? QByteArray(argv[1]).toLongLong() : 200;
    Sandbox sandbox;
    const QString bashrc = Sandbox::home() + QStringLiteral("/.bashrc");
    const QString copy = Sandbox::home() + QStringLiteral("/bashrc.sed");
    const qint64 size = writeStartupFile(bashrc, megabytes << 20);
    if (size <= 0 || !QFile::copy(bashrc, copy)) {
        std::fprintf(stderr, "cannot write the start-up files\n");
        return 1;
    }

    // The save, as the editor's: plan, then commit with a copy kept first.
    QElapsedTimer timer;
    timer.start();
    const pid_t child = ::fork();
    if (child == 0) {
        const QList<QStringList> rows{{"FOO", "2", bashrc, "", "local", "", "1"}};
        const SaveReport report =
            commitSave(planSave({rows, {}, false, bashrc, QString(), QStringLiteral("System")}));
        ::_exit(report.complete() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    const double saveTime = seconds(timer);
    struct rusage usage;
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const double peak = double(usage.ru_maxrss) * 1024;

    // The same change with the standard tools, a copy first as well.
    timer.restart();
    const int tools = QProcess::execute(
        QStringLiteral("sh"), {QStringLiteral("-c"),
                               QStringLiteral("cp \"$0\" \"$0.copy\" && sed -i 's/^export FOO=.*/"
                                              "export FOO=2/' \"$0\""),
                               copy});
    const double toolsTime = seconds(timer);

    const bool same = Sandbox::readFile(bashrc) == Sandbox::readFile(copy);
    std::printf("save of one variable into a %.0f MB file\n", double(size) / (1 << 20));
    std::printf("  peak resident memory %.0f MB = %.2f times the file (goal: at most 3.0)\n",
                peak / (1 << 20), peak / double(size));
    std::printf("  editor's save %.2f s, cp + sed -i %.2f s: ratio %.2f (goal: at most 2)\n",
                saveTime, toolsTime, saveTime / toolsTime);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || tools != 0 || !same) {
        std::fprintf(stderr, "the save failed or wrote other bytes than sed\n");
        return 1;
    }
    return 0;
}
