#pragma once

// A variable record, one row of the table: exactly seven strings, addressed
// by these column numbers.
namespace Record {

enum Column {
    Variable = 0,
    Value = 1,
    Origin = 2, // "System", or the file that exports the variable
    Description = 3,
    Scope = 4,    // "global" selects the system-wide file for root
    Vip = 5,      // non-empty marks a critical variable
    Previous = 6, // non-empty while the row has unsaved changes
    ColumnCount = 7
};

} // namespace Record
