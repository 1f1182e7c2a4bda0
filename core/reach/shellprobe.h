#pragma once

#include "core/reach/reachenvironment.h"
#include "core/reach/reachresult.h"

#include <QObject>
#include <QRegularExpression>

#include <array>
#include <memory>

class ReachProcess;
class SysrootCommand;

// Asks the user's own shell which value one variable has at the start of a
// login shell and of an interactive shell: the shell from `shell` runs once
// per context in the clean environment the caller gives (its HOME, never the
// caller's own), in a session of its own, stdin from /dev/null, and prints
// the exported value through printenv between markers no start-up file can
// print; everything else it prints is ignored. Both contexts run at once;
// each gives up after 3 seconds or 1 MiB of output, killing all it started.
//
// bash and zsh also tell which file and line last assigned the variable:
// they run with xtrace and a PS4 that carries the file and the line, read
// from stderr as it comes. bash ignores a PS4 from the environment when run
// as root, so there bash gives no origin; the other shells never do.
class ShellProbe : public QObject
{
    Q_OBJECT

public:
    enum class Context { Login, Interactive };
    Q_ENUM(Context)

    // How a shell is asked, from the name of its program.
    enum class Kind { Unknown, Bourne, Bash, Zsh, Fish, Csh };
    static Kind kindOf(const QString &shell);

    static constexpr int timeoutMs = 3000;

    explicit ShellProbe(QObject *parent = nullptr);
    // Kills every shell still running, at once.
    ~ShellProbe() override;

    // Starts both contexts for `name`; returns at once. One run per object.
    void start(const ReachEnvironment &environment, const QString &name);
    // Kills the shells at once; no signal follows.
    void cancel();
    bool isRunning() const;
    // Pending until that context has finished.
    ReachResult result(Context context) const;

signals:
    void contextFinished(ShellProbe::Context context);
    void finished(); // both contexts are in

private:
    struct Run;
    void startContext(Context context);
    void finishContext(Context context);
    void report(Context context);
    ReachResult resultOf(const Run &run) const;
    void traceLine(Run &run, const QByteArray &line) const;

    ReachEnvironment environment;
    QString name;
    QString shellName;
    QByteArray token;
    QByteArray assignedName;
    QByteArray tiedName;
    QRegularExpression assigns; // a trace line that assigns the variable
    QRegularExpression unsets;
    Kind kind = Kind::Unknown;
    std::array<std::unique_ptr<Run>, 2> runs;
    std::array<ReachResult, 2> results;
    int reported = 0; // contexts whose signal has gone out
    bool cancelled = false;
};
