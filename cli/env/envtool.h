#pragma once

#include <QCoreApplication>
#include <QStringList>

class QIODevice;

// orv-admin-env-cli: the editor's variables from a shell, with the same
// files, rules and safe saves as its window, and the change handed to
// Ansible for other machines. Plain text out, messages on the error stream.
class EnvTool
{
    Q_DECLARE_TR_FUNCTIONS(EnvTool)

public:
    enum ExitCode { Success = 0, FileError = 1, BadArgument = 2 };

    // `arguments` without the program's name.
    static int run(const QStringList &arguments, QIODevice *out, QIODevice *err);
    static QString usage();
};
