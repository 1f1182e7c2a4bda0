#pragma once

#include <QCoreApplication>
#include <QStringList>

class QIODevice;

// orv-admin-env-backups: the copies of the start-up files from a shell, for
// people who look after many machines. Plain text out, messages on the error
// stream.
class BackupsTool
{
    Q_DECLARE_TR_FUNCTIONS(BackupsTool)

public:
    enum ExitCode { Success = 0, Unreadable = 1, BadArgument = 2, RestoreFailed = 3 };

    // `arguments` without the program's name.
    static int run(const QStringList &arguments, QIODevice *out, QIODevice *err);
    static QString usage();
};
