#pragma once

#include "core/result.h"
#include "core/save/saveplan.h"

#include <QList>
#include <QString>

// What carrying out a save plan did, and every place where it failed.
struct SaveReport
{
    struct Problem
    {
        enum Kind {
            SavedWrite,   // a changed row's file could not be written; the save stopped
            SavedOpen,    // neither a changed row's file nor its fallback opens; stopped
            DeletedOpen,  // a deleted row's file cannot be opened; that deletion is skipped
            DeletedWrite, // a deleted row's file could not be written
            Refused,      // a changed row's value cannot be written; nothing was
        };
        Kind kind;
        QString name; // the variable
        Failure failure;
    };

    QList<Problem> problems; // in the order they were met
    // Files written without a copy of what they held, and why.
    QList<Failure> withoutCopies;
    // Every changed row was written and the deletions were gone through: the
    // rows' change marks and the pending deletions can be dropped.
    bool rowsSaved = false;
    bool complete() const { return rowsSaved && problems.isEmpty(); }
};

// Refuses the whole save when the plan refuses a value. Otherwise stores the
// settings of the plan, then writes its files in writeOrder():
// the files of saved rows stop the save at their first failure, the files of
// deletions do not.
SaveReport commitSave(const SavePlan &plan);
