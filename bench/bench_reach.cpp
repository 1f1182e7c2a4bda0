// The rows of the reach dialog on a plain home: bash as a login and an
// interactive shell, zsh, fish (both contexts each) and the systemd
// environment generator, all at once. Goal: 300 ms in total (median of 21).
// Side by side, the same programs started bare from QProcess in the same
// mount namespace (so that neither touches the real /etc), with no
// session, markers, trace or time-out: what the shells themselves cost.

#include "core/reach/generatorprobe.h"
#include "core/reach/shellprobe.h"
#include "core/reach/sysrootcommand.h"
#include "support/sandbox.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

ReachEnvironment plainLogin(const QString &shell)
{
    ReachEnvironment environment;
    environment.home = Sandbox::home();
    environment.user = QStringLiteral("tester");
    environment.shell = QStandardPaths::findExecutable(shell, {QStringLiteral("/usr/bin")});
    environment.path = QStringLiteral("/usr/bin:/bin");
    environment.sysroot = Sandbox::sysroot();
    return environment;
}

const QStringList shells{QStringLiteral("bash"), QStringLiteral("zsh"), QStringLiteral("fish")};

void BM_ReachRows(benchmark::State &state)
{
    Sandbox sandbox;
    for (auto _ : state) {
        QEventLoop loop;
        int waiting = shells.size() + 1;
        const auto oneDone = [&] {
            if (--waiting == 0)
                loop.quit();
        };
        std::vector<std::unique_ptr<ShellProbe>> probes;
        for (const QString &shell : shells) {
            probes.push_back(std::make_unique<ShellProbe>());
            QObject::connect(probes.back().get(), &ShellProbe::finished, oneDone);
            probes.back()->start(plainLogin(shell), QStringLiteral("EDITOR"));
        }
        GeneratorProbe generator;
        QObject::connect(&generator, &GeneratorProbe::finished, oneDone);
        generator.start(plainLogin(QStringLiteral("bash")), QStringLiteral("EDITOR"));
        loop.exec();
        for (const auto &probe : probes) {
            if (probe->result(ShellProbe::Context::Login).state == ReachResult::State::Failed)
                state.SkipWithError(qPrintable(probe->result(ShellProbe::Context::Login).failure));
        }
    }
    state.counters["goal_ms"] = 300;
}
BENCHMARK(BM_ReachRows)
    ->Iterations(1)
    ->Repetitions(21)
    ->ReportAggregatesOnly(true)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void BM_BareProgramsBaseline(benchmark::State &state)
{
    Sandbox sandbox;
    const ReachEnvironment environment = plainLogin(QStringLiteral("bash"));
    QList<QStringList> commands;
    for (const QString &shell : shells) {
        const QString program = plainLogin(shell).shell;
        for (const QString &context : {QStringLiteral("-l"), QStringLiteral("-i")})
            commands << QStringList{program, context, QStringLiteral("-c"),
                                    QStringLiteral("printenv EDITOR")};
    }
    const SysrootCommand shellRoot(environment, SysrootCommand::shellFolders(), QString());
    const SysrootCommand generatorRoot(environment, SysrootCommand::generatorFolders(), QString());
    for (QStringList &command : commands)
        command = shellRoot.wrap(command);
    commands << generatorRoot.wrap({GeneratorProbe::defaultPath()});
    for (auto _ : state) {
        QEventLoop loop;
        int waiting = commands.size();
        std::vector<std::unique_ptr<QProcess>> processes;
        for (const QStringList &command : commands) {
            processes.push_back(std::make_unique<QProcess>());
            QProcess &process = *processes.back();
            process.setProcessEnvironment(environment.cleanEnvironment());
            process.setStandardInputFile(QProcess::nullDevice());
            process.setWorkingDirectory(environment.home);
            QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished),
                             [&] {
                                 if (--waiting == 0)
                                     loop.quit();
                             });
            process.start(command.front(), command.mid(1));
        }
        loop.exec();
    }
    state.counters["goal_ms"] = 300;
}
BENCHMARK(BM_BareProgramsBaseline)
    ->Iterations(1)
    ->Repetitions(21)
    ->ReportAggregatesOnly(true)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
