// Saving: 1,000 changed variables into one start-up file of 5,000 lines, and
// one changed variable in a 1 MiB file beside `sed -i` making the same
// one-line change. Every save also keeps its copy of the file and syncs.

#include "gui/model/evemodel.h"
#include "startupfiles.h"

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>

extern char **environ;

namespace {

void BM_Save1000ChangedVariablesInto5000Lines(benchmark::State &state)
{
    Sandbox sandbox;
    QStringList names, environment;
    for (int i = 0; i < 1000; ++i) {
        names << QStringLiteral("VARIABLE_%1").arg(i);
        environment << names.last() + QStringLiteral("=/opt/old/value");
    }
    Sandbox::setUserEnvironment(environment);
    Sandbox::writeFile(userStartupFile(), startupFile(names, 5000, 40));
    EveModel model;
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        for (const QString &name : qAsConst(names))
            model.setData(valueIndexOf(model, name), QStringLiteral("/opt/new/%1").arg(round));
        ++round;
        state.ResumeTiming();
        if (!model.save())
            state.SkipWithError("the save failed");
    }
}
BENCHMARK(BM_Save1000ChangedVariablesInto5000Lines)->Unit(benchmark::kMillisecond);

void BM_SaveOneVariableInto1MiB(benchmark::State &state)
{
    Sandbox sandbox;
    Sandbox::setUserEnvironment({QStringLiteral("FOO=/opt/old/value")});
    Sandbox::writeFile(userStartupFile(), oneMebibyteWithFoo());
    EveModel model;
    int round = 0;
    for (auto _ : state) {
        state.PauseTiming();
        model.setData(valueIndexOf(model, QStringLiteral("FOO")), QString::number(round++));
        state.ResumeTiming();
        if (!model.save())
            state.SkipWithError("the save failed");
    }
}
BENCHMARK(BM_SaveOneVariableInto1MiB)->Unit(benchmark::kMillisecond);

// The same one-line change by `sed -i`, started as a process the way a
// user would.
void BM_SedOneVariableInto1MiB(benchmark::State &state)
{
    Sandbox sandbox;
    Sandbox::writeFile(userStartupFile(), oneMebibyteWithFoo());
    const QByteArray file = userStartupFile().toLocal8Bit();
    int round = 0;
    for (auto _ : state) {
        const QByteArray script =
            "s|^export FOO=.*|export FOO=" + QByteArray::number(round++) + "|";
        char *arguments[] = {const_cast<char *>("sed"), const_cast<char *>("-i"),
                             const_cast<char *>(script.constData()),
                             const_cast<char *>(file.constData()), nullptr};
        pid_t child;
        int status = 0;
        if (::posix_spawnp(&child, "sed", nullptr, nullptr, arguments, environ) != 0 ||
            ::waitpid(child, &status, 0) != child || status != 0)
            state.SkipWithError("sed failed");
    }
}
BENCHMARK(BM_SedOneVariableInto1MiB)->Unit(benchmark::kMillisecond);

} // namespace
