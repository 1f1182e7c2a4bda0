#include "listeditcommand.h"

#include "currentrowaction.h"
#include "eve.h"
#include "evemodel.h"
#include "pathlistdialog.h"
#include "toolsmenu.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QMessageBox>

namespace {

// The question a cell edit of a critical variable asks, in the model's words.
bool confirmCriticalChange()
{
    return QMessageBox::warning(
               nullptr, QCoreApplication::translate("EveModel", "Request of confirmation"),
               QCoreApplication::translate("EveModel",
                                           "Really change the value of system variable?"),
               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel) == QMessageBox::Yes;
}

} // namespace

ListEditCommand::ListEditCommand(Eve *window)
    : QObject(window)
    , window(window)
    , editAction(new CurrentRowAction(tr("Edit as &list..."), window->tableView, window))
{
    editAction->setObjectName(QStringLiteral("actionEditAsList"));
    editAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    editAction->setStatusTip(tr("Edit a colon-separated value such as PATH one entry per line"));
    editAction->setIcon(QIcon::fromTheme(QStringLiteral("format-list-unordered")));
    ToolsMenu::of(window)->addAction(editAction);
    connect(editAction, &QAction::triggered, this, &ListEditCommand::run);
}

QAction *ListEditCommand::action() const
{
    return editAction;
}

void ListEditCommand::run()
{
    const QModelIndex current = window->tableView->selectionModel()->currentIndex();
    if (!current.isValid())
        return;
    const QString name = editAction->field(EveModel::VariableColumn);
    PathListDialog dialog(name, editAction->field(EveModel::ValueColumn), window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString value = dialog.value();
    if (!editAction->field(EveModel::VipColumn).isEmpty() && !confirmCriticalChange())
        return;

    // From here on exactly what the Edit command does with its dialog's texts.
    EveModel *model = window->eveModel();
    model->setData(current, name, value, editAction->field(EveModel::DescriptionColumn),
                   editAction->field(EveModel::ScopeColumn), editAction->field(EveModel::VipColumn),
                   value, Qt::EditRole);
    window->tableView->selectRow(0);
    const QHeaderView *header = window->tableView->horizontalHeader();
    model->sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
    QMetaObject::invokeMethod(window, "setModifiedFlag", Q_ARG(bool, true));
    if (model->rowCount() > 1)
        QMetaObject::invokeMethod(window, "enableModifications");
}
