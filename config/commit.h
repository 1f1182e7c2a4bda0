#pragma once

#include "saveplan.h"

#include <QString>

// Carries one planned file out on the disk: a copy of what it held goes to
// the backups first, then the checked rewrite in place. Returns the reason of
// a failure, or a null string. `copy`, when given, receives the path of the
// copy kept (empty when none was made).
QString commitFile(const SavePlan::File &file, QString *copy = nullptr);
