#include "core/reach/shellprobe.h"

#include "core/reach/reachprocess.h"
#include "core/reach/sysrootcommand.h"
#include "core/reach/variablereference.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardPaths>

#include <cctype>
#include <cstring>
#include <unistd.h>

struct ShellProbe::Run
{
    ReachProcess *process = nullptr;
    std::unique_ptr<SysrootCommand> sysroot;
    bool tracing = false;
    QByteArray originFile;
    int originLine = 0;
};

namespace {

QStringList systemBin()
{
    return {QStringLiteral("/usr/bin"), QStringLiteral("/bin")};
}

// The name of a signal, such as SIGSEGV.
QString signalName(int signal)
{
    const char *name = sigabbrev_np(signal);
    return name ? QStringLiteral("SIG") + QString::fromLatin1(name) : QString::number(signal);
}

} // namespace

ShellProbe::Kind ShellProbe::kindOf(const QString &shell)
{
    const QString program = QFileInfo(shell).fileName();
    if (program == QLatin1String("bash"))
        return Kind::Bash;
    if (program == QLatin1String("zsh"))
        return Kind::Zsh;
    if (program == QLatin1String("fish"))
        return Kind::Fish;
    if (program == QLatin1String("sh") || program == QLatin1String("dash"))
        return Kind::Bourne;
    if (program == QLatin1String("csh") || program == QLatin1String("tcsh"))
        return Kind::Csh;
    return Kind::Unknown;
}

ShellProbe::ShellProbe(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<ShellProbe::Context>();
}

ShellProbe::~ShellProbe()
{
    cancel();
}

void ShellProbe::start(const ReachEnvironment &environment, const QString &name)
{
    Q_ASSERT(!runs[0] && !runs[1]);
    this->environment = environment;
    this->name = name;
    shellName = QFileInfo(environment.shell).fileName();
    kind = kindOf(environment.shell);
    token = "orv" + QByteArray::number(QRandomGenerator::global()->generate64(), 16);
    // zsh ties PATH-like variables to arrays of the lower-case name.
    assignedName = name.toLatin1();
    tiedName =
        kind == Kind::Zsh && assignedName.endsWith("PATH") ? assignedName.toLower() : QByteArray();
    const QString names =
        QRegularExpression::escape(name) +
        (tiedName.isEmpty() ? QString() : QLatin1Char('|') + QString::fromLatin1(tiedName));
    assigns.setPattern(QStringLiteral("(^|\\s)'?(%1)(\\+?=|\\[)").arg(names));
    unsets.setPattern(QStringLiteral("^\\s*unset\\s(.*\\s)?(%1)(\\s|$)").arg(names));
    startContext(Context::Login);
    startContext(Context::Interactive);
}

void ShellProbe::cancel()
{
    cancelled = true;
    for (const auto &run : runs) {
        if (run && run->process)
            run->process->cancel();
    }
}

bool ShellProbe::isRunning() const
{
    return runs[0] && !cancelled && reported < 2;
}

ReachResult ShellProbe::result(Context context) const
{
    return results[int(context)];
}

