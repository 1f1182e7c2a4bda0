// The read grammar without QRegExp: the long comparison with QRegExp (ten
// million random lines, other lines than the test's million), and the cost
// of one line with each.

#include "core/shell/exportmatcher.h"
#include "support/randomlines.h"

#include <QRegExp>
#include <QStringList>
#include <QVector>

#include <benchmark/benchmark.h>

namespace {

QRegExp exportPattern()
{
    return QRegExp(QStringLiteral("\\bexport\\b\\s+\\b(\\w+)=(.+)\\b"), Qt::CaseSensitive,
                   QRegExp::RegExp);
}

void BM_CompareWithQRegExp(benchmark::State &state)
{
    QRegExp pattern = exportPattern();
    LineGrammar::ExportLineMatcher matcher;
    for (auto _ : state) {
        RandomLines lines(1);
        for (int64_t i = 0; i < state.range(0); ++i) {
            const QString line = lines.exportLine();
            const bool expected = pattern.indexIn(line) >= 0;
            const bool same = matcher.match(line) == expected &&
                              (!expected || (matcher.name() == pattern.cap(1) &&
                                             matcher.value() == pattern.cap(2)));
            if (!same) {
                const QString message = QStringLiteral("line %1 differs: %2").arg(i).arg(line);
                state.SkipWithError(qPrintable(message));
                return;
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_CompareWithQRegExp)->Arg(10000000)->Iterations(1)->Unit(benchmark::kSecond);

// Arg 0: the test's random lines; arg 1: lines of a typical start-up file.
QVector<QString> someLines(int64_t kind)
{
    static const QStringList typical{
        QStringLiteral("export PATH=\"$HOME/bin:/usr/local/bin:$PATH\""),
        QStringLiteral("export EDITOR=vim"),
        QStringLiteral("# export LESS=-R"),
        QStringLiteral("if [ -d \"$HOME/.local/bin\" ]; then PATH=\"$HOME/.local/bin:$PATH\"; fi"),
        QStringLiteral("alias ll='ls -alF --color=auto'"),
        QStringLiteral("    export JAVA_HOME=/usr/lib/jvm/default-java # the JDK")};
    RandomLines lines(2);
    QVector<QString> all;
    for (int i = 0; i < 100000; ++i)
        all << (kind == 0 ? lines.exportLine() : typical.at(i % typical.size()));
    return all;
}

void BM_MatchLineWithQRegExp(benchmark::State &state)
{
    const QVector<QString> lines = someLines(state.range(0));
    QRegExp pattern = exportPattern();
    for (auto _ : state) {
        for (const QString &line : lines)
            benchmark::DoNotOptimize(pattern.indexIn(line));
    }
    state.SetItemsProcessed(state.iterations() * lines.size());
}
BENCHMARK(BM_MatchLineWithQRegExp)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_MatchLineWithMatcher(benchmark::State &state)
{
    const QVector<QString> lines = someLines(state.range(0));
    LineGrammar::ExportSpan span;
    for (auto _ : state) {
        for (const QString &line : lines)
            benchmark::DoNotOptimize(LineGrammar::findExport(line, &span));
    }
    state.SetItemsProcessed(state.iterations() * lines.size());
}
BENCHMARK(BM_MatchLineWithMatcher)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
