#include "gui/window/toolsmenu.h"

#include "platform/orvintegration.h"

#include <QMainWindow>
#include <QMenuBar>

ToolsMenu::ToolsMenu(QWidget *parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("menuTools"));
    setTitle(tr("&Tools"));
}

ToolsMenu *ToolsMenu::of(QMainWindow *window)
{
    if (auto *existing = window->findChild<ToolsMenu *>(QString(), Qt::FindDirectChildrenOnly))
        return existing;
    auto *menu = new ToolsMenu(window);
    QMenuBar *bar = window->menuBar();
    // Before Help, which desktop conventions keep last.
    auto *help = window->findChild<OrvHelpMenu *>();
    if (help && bar->actions().contains(help->menuAction()))
        bar->insertMenu(help->menuAction(), menu);
    else
        bar->addMenu(menu);
    return menu;
}
