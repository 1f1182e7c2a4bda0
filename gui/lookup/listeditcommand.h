#pragma once

#include <QObject>

class CurrentRowAction;
class EditorWindow;
class QAction;

// "Edit as list...": the current row's value in the list dialog; OK hands
// the joined value to the model's record update as the Edit command does.
class ListEditCommand : public QObject
{
    Q_OBJECT

public:
    explicit ListEditCommand(EditorWindow *window);

    QAction *action() const;

private:
    void run();

    EditorWindow *window;
    CurrentRowAction *editAction;
};
