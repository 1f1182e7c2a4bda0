#pragma once

class EditorWindow;

// Seeing what a save will do and taking it back: "Preview changes..." and
// "Restore...". Called once the window's table has its model.
void installHistory(EditorWindow *window);
