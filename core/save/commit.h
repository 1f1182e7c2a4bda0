#pragma once

#include "core/result.h"
#include "core/save/saveplan.h"

#include <QString>

// What carrying one planned file out left behind.
struct CommittedFile
{
    QString copy;        // the copy kept of what the file held, or empty
    QString copyFailure; // why no copy could be kept of a file that existed, or empty
};

// Carries one planned file out on the disk: a copy of what it held goes to
// the backups first, then the checked rewrite in place. A file whose bytes
// stay the same is left alone. Without a copy the rewrite still goes on.
Result<CommittedFile> commitFile(const SavePlan::File &file);
