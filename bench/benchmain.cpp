// The main() of every benchmark: a sandbox like the tests', so that no
// benchmark touches the real home, settings or /etc, and a QApplication for
// the widgets and settings the code under measure uses.

#include "support/sandbox.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char *argv[])
{
    Sandbox::prepareProcess();
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
