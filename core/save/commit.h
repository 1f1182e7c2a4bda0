#pragma once

#include "core/result.h"
#include "core/save/saveplan.h"

#include <QString>

// Carries one planned file out on the disk: a copy of what it held goes to
// the backups first, then the checked rewrite in place. Returns the path of
// the copy kept (empty when none was made, or the bytes stay the same).
Result<QString> commitFile(const SavePlan::File &file);