void ShellProbe::startContext(Context context)
{
    auto run = std::make_unique<Run>();
    Run &self = *run;
    runs[int(context)] = std::move(run);
    self.process = new ReachProcess(this);
    self.process->setTimeout(timeoutMs);
    connect(self.process, &ReachProcess::done, this, [this, context] { finishContext(context); });

    // Failures found before anything runs come through the same way as
    // the others, from the event loop.
    const auto refuse = [&](const QString &sentence) {
        results[int(context)] = ReachResult::failed(sentence);
        QMetaObject::invokeMethod(
            this, [this, context] { report(context); }, Qt::QueuedConnection);
        self.process->deleteLater();
        self.process = nullptr;
    };
    if (!VariableReference::isName(name))
        return refuse(tr("%1 is not a valid variable name").arg(name));
    if (kind == Kind::Unknown)
        return refuse(tr("%1 is not a shell this program knows how to ask (bash, sh, dash, zsh, "
                         "fish, csh and tcsh are)")
                          .arg(environment.shell));
    const QFileInfo shellFile(environment.shell);
    if (!shellFile.isAbsolute() || !shellFile.exists())
        return refuse(
            tr("%1 is not installed: %2 was not found").arg(shellName, environment.shell));
    if (!shellFile.isFile() || !shellFile.isExecutable())
        return refuse(
            tr("%1 cannot be run: %2 is not a program").arg(shellName, environment.shell));
    const QString printenv =
        QStandardPaths::findExecutable(QStringLiteral("printenv"), systemBin());
    const QString printf = QStandardPaths::findExecutable(QStringLiteral("printf"), systemBin());
    const QString bash = QStandardPaths::findExecutable(QStringLiteral("bash"), systemBin());
    if (printenv.isEmpty() || printf.isEmpty() || (kind == Kind::Csh && bash.isEmpty()))
        return refuse(
            tr("%1 cannot be asked: printenv, printf or bash was not found").arg(shellName));

    // The markers come out of printf's format and arguments joined, so that
    // a start-up file echoing the command line does not print them.
    const QString marker = QString::fromLatin1(token);
    const QString status = kind == Kind::Fish || kind == Kind::Csh ? QStringLiteral("$status")
                                                                   : QStringLiteral("\"$?\"");
    const QString printfCommand = kind == Kind::Csh ? QLatin1Char('\'') + printf + QLatin1Char('\'')
                                                    : QStringLiteral("printf");
    const QString command = QStringLiteral("%1 '%s<' %2; '%3' %4; %1 '%s>%s' %2 %5")
                                .arg(printfCommand, marker, printenv, name, status);

    QProcessEnvironment processEnvironment = environment.cleanEnvironment();
    // bash takes no PS4 from the environment as root; zsh does.
    self.tracing = kind == Kind::Zsh || (kind == Kind::Bash && (::geteuid() != 0));
    if (self.tracing && kind == Kind::Bash)
        processEnvironment.insert(QStringLiteral("PS4"),
                                  marker + QStringLiteral("@${BASH_SOURCE}\x1f${LINENO}\x1f"));
    else if (self.tracing)
        processEnvironment.insert(QStringLiteral("PS4"), marker + QStringLiteral("@%x\x1f%I\x1f"));

    QStringList shellCommand;
    if (kind == Kind::Csh && context == Context::Login) {
        // csh is a login shell when its name starts with "-", and takes no -l with -c.
        shellCommand << bash << QStringLiteral("-c")
                     << QStringLiteral("exec -a \"-${0##*/}\" \"$0\" -c \"$1\"")
                     << environment.shell << command;
    } else {
        shellCommand << environment.shell;
        if (self.tracing)
            shellCommand << QStringLiteral("-x");
        shellCommand << (context == Context::Login ? QStringLiteral("-l") : QStringLiteral("-i"))
                     << QStringLiteral("-c") << command;
    }

    self.sysroot =
        std::make_unique<SysrootCommand>(environment, SysrootCommand::shellFolders(), shellName);
    if (!self.sysroot->failure().isEmpty())
        return refuse(self.sysroot->failure());
    if (self.tracing)
        connect(self.process, &ReachProcess::errorLine, this,
                [this, context](const QByteArray &line) { traceLine(*runs[int(context)], line); });
    self.process->start(self.sysroot->wrap(shellCommand), processEnvironment,
                        environment.startDirectory());
}

void ShellProbe::finishContext(Context context)
{
    results[int(context)] = resultOf(*runs[int(context)]);
    report(context);
}

void ShellProbe::report(Context context)
{
    if (cancelled)
        return;
    ++reported;
    emit contextFinished(context);
    if (reported == 2)
        emit finished();
}

