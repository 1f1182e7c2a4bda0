#pragma once

#include "core/reach/reachenvironment.h"
#include "core/reach/reachresult.h"

#include <QMap>
#include <QObject>

#include <memory>
#include <optional>

class ReachProcess;
class SysrootCommand;

// Asks the systemd user environment generator, which builds the environment
// of the user manager (and so of programs started from the menu) from the
// environment.d folders: it runs with the caller's HOME and XDG_CONFIG_HOME
// in the clean environment, its NAME=VALUE lines are read as the manager
// reads them, and its debug log tells the file that set the variable. Not
// set means no environment.d file sets it; the manager's own variables and
// the session's come on top. Never blocks; 3 seconds and 1 MiB at most.
class GeneratorProbe : public QObject
{
    Q_OBJECT

public:
    static constexpr int timeoutMs = 3000;
    // Where Debian and most others install it.
    static QString defaultPath();
    // The generator's file name in the folder pkg-config names.
    static QString fileName();

    explicit GeneratorProbe(QObject *parent = nullptr);
    // Kills the generator if it still runs.
    ~GeneratorProbe() override;

    // The program to run. Empty (the default): defaultPath(), or where
    // `pkg-config --variable=systemduserenvgeneratordir systemd` says.
    void setGenerator(const QString &path) { generator = path; }

    // Starts the generator for `name`; returns at once. One run per object.
    void start(const ReachEnvironment &environment, const QString &name);
    // Kills it at once; no signal follows.
    void cancel();
    bool isRunning() const;
    ReachResult result() const { return outcome; }
    // Every variable it printed, when it ran.
    QMap<QString, QString> variables() const { return printed; }

    // Its output as the manager reads it: NAME=VALUE lines, a value either
    // bare or in double quotes in which a backslash makes ", \, ` and $
    // plain and stays before anything else. Nothing when a line cannot be
    // read; `badLine` then holds it.
    static std::optional<QMap<QString, QString>> parseOutput(const QByteArray &output,
                                                             QByteArray *badLine = nullptr);

signals:
    void finished();

private:
    void askPkgConfig();
    void run(const QString &program);
    void finishRun();
    void conclude(const ReachResult &result);
    void logLine(const QByteArray &line);

    ReachEnvironment environment;
    QString name;
    QString generator;
    ReachProcess *process = nullptr;
    std::unique_ptr<SysrootCommand> sysroot;
    QString originFile;
    ReachResult outcome;
    QMap<QString, QString> printed;
    bool started = false;
    bool cancelled = false;
};
