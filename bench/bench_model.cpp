// Sorting 100,000 rows, and constructing the model over 10,000 environment
// variables and 100,000 lines of start-up files.

#include "gui/model/evemodel.h"
#include "support/sandbox.h"

#include <QRandomGenerator>

#include <benchmark/benchmark.h>

namespace {

QString randomName(QRandomGenerator &random)
{
    static const char letters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_";
    QString name;
    const int length = 4 + random.bounded(12);
    for (int i = 0; i < length; ++i)
        name += QLatin1Char(letters[random.bounded(int(sizeof letters) - 1)]);
    return name;
}

void BM_Sort100k(benchmark::State &state)
{
    Sandbox sandbox;
    EveModel model;
    QRandomGenerator random(42);
    for (int i = 0; i < 100000; ++i)
        model.insertRows(model.rowCount(), 1, {randomName(random), randomName(random)});
    // Alternating the column makes every sort start from an unsorted order.
    int round = 0;
    for (auto _ : state) {
        model.sort(round % 2, round % 4 < 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
        ++round;
    }
}
BENCHMARK(BM_Sort100k)->Unit(benchmark::kMillisecond);

void BM_Load10kVariables100kLines(benchmark::State &state)
{
    Sandbox sandbox;
    QRandomGenerator random(7);
    QStringList environment{QStringLiteral("HOME=") + Sandbox::home(),
                            QStringLiteral("LOGNAME=root"), QStringLiteral("SHELL=/bin/bash")};
    QStringList names;
    for (int i = 0; i < 10000; ++i) {
        names << QStringLiteral("VAR_%1_").arg(i) + randomName(random);
        environment << names.last() + QStringLiteral("=/usr/lib/") + randomName(random);
    }
    Sandbox::setEnvironment(environment);

    // Half the lines are exports (of known and unknown names), half other shell text.
    QByteArray system, user;
    for (int i = 0; i < 100000; ++i) {
        QByteArray line;
        if (i % 2 == 0)
            line = "export " + names.at(random.bounded(names.size())).toUtf8() + "=/opt/x:$PATH";
        else if (i % 4 == 1)
            line = "if [ -d \"$HOME/bin\" ] ; then PATH=\"$HOME/bin:$PATH\"; fi";
        else
            line = "# export-free comment line number " + QByteArray::number(i);
        (i < 50000 ? system : user) += line + '\n';
    }
    Sandbox::writeFile(Sandbox::system(QStringLiteral("/etc/profile")), system);
    Sandbox::writeFile(Sandbox::home() + QStringLiteral("/.bashrc"), user);

    for (auto _ : state) {
        EveModel model;
        benchmark::DoNotOptimize(model.rowCount());
    }
}
BENCHMARK(BM_Load10kVariables100kLines)->Unit(benchmark::kMillisecond);

} // namespace
