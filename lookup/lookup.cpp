#include "lookup.h"

#include "filterbar.h"

void installLookup(Eve *window)
{
    new FilterBar(window);
}
