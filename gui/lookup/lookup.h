#pragma once

class EditorWindow;

// Finding and understanding a variable: the filter field, "Edit as list..."
// and "Where is it set?...". Called once the window's table has its model.
void installLookup(EditorWindow *window);
