#pragma once

#include <QString>

// Finds the lines of a start-up file that set or export one variable, in the
// forms the files a login reads use. Only reads text; nothing is evaluated.
namespace Assignments {

enum class Syntax {
    // sh, bash and csh files: "export NAME=value", "NAME=value" at the start
    // of a command, "export NAME", "setenv NAME value".
    Shell,
    // /etc/environment and environment.d: one "NAME=value" a line.
    Environment,
    // ~/.pam_environment: "NAME=value" or "NAME DEFAULT=value OVERRIDE=value".
    Pam,
};

struct Match
{
    bool found = false;
    bool commented = false; // the assignment is behind a "#"
    bool hasValue = false;  // false for "export NAME", which sets nothing
    QString value;          // quotes and escapes removed, nothing expanded
};

// The last place in the line that sets or exports `name`.
Match match(const QString &line, const QString &name, Syntax syntax);

// `value` with $HOME, ${HOME}, @{HOME} and a leading ~ replaced by `home`.
QString expandHome(const QString &value, const QString &home);

// True when only a shell could tell the value: it still refers to other
// variables or runs a command.
bool needsShell(const QString &value);

} // namespace Assignments
