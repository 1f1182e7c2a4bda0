#pragma once

#include "core/lookup/whereset.h"

#include <QObject>

class CurrentRowAction;
class EditorWindow;
class QAction;

// "Where is it set?...": the lines of the start-up files that set the
// current row's variable, beside the session's value.
class WhereSetCommand : public QObject
{
    Q_OBJECT

public:
    explicit WhereSetCommand(EditorWindow *window);

    QAction *action() const;

    // What the dialog shows for a variable, gathered from the files now.
    struct Answer
    {
        std::optional<QString> session;
        QList<WhereSet::Line> lines;
        QString explanation;
    };
    Answer answer(const QString &name, const QString &tableValue) const;

    // Shows the dialog for a variable, the line at `path` and `line` (from 1)
    // chosen when given: for other features that point at a line.
    static void show(EditorWindow *window, const QString &name, const QString &tableValue,
                     const QString &path = QString(), int line = 0);

private:
    void run();

    EditorWindow *window;
    CurrentRowAction *whereAction;
};
