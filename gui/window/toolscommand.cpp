#include "gui/window/toolscommand.h"

#include "gui/window/editorwindow.h"

#include <QAction>
#include <QIcon>
#include <QMenu>

QAction *addToolsCommand(EditorWindow *window, QAction *action, const QString &objectName,
                         const QString &statusTip, const QString &iconName,
                         const QKeySequence &shortcut)
{
    action->setObjectName(objectName);
    action->setStatusTip(statusTip);
    action->setIcon(QIcon::fromTheme(iconName));
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    window->toolsMenu()->addAction(action);
    return action;
}
