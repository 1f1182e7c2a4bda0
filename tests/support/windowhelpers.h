#pragma once

#include "gui/app/eve.h"
#include "gui/app/eveport.h"
#include "gui/model/evemodel.h"

// The window as its features see it: its model and whether it holds unsaved
// changes, which the window keeps to itself.
inline EditorWindow &portOf(const Eve &window)
{
    return *window.findChild<EvePort *>();
}

inline EveModel *modelOf(const Eve &window)
{
    return portOf(window).model();
}

inline bool isModified(const Eve &window)
{
    return portOf(window).isModified();
}
