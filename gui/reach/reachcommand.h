#pragma once

#include <QObject>

class CurrentRowAction;
class EditorWindow;
class QAction;

// "Reach...": which value each kind of program gets for the current row's
// variable, and the writes that make the table's value reach them.
class ReachCommand : public QObject
{
    Q_OBJECT

public:
    explicit ReachCommand(EditorWindow *window);

    QAction *action() const;

private:
    void run();

    EditorWindow *window;
    CurrentRowAction *reachAction;
};

// Puts "Reach..." into the window's Tools menu.
void installReach(EditorWindow *window);
