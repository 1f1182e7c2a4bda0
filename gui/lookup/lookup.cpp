#include "gui/lookup/lookup.h"

#include "gui/lookup/filterbar.h"
#include "gui/lookup/listeditcommand.h"
#include "gui/lookup/wheresetcommand.h"
#include "gui/window/editorwindow.h"

#include <QMainWindow>

void installLookup(EditorWindow *window)
{
    new FilterBar(window);
    new ListEditCommand(window);
    new WhereSetCommand(window);
}
