#include "history.h"

#include "eve.h"
#include "previewcommand.h"
#include "restorecommand.h"
#include "toolsmenu.h"

void installHistory(Eve *window)
{
    ToolsMenu::of(window)->addSeparator();
    new PreviewCommand(window);
    new RestoreCommand(window);
}