ReachResult ShellProbe::resultOf(const Run &run) const
{
    const ReachProcess &process = *run.process;
    const QByteArray output = run.sysroot->programOutput(process.output());
    const QByteArray begin = token + '<';
    const QByteArray end = token + '>';
    const int from = output.indexOf(begin);
    const int to = from < 0 ? -1 : output.indexOf(end, from + begin.size());
    // A complete answer counts even when the shell went wrong afterwards, in
    // a logout file, say.
    if (to >= 0) {
        const QByteArray digits = output.mid(to + end.size());
        int length = 0;
        while (length < digits.size() && std::isdigit(uchar(digits.at(length))))
            ++length;
        const int status = digits.left(length).toInt();
        QByteArray value = output.mid(from + begin.size(), to - from - begin.size());
        if (length > 0 && status == 0 && value.endsWith('\n')) {
            value.chop(1);
            if (run.originLine > 0)
                return ReachResult::set(QString::fromUtf8(value),
                                        run.sysroot->outsidePath(QString::fromUtf8(run.originFile)),
                                        run.originLine);
            return ReachResult::set(QString::fromUtf8(value));
        }
        if (length > 0 && status == 1 && value.isEmpty())
            return ReachResult::notSet();
    }
    switch (process.end()) {
    case ReachProcess::End::TimedOut:
        return ReachResult::failed(
            tr("%1 did not finish in %2 seconds: a start-up file may wait for input")
                .arg(shellName)
                .arg(process.timeout() / 1000));
    case ReachProcess::End::TooMuchOutput:
        return ReachResult::failed(
            tr("%1 printed more than 1 MiB while starting, so it was stopped").arg(shellName));
    case ReachProcess::End::FailedToStart:
        return ReachResult::failed(
            tr("%1 could not be started: %2").arg(shellName, process.startError()));
    case ReachProcess::End::Crashed:
        if (const QString failure =
                run.sysroot->runFailure(process.output(), process.lastErrorLine());
            !failure.isEmpty())
            return ReachResult::failed(failure);
        return ReachResult::failed(tr("%1 was killed by signal %2 before it printed the variable")
                                       .arg(shellName, signalName(process.exitCode())));
    case ReachProcess::End::Finished:
        if (const QString failure =
                run.sysroot->runFailure(process.output(), process.lastErrorLine());
            !failure.isEmpty())
            return ReachResult::failed(failure);
        if (to >= 0)
            return ReachResult::failed(
                tr("printenv could not print %1 in %2").arg(name, shellName));
        if (process.exitCode() != 0)
            return ReachResult::failed(tr("%1 exited with status %2 before it printed the variable")
                                           .arg(shellName)
                                           .arg(process.exitCode()));
        return ReachResult::failed(tr("%1 ended without printing the variable: a start-up file "
                                      "may end it with exec or exit")
                                       .arg(shellName));
    case ReachProcess::End::Running:
    case ReachProcess::End::Cancelled:
        break;
    }
    return ReachResult();
}

// A trace line: marker "@" file \x1f line \x1f command. The line that last
// assigned the variable is its origin; an unset forgets it.
void ShellProbe::traceLine(Run &run, const QByteArray &line) const
{
    const int at = line.indexOf(token + '@');
    if (at < 0)
        return;
    const QByteArray traced = line.mid(at + token.size() + 1);
    const int fileEnd = traced.indexOf('\x1f');
    const int lineEnd = fileEnd < 0 ? -1 : traced.indexOf('\x1f', fileEnd + 1);
    if (lineEnd < 0)
        return;
    const QByteArray command = traced.mid(lineEnd + 1);
    if (!command.contains(assignedName) && (tiedName.isEmpty() || !command.contains(tiedName)))
        return;
    static const QRegularExpression declaration(
        QStringLiteral("^\\s*(export|declare|typeset|readonly|local|integer|float)\\s"));
    static const QRegularExpression assignment(
        QStringLiteral("^\\s*'?[A-Za-z_][A-Za-z0-9_]*(\\+?=|\\[)"));
    const QString text = QString::fromUtf8(command);
    if (declaration.match(text).hasMatch() || assignment.match(text).hasMatch()) {
        if (assigns.match(text).hasMatch()) {
            run.originFile = traced.left(fileEnd);
            run.originLine = traced.mid(fileEnd + 1, lineEnd - fileEnd - 1).toInt();
        }
    } else if (unsets.match(text).hasMatch()) {
        run.originFile.clear();
        run.originLine = 0;
    }
}
