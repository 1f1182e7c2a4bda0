#pragma once

#include "core/preview/shellcheck.h"
#include "core/preview/surprises.h"
#include "core/save/saveplan.h"

#include <QCoreApplication>

// What the next save will write, file by file, worked out by the save's own
// planning without writing anything.
struct ChangePreview
{
    Q_DECLARE_TR_FUNCTIONS(ChangePreview)

public:
    struct File
    {
        QString path;
        bool created = false;
        QByteArray before;
        QByteArray after; // exactly the bytes the save writes
        Surprises surprises;
        ShellCheck check;
    };

    QList<File> files;   // the files whose bytes change, in the order the save writes them
    QStringList notices; // what the save does elsewhere than expected, or cannot do

    // `checkSyntax` runs the shells; without it every check is "not checked".
    static ChangePreview of(const SaveInput &input, int shellKind, const QString &home,
                            bool checkSyntax = true, const FileReader &read = SafeFile::read);
};
