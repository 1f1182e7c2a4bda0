#include "gui/lookup/listeditcommand.h"

#include "gui/lookup/pathlistdialog.h"
#include "gui/model/criticalchange.h"
#include "gui/model/evemodel.h"
#include "gui/window/currentrowaction.h"
#include "gui/window/editorwindow.h"
#include "gui/window/toolscommand.h"

#include <QMainWindow>
#include <QMenu>
#include <QTableView>

ListEditCommand::ListEditCommand(EditorWindow *window)
    : QObject(window->window())
    , window(window)
    , editAction(new CurrentRowAction(tr("Edit as &list..."), window->table(), window->window()))
{
    addToolsCommand(window, editAction, QStringLiteral("actionEditAsList"),
                    tr("Edit a colon-separated value such as PATH one entry per line"),
                    QStringLiteral("format-list-unordered"), QKeySequence(Qt::CTRL | Qt::Key_L));
    connect(editAction, &QAction::triggered, this, &ListEditCommand::run);
}

QAction *ListEditCommand::action() const
{
    return editAction;
}

void ListEditCommand::run()
{
    const QModelIndex current = window->table()->selectionModel()->currentIndex();
    if (!current.isValid())
        return;
    const QString name = editAction->field(EveModel::VariableColumn);
    PathListDialog dialog(name, editAction->field(EveModel::ValueColumn), window->window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString value = dialog.value();
    if (!editAction->field(EveModel::VipColumn).isEmpty() && !confirmCriticalChange())
        return;

    // From here on exactly what the Edit command does with its dialog's texts.
    window->updateRecord(current, name, value, editAction->field(EveModel::DescriptionColumn),
                         editAction->field(EveModel::ScopeColumn),
                         editAction->field(EveModel::VipColumn));
}
