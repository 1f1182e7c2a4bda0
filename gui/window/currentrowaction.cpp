#include "gui/window/currentrowaction.h"

#include <QTableView>

CurrentRowAction::CurrentRowAction(const QString &text, QTableView *view, QObject *parent)
    : QAction(text, parent)
    , view(view)
{
    QAbstractItemModel *model = view->model();
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CurrentRowAction::update);
    // A reset or a removal can take the current row away without a signal
    // of the selection model.
    connect(model, &QAbstractItemModel::modelReset, this, &CurrentRowAction::update);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &CurrentRowAction::update);
    connect(model, &QAbstractItemModel::layoutChanged, this, &CurrentRowAction::update);
    update();
}

int CurrentRowAction::currentRow() const
{
    const QModelIndex current = view->selectionModel()->currentIndex();
    return current.isValid() ? current.row() : -1;
}

QString CurrentRowAction::field(int column) const
{
    return view->model()->index(currentRow(), column).data().toString();
}

void CurrentRowAction::update()
{
    setEnabled(currentRow() >= 0);
}
