#pragma once

#include <QString>

// Whether a variable matches the filter text: its name, value or description
// contains it, ignoring case. An empty text matches every variable.
bool rowMatches(const QString &name, const QString &value, const QString &description,
                const QString &text);
