#include "lookup.h"

#include "filterbar.h"
#include "listeditcommand.h"
#include "wheresetcommand.h"

void installLookup(Eve *window)
{
    new FilterBar(window);
    new ListEditCommand(window);
    new WhereSetCommand(window);
}
