#pragma once

#include <QString>

// One line that sets a variable in some file's syntax, or why the value
// cannot be written there.
struct FormattedLine
{
    QString text;    // without a line end
    QString refusal; // one sentence; empty when the line is good

    bool ok() const { return refusal.isEmpty(); }
};
