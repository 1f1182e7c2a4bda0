#pragma once

#include <QStringList>

class QIODevice;

using ToolRun = int (*)(const QStringList &arguments, QIODevice *out, QIODevice *err);

// The main() of a command-line program: the editor's names (which decide
// its settings and the folder of copies), its translations, and `run` with
// the arguments and unbuffered standard output and error.
int runTool(int argc, char *argv[], ToolRun run);
