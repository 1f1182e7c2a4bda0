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

    QLabel *sessionLabel;
    QTreeWidget *lineList;
    QLabel *explanationLabel;

    enum ColumnNumber { FileColumn, LineColumn, TextColumn, NoteColumn };
};
