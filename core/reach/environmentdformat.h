#pragma once

#include "core/reach/formattedline.h"

#include <QCoreApplication>
#include <QStringList>

// A line of an environment.d file (NAME=VALUE), read by the systemd user
// environment generator.
//
// Which `$` are references is the caller's choice: a `$NAME` or `${NAME}`
// whose NAME is in `references` is kept, and the generator puts that
// variable's value there (so "$HOME/bin:$PATH" with HOME and PATH keeps
// both); every other `$` is written `$$`, which the generator reads as one
// plain `$` (so "a$b" stays a$b). A backslash does not protect a `$`: the
// generator drops it while reading the line, before it expands anything.
// Values with leading or trailing blanks, a backslash or a leading quote go
// in double quotes. Refused: line breaks and other control characters (the
// generator passes them on as escape sequences), and the empty value, which
// it ignores as bad syntax.
class EnvironmentDFormat
{
    Q_DECLARE_TR_FUNCTIONS(EnvironmentDFormat)

public:
    static FormattedLine line(const QString &name, const QString &value,
                              const QStringList &references = {});
    // Every `$NAME` and `${NAME}` of a value, for a caller that means all of them.
    static QStringList referencesIn(const QString &value);
};
