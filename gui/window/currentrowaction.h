#pragma once

#include <QAction>

class QTableView;

// An action about the table's current row: enabled exactly while the view
// has a current row.
class CurrentRowAction : public QAction
{
    Q_OBJECT

public:
    CurrentRowAction(const QString &text, QTableView *view, QObject *parent);

    // The current row's text at a column of the variable record.
    QString field(int column) const;
    int currentRow() const;

private:
    void update();

    QTableView *view;
};
