#pragma once

#include <QObject>

class EditorWindow;
class QAction;

// "Restore...": puts an earlier copy of a start-up file back, then reloads
// the table as Reset does.
class RestoreCommand : public QObject
{
    Q_OBJECT

public:
    explicit RestoreCommand(EditorWindow *window);

    QAction *action() const;

private:
    void run();

    EditorWindow *window;
    QAction *restoreAction;
};
