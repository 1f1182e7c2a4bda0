#pragma once

#include <QObject>

class EditorWindow;
class QAction;

// "Preview changes...": what the next save would write, before it does;
// enabled exactly while Save is.
class PreviewCommand : public QObject
{
    Q_OBJECT

public:
    explicit PreviewCommand(EditorWindow *window);

    QAction *action() const;
    // Shows what the next save would write; its Save button saves.
    void run();

private:
    EditorWindow *window;
    QAction *previewAction;
};
