#include "lookup.h"

#include "filterbar.h"
#include "listeditcommand.h"

void installLookup(Eve *window)
{
    new FilterBar(window);
    new ListEditCommand(window);
}
