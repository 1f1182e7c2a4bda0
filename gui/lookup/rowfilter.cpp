#include "gui/lookup/rowfilter.h"

#include "core/lookup/rowmatch.h"
#include "gui/model/evemodel.h"

#include <QHeaderView>
#include <QTableView>

RowFilter::RowFilter(QTableView *view)
    : QObject(view)
    , view(view)
{
    // Connected after the view's own handlers, which show every row again
    // when the model resets or lays out its rows anew, and before the
    // window's, whose re-sort after an edit moves the edited row.
    QAbstractItemModel *model = view->model();
    connect(model, &QAbstractItemModel::layoutChanged, this, &RowFilter::apply);
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        pinned.clear();
        apply();
    });
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                pinRows(first, last);
                apply();
            });
    connect(model, &QAbstractItemModel::rowsRemoved, this, &RowFilter::apply);
    connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &topLeft, const QModelIndex &bottomRight) {
                pinRows(topLeft.row(), bottomRight.row());
            });
    // The window's own commands may select a row that the filter hides.
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &RowFilter::keepCurrentVisible);
    visible = model->rowCount();
}

void RowFilter::setText(const QString &text)
{
    if (text == needle)
        return;
    needle = text;
    pinned.clear();
    apply();
}

void RowFilter::pinRows(int first, int last)
{
    if (needle.isEmpty())
        return;
    const QAbstractItemModel *model = view->model();
    for (int row = first; row <= last; ++row)
        pinned.insert(model->index(row, EveModel::VariableColumn).data().toString());
}

void RowFilter::apply()
{
    const QAbstractItemModel *model = view->model();
    const int rows = model->rowCount();
    QHeaderView *header = view->verticalHeader();
    // Without updates the header skips re-measuring its sections after each
    // change, which would make a pass over many rows quadratic.
    const bool updates = header->updatesEnabled();
    header->setUpdatesEnabled(false);
    visible = 0;
    for (int row = 0; row < rows; ++row) {
        bool show = needle.isEmpty();
        if (!show) {
            const QString name = model->index(row, EveModel::VariableColumn).data().toString();
            show = pinned.contains(name) ||
                   rowMatches(name, model->index(row, EveModel::ValueColumn).data().toString(),
                              model->index(row, EveModel::DescriptionColumn).data().toString(),
                              needle);
        }
        if (header->isSectionHidden(row) == show)
            header->setSectionHidden(row, !show);
        visible += show ? 1 : 0;
    }
    header->setUpdatesEnabled(updates);
    keepCurrentVisible();
    emit applied(visible, rows);
}

void RowFilter::keepCurrentVisible()
{
    QItemSelectionModel *selection = view->selectionModel();
    const QModelIndex current = selection->currentIndex();
    if (!current.isValid() || !view->isRowHidden(current.row()))
        return;
    // Commands act on the current row: never leave it on one the user cannot see.
    const int rows = view->model()->rowCount();
    for (int row = 0; row < rows; ++row) {
        if (!view->isRowHidden(row)) {
            view->selectRow(row);
            return;
        }
    }
    selection->clearSelection();
    selection->clearCurrentIndex();
    emit currentLost();
}
