// Filtering a window of 10,000 variables, and telling where a variable is
// set from start-up files of 50,000 lines.

#include "core/lookup/whereset.h"
#include "gui/app/eve.h"
#include "gui/lookup/filterbar.h"
#include "gui/lookup/rowfilter.h"
#include "gui/model/evemodel.h"
#include "support/sandbox.h"

#include <QApplication>
#include <QLineEdit>

#include <benchmark/benchmark.h>

namespace {

// Each round types a different text, so that every round hides and shows
// thousands of rows; the events the view posts are handled in the round.
void BM_Filter10kRows(benchmark::State &state)
{
    Sandbox sandbox;
    QStringList environment{QStringLiteral("HOME=") + Sandbox::home(),
                            QStringLiteral("LOGNAME=tester"), QStringLiteral("SHELL=/bin/bash")};
    for (int i = 0; i < 10000; ++i)
        environment << QStringLiteral("VAR_%1=/usr/lib/part%2:/opt/x").arg(i).arg(i % 7);
    Sandbox::setEnvironment(environment);
    Eve window;
    window.show();
    QApplication::processEvents();
    RowFilter *filter = window.findChild<FilterBar *>()->rowFilter();

    const QStringList texts{QStringLiteral("part3"), QStringLiteral("VAR_1"),
                            QStringLiteral("var_"), QStringLiteral("nothing at all"), QString()};
    int round = 0;
    for (auto _ : state) {
        filter->setText(texts.at(round++ % texts.size()));
        QApplication::processEvents();
        benchmark::DoNotOptimize(filter->visibleCount());
    }
}
BENCHMARK(BM_Filter10kRows)->Unit(benchmark::kMillisecond);

QByteArray startupFile(int lines, int everyNth)
{
    QByteArray text;
    for (int i = 0; i < lines; ++i) {
        if (i % everyNth == 0)
            text += "export PAGER=\"less -R\" # line " + QByteArray::number(i) + '\n';
        else if (i % 3 == 0)
            text += "if [ -d \"$HOME/bin\" ] ; then PATH=\"$HOME/bin:$PATH\"; fi\n";
        else
            text += "# an ordinary comment line that mentions no variable, number " +
                    QByteArray::number(i) + '\n';
    }
    return text;
}

// The whole answer for PAGER: the list of files, reading and matching each,
// and the sentence. Returns the number of lines found.
int answerForPager()
{
    QList<WhereSet::Line> lines;
    const QList<WhereSet::File> files =
        WhereSet::startupFiles(EveModel::Bash, Sandbox::home(), {}, {});
    for (const WhereSet::File &startup : files)
        lines += WhereSet::scanFile(startup, QStringLiteral("PAGER"));
    benchmark::DoNotOptimize(WhereSet::explain(lines, QStringLiteral("PAGER"),
                                               QStringLiteral("less"), QStringLiteral("less"),
                                               Sandbox::home()));
    return lines.size();
}

// Argument: one line in how many sets the variable.
void BM_WhereSet50kLines(benchmark::State &state)
{
    Sandbox sandbox;
    const QByteArray file = startupFile(50000, int(state.range(0)));
    Sandbox::writeFile(Sandbox::system(QStringLiteral("/etc/profile")), file);
    Sandbox::writeFile(Sandbox::home() + QStringLiteral("/.bashrc"), file);
    for (auto _ : state)
        answerForPager();
    state.counters["files"] = 2;
}
BENCHMARK(BM_WhereSet50kLines)->Arg(1000)->Arg(10)->Arg(1)->Unit(benchmark::kMillisecond);

// The worst case: one start-up file of 50,000 lines, every one of which sets
// the variable (goal: under 50 ms for the whole answer).
void BM_WhereSetWorstCase50kLines(benchmark::State &state)
{
    Sandbox sandbox;
    Sandbox::writeFile(Sandbox::home() + QStringLiteral("/.bashrc"), startupFile(50000, 1));
    for (auto _ : state)
        state.counters["lines found"] = answerForPager();
}
BENCHMARK(BM_WhereSetWorstCase50kLines)->Unit(benchmark::kMillisecond);

} // namespace
