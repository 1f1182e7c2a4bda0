#include "restorecommand.h"

#include "eve.h"
#include "evemodel.h"
#include "restore.h"
#include "restoredialog.h"
#include "toolsmenu.h"
#include "whereset.h"

#include <QFileInfo>
#include <QMessageBox>

RestoreCommand::RestoreCommand(Eve *window)
    : QObject(window)
    , window(window)
    , restoreAction(new QAction(tr("&Restore..."), window))
{
    restoreAction->setObjectName(QStringLiteral("actionRestore"));
    restoreAction->setStatusTip(tr("Put back an earlier version of a start-up file"));
    restoreAction->setIcon(QIcon::fromTheme(QStringLiteral("document-revert")));
    ToolsMenu::of(window)->addAction(restoreAction);
    connect(restoreAction, &QAction::triggered, this, &RestoreCommand::run);
}

QAction *RestoreCommand::action() const
{
    return restoreAction;
}

void RestoreCommand::run()
{
    const EveModel *model = window->eveModel();
    QStringList files;
    for (const QString &file : model->systemFiles + model->userFiles) {
        if (!files.contains(file) && QFileInfo::exists(file))
            files.append(file);
    }
    RestoreDialog dialog(files, model->homeDir, window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const Backups::Copy copy = dialog.chosenCopy();
    if (copy.path.isEmpty())
        return;

    // The table is loaded again afterwards, as by Reset.
    if (window->isModified() &&
        QMessageBox::warning(window, tr("Restore"),
                             tr("Restoring reloads the table, so your unsaved changes are lost. "
                                "Restore anyway?"),
                             QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return;

    const Restore restore = Restore::copy(copy.path, copy.original);
    if (!restore.restored) {
        QMessageBox::warning(window, tr("Restore"), restore.error, QMessageBox::Ok);
        return;
    }
    const QString file = WhereSet::displayPath(copy.original, model->homeDir);
    window->reloadModel(
        restore.keptCopy.isEmpty()
            ? tr("%1 was restored from its copy of %2.").arg(file, Restore::timeText(copy.time))
            : tr("%1 was restored from its copy of %2; what it held before is kept as a copy.")
                  .arg(file, Restore::timeText(copy.time)),
        5000);
}
