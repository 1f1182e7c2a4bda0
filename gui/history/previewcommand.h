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

private:
    void run();

    EditorWindow *window;
    QAction *previewAction;
};
