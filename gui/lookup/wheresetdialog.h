#pragma once

#include "core/lookup/whereset.h"

#include <QDialog>

class QLabel;
class QTreeWidget;

// Read-only answer to "where is this variable set?": every line of the
// start-up files that sets or exports it, the session's value, and one
// sentence on why the two may differ.
class WhereSetDialog : public QDialog
{
    Q_OBJECT

public:
    WhereSetDialog(const QString &name, const std::optional<QString> &session,
                   const QList<WhereSet::Line> &lines, const QString &explanation,
                   const QString &home, QWidget *parent);

    // Makes the line at `path` and `line` (from 1) the current one, or the
    // first line of that file when none has that number.
    void selectLine(const QString &path, int line);

    QLabel *sessionLabel;
    QTreeWidget *lineList;
    QLabel *explanationLabel;

    enum ColumnNumber { FileColumn, LineColumn, TextColumn, NoteColumn };

private:
    QList<WhereSet::Line> shownLines;
};
