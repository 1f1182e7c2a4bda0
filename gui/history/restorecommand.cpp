#include "gui/history/restorecommand.h"

#include "core/lookup/whereset.h"
#include "core/save/restore.h"
#include "gui/history/restoredialog.h"
#include "gui/model/evemodel.h"
#include "gui/window/editorwindow.h"
#include "gui/window/toolscommand.h"

#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>

RestoreCommand::RestoreCommand(EditorWindow *window)
    : QObject(window->window())
    , window(window)
    , restoreAction(new QAction(tr("&Restore..."), window->window()))
{
    addToolsCommand(window, restoreAction, QStringLiteral("actionRestore"),
                    tr("Put back an earlier version of a start-up file"),
                    QStringLiteral("document-revert"));
    connect(restoreAction, &QAction::triggered, this, &RestoreCommand::run);
}

QAction *RestoreCommand::action() const
{
    return restoreAction;
}

void RestoreCommand::run()
{
    const EveModel *model = window->model();
    QStringList files;
    for (const QString &file : model->systemFiles + model->userFiles) {
        if (!files.contains(file) && QFileInfo::exists(file))
            files.append(file);
    }
    RestoreDialog dialog(files, model->homeDir, window->window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Backups::Copy copy = dialog.chosenCopy();
    if (copy.path.isEmpty())
        return;

    // The table is loaded again afterwards, as by Reset.
    if (window->isModified() &&
        QMessageBox::warning(window->window(), tr("Restore"),
                             tr("Restoring reloads the table, so your unsaved changes are lost. "
                                "Restore anyway?"),
                             QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return;

    const Result<QString> restored = Restore::copy(copy.path, copy.original);
    if (!restored) {
        QMessageBox::warning(window->window(), tr("Restore"), Restore::sentence(restored.failure()),
                             QMessageBox::Ok);
        return;
    }
    const QString file = WhereSet::displayPath(copy.original, model->homeDir);
    window->reload(
        restored->isEmpty()
            ? tr("%1 was restored from its copy of %2.").arg(file, Restore::timeText(copy.time))
            : tr("%1 was restored from its copy of %2; what it held before is kept as a copy.")
                  .arg(file, Restore::timeText(copy.time)),
        5000);
}
