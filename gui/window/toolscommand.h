#pragma once

#include <QKeySequence>
#include <QString>

class EditorWindow;
class QAction;

// Puts a feature's action into the Tools menu with what every such action
// carries: an object name, a status tip, a theme icon and, when given, a
// shortcut. Returns the action.
QAction *addToolsCommand(EditorWindow *window, QAction *action, const QString &objectName,
                         const QString &statusTip, const QString &iconName,
                         const QKeySequence &shortcut = QKeySequence());
