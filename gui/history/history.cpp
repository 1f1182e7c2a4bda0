#include "gui/history/history.h"

#include "gui/history/previewcommand.h"
#include "gui/history/restorecommand.h"
#include "gui/window/editorwindow.h"

#include <QMenu>

void installHistory(EditorWindow *window)
{
    window->toolsMenu()->addSeparator();
    new PreviewCommand(window);
    new RestoreCommand(window);
}
