#include "gui/history/previewcommand.h"

#include "core/preview/changepreview.h"
#include "gui/history/previewdialog.h"
#include "gui/model/evemodel.h"
#include "gui/window/editorwindow.h"
#include "gui/window/toolscommand.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>

PreviewCommand::PreviewCommand(EditorWindow *window)
    : QObject(window->window())
    , window(window)
    , previewAction(new QAction(tr("Pre&view changes..."), window->window()))
{
    addToolsCommand(window, previewAction, QStringLiteral("actionPreviewChanges"),
                    tr("Show every line the next save would change in each file"),
                    QStringLiteral("document-preview"),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    QAction *save = window->saveAction();
    previewAction->setEnabled(save->isEnabled());
    connect(save, &QAction::changed, previewAction,
            [this, save] { previewAction->setEnabled(save->isEnabled()); });
    connect(previewAction, &QAction::triggered, this, &PreviewCommand::run);
}

QAction *PreviewCommand::action() const
{
    return previewAction;
}

void PreviewCommand::run()
{
    const EveModel *model = window->model();
    const ChangePreview preview =
        ChangePreview::of(model->saveInput(), model->ShellKind, model->homeDir);
    PreviewDialog dialog(preview, model->homeDir, window->window());
    // The window's own Save, with its messages, once the preview is gone.
    if (dialog.exec() == QDialog::Accepted)
        window->saveReviewed();
}
