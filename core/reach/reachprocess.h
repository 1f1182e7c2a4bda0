#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcessEnvironment>
#include <QStringList>

class QProcess;
class QTimer;

// One program a probe runs: in a session of its own (setsid, so no
// controlling terminal, and one id that reaches everything it starts), stdin
// from /dev/null, a time-out and a cap on its output. The caller's event
// loop never waits for it; done() tells when it is over.
class ReachProcess : public QObject
{
    Q_OBJECT

public:
    enum class End {
        Running,
        Finished,      // exited; exitCode() is its status
        Crashed,       // killed by a signal; exitCode() is the signal
        TimedOut,      // killed at the time-out
        TooMuchOutput, // killed when its output passed the cap
        FailedToStart, // startError() says why
        Cancelled,
    };
    Q_ENUM(End)

    static constexpr int defaultTimeoutMs = 3000;
    static constexpr int defaultOutputLimit = 1 << 20;

    explicit ReachProcess(QObject *parent = nullptr);
    // Kills whatever still runs, at once.
    ~ReachProcess() override;

    void setTimeout(int milliseconds) { timeoutMs = milliseconds; }
    int timeout() const { return timeoutMs; }
    // The most stdout may hold, and the longest stderr line passed on whole.
    void setOutputLimit(int bytes) { outputLimit = bytes; }

    // command.first() is the program, started in `directory` (a login starts
    // in HOME). Runs once per object.
    void start(const QStringList &command, const QProcessEnvironment &environment,
               const QString &directory);
    // Kills the session at once; done() does not follow.
    void cancel();

    End end() const { return ending; }
    int exitCode() const { return code; }
    QString startError() const { return startFailure; }
    const QByteArray &output() const { return stdoutBytes; }
    // The last line it wrote to stderr, cut to 200 bytes: why a helper failed.
    QString lastErrorLine() const { return QString::fromUtf8(lastLine); }

signals:
    // stderr, one line at a time without its "\n"; a longer line than the
    // limit comes cut to the limit, once.
    void errorLine(const QByteArray &line);
    void done();

private:
    void readOutput();
    void readErrors(bool atEnd);
    void stopWith(End reason);
    void finish(int exitCode, bool crashed);
    void failToStart(const QString &reason);

    QProcess *process = nullptr;
    QTimer *timer = nullptr;
    qint64 session = 0;
    int timeoutMs = defaultTimeoutMs;
    int outputLimit = defaultOutputLimit;
    End ending = End::Running;
    int code = 0;
    QString startFailure;
    QByteArray stdoutBytes;
    QByteArray partialLine;
    bool skippingLine = false; // the rest of a line already passed on cut
    QByteArray lastLine;
};
