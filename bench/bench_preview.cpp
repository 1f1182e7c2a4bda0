// The preview of a save: 1,000 changed variables in one start-up file of
// 5,000 lines, and one changed variable in a 1 MiB file, each with and without
// asking the shell whether the file still parses; and the diff of two
// versions that differ in every line.

#include "core/preview/changepreview.h"
#include "core/preview/linediff.h"
#include "gui/model/evemodel.h"
#include "startupfiles.h"

#include <benchmark/benchmark.h>

namespace {

void previewOf(benchmark::State &state, const QStringList &names, int lines)
{
    Sandbox sandbox;
    QStringList environment;
    for (const QString &name : names)
        environment << name + QStringLiteral("=/opt/old/value");
    Sandbox::setUserEnvironment(environment);
    Sandbox::writeFile(userStartupFile(), startupFile(names, lines));
    EveModel model;
    for (const QString &name : names)
        model.setData(valueIndexOf(model, name), QStringLiteral("/opt/new/value"));
    const bool checkSyntax = state.range(0) != 0;
    for (auto _ : state) {
        const ChangePreview preview =
            ChangePreview::of(model.saveInput(), model.ShellKind, model.homeDir, checkSyntax);
        if (preview.files.size() != 1)
            state.SkipWithError("the preview shows no file");
        benchmark::DoNotOptimize(preview);
    }
}

void BM_Preview1000ChangedVariablesIn5000Lines(benchmark::State &state)
{
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names << QStringLiteral("VARIABLE_%1").arg(i);
    previewOf(state, names, 5000);
}
BENCHMARK(BM_Preview1000ChangedVariablesIn5000Lines)
    ->ArgName("bash")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);

void BM_PreviewOneVariableIn1MiB(benchmark::State &state)
{
    previewOf(state, {QStringLiteral("FOO")}, 1 << 14);
}
BENCHMARK(BM_PreviewOneVariableIn1MiB)
    ->ArgName("bash")
    ->Arg(0)
    ->Arg(1)
    ->Unit(benchmark::kMillisecond);

void BM_DiffOfFilesThatDifferInEveryLine(benchmark::State &state)
{
    QByteArray before;
    QByteArray after;
    for (int i = 0; i < state.range(0); ++i) {
        before += "export OLD_" + QByteArray::number(i) + "=1\n";
        after += "export NEW_" + QByteArray::number(i) + "=1\n";
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(LineDiff::unified(before, after, QString(), QString()));
}
BENCHMARK(BM_DiffOfFilesThatDifferInEveryLine)
    ->ArgName("lines")
    ->Arg(400)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);

} // namespace
