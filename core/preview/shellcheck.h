#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

// Whether a start-up file still parses, asked of the shell that reads it
// ("bash -n" or "sh -n": read the commands, run none).
struct ShellCheck
{
    Q_DECLARE_TR_FUNCTIONS(ShellCheck)

public:
    enum Outcome { Parses, Fails, NotChecked };

    Outcome outcome = NotChecked;
    QString shell;
    QString message;       // the shell's complaint, or why it was not checked
    bool failsNow = false; // the file does not parse before the change either

    // The shell that reads a file: "bash" for bash's own files, none for the
    // csh family (which this check does not cover), "sh" for the files every
    // Bourne shell reads, and the user's own shell for the rest.
    static QString shellFor(const QString &path, int shellKind);

    static ShellCheck run(const QString &shell, const QByteArray &script, int timeoutMs = 2000);

    // One sentence for the file: parses, would not parse, or not checked.
    QString sentence() const;
};
