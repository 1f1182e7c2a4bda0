#pragma once

#include "core/reach/reachenvironment.h"
#include "core/result.h"
#include "core/save/commit.h"
#include "core/save/saveplan.h"

#include <QCoreApplication>
#include <QString>

// A change that makes a variable reach one kind of program, worked out
// before anything is written: the file, the line it writes and the file's
// bytes before and after. It is written as a save writes: a copy of what the
// file held kept in the backups folder first, then the checked rewrite in
// place, so Restore... and orv-admin-env-backups take it back.
class ReachWrite
{
    Q_DECLARE_TR_FUNCTIONS(ReachWrite)

public:
    enum class Target {
        GraphicalPrograms, // NAME=VALUE in ~/.config/environment.d/60-orv-admin-env.conf
        Zsh,               // export NAME=VALUE in ~/.zshenv, as a save writes it
        Fish,              // set -gx NAME VALUE in ~/.config/fish/conf.d/orv-admin-env.fish
    };

    Target target = Target::GraphicalPrograms;
    QString line;        // the line that sets the variable
    SavePlan::File file; // where, and the bytes before and after

    // A `$NAME` or `${NAME}` in the value stays a reference, as a save
    // writes it; the value is refused when the file's syntax cannot hold it.
    static Result<ReachWrite> plan(Target target, const ReachEnvironment &environment,
                                   const QString &name, const QString &value);

    // Makes the missing folders (private to the user) and writes the file.
    Result<CommittedFile> commit() const;
};
