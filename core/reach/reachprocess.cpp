#include "core/reach/reachprocess.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <signal.h>
#include <sys/types.h>

namespace {

// Everything in the session: the leader while it lives (once it is gone it
// cannot start anything more, and until its setsid has run the group is not
// yet its own), the process group, then any member that a shell with job
// control put into a group of its own. The id cannot be given to another
// process while a member of the group or session lives.
void killSession(qint64 session, bool leaderLives)
{
    if (session <= 0)
        return;
    if (leaderLives)
        ::kill(pid_t(session), SIGKILL);
    ::kill(pid_t(-session), SIGKILL);
    if (!leaderLives)
        return;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &entry : entries) {
        bool number = false;
        const qint64 pid = entry.toLongLong(&number);
        if (!number || pid == session)
            continue;
        QFile stat(QStringLiteral("/proc/") + entry + QStringLiteral("/stat"));
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        // pid (comm) state ppid pgrp session ...; comm may hold spaces and ')'.
        const QByteArray line = stat.read(1024);
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 3 && fields.at(3).toLongLong() == session)
            ::kill(pid_t(pid), SIGKILL);
    }
}

} // namespace

ReachProcess::ReachProcess(QObject *parent)
    : QObject(parent)
{}

ReachProcess::~ReachProcess()
{
    cancel();
    // Killed already, so this is the moment the kernel takes to end it, not
    // a wait for the program.
    if (process)
        process->waitForFinished(1000);
}

void ReachProcess::start(const QStringList &command, const QProcessEnvironment &environment,
                         const QString &directory)
{
    Q_ASSERT(!process && !command.isEmpty());
    const QString setsid = QStandardPaths::findExecutable(
        QStringLiteral("setsid"), {QStringLiteral("/usr/bin"), QStringLiteral("/bin")});
    if (setsid.isEmpty()) {
        // Without a session of its own a shell could take the terminal, and a
        // time-out could not reach what it started.
        failToStart(tr("setsid was not found"));
        return;
    }
    process = new QProcess(this);
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(directory);
    process->setStandardInputFile(QProcess::nullDevice());
    connect(process, &QProcess::readyReadStandardOutput, this, &ReachProcess::readOutput);
    connect(process, &QProcess::readyReadStandardError, this, [this] { readErrors(false); });
    connect(process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) {
                finish(exitCode, status == QProcess::CrashExit);
            });
    connect(process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && ending == End::Running)
            failToStart(process->errorString());
    });
    timer = new QTimer(this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this] { stopWith(End::TimedOut); });
    timer->start(timeoutMs);
    // setsid execs the command in place (a child of ours leads no group), so
    // the process id is the session's and the process group's id.
    process->start(setsid, command);
    session = process->processId();
}

void ReachProcess::cancel()
{
    if (ending != End::Running)
        return;
    ending = End::Cancelled;
    if (timer)
        timer->stop();
    if (process) {
        process->disconnect(this);
        killSession(session, true);
    }
}

void ReachProcess::readOutput()
{
    if (ending != End::Running)
        return;
    stdoutBytes += process->readAllStandardOutput();
    if (stdoutBytes.size() > outputLimit) {
        stdoutBytes.truncate(outputLimit);
        stopWith(End::TooMuchOutput);
    }
}

void ReachProcess::readErrors(bool atEnd)
{
    partialLine += process->readAllStandardError();
    int from = 0;
    for (int end; (end = partialLine.indexOf('\n', from)) >= 0; from = end + 1) {
        if (!skippingLine)
            emit errorLine(partialLine.mid(from, end - from));
        else
            skippingLine = false;
        if (end > from)
            lastLine = partialLine.mid(from, qMin(end - from, 200));
    }
    partialLine.remove(0, from);
    if (partialLine.size() > outputLimit || (atEnd && !partialLine.isEmpty())) {
        if (!skippingLine)
            emit errorLine(partialLine.left(outputLimit));
        lastLine = partialLine.left(200);
        skippingLine = !atEnd;
        partialLine.clear();
    }
}

void ReachProcess::stopWith(End reason)
{
    if (ending != End::Running)
        return;
    ending = reason;
    timer->stop();
    killSession(session, true);
    // finished() follows as the process dies, and with it done().
}

void ReachProcess::finish(int exitCode, bool crashed)
{
    timer->stop();
    if (ending == End::Running) {
        readOutput();
        readErrors(true);
    }
    if (ending == End::Running) {
        ending = crashed ? End::Crashed : End::Finished;
        code = exitCode;
    }
    // Whatever a start-up file left running in the background goes too.
    killSession(session, false);
    session = 0;
    emit done();
}

void ReachProcess::failToStart(const QString &reason)
{
    ending = End::FailedToStart;
    startFailure = reason;
    if (timer)
        timer->stop();
    // Told from the event loop, as every other end is.
    QTimer::singleShot(0, this, &ReachProcess::done);
}
