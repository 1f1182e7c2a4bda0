#pragma once

#include <QAbstractItemModel>
#include <QStringList>

// Finds variables in the table by name rather than by row number, which the
// sort order decides.

// The row whose Variable column is exactly `name`, or -1.
inline int rowOf(const QAbstractItemModel &model, const QString &name)
{
    const QModelIndexList found =
        model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
    return found.isEmpty() ? -1 : found.first().row();
}

// The text in `column` of the variable called `name`.
inline QString cellOf(const QAbstractItemModel &model, const QString &name, int column)
{
    return model.index(rowOf(model, name), column).data().toString();
}

// The Variable column from top to bottom.
inline QStringList namesOf(const QAbstractItemModel &model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names << model.index(row, 0).data().toString();
    return names;
}

// The seven columns of the variable called `name`.
inline QStringList recordOf(const QAbstractItemModel &model, const QString &name)
{
    QStringList record;
    for (int column = 0; column < model.columnCount(); ++column)
        record << cellOf(model, name, column);
    return record;
}
