#include "previewcommand.h"

#include "changepreview.h"
#include "eve.h"
#include "evemodel.h"
#include "previewdialog.h"
#include "toolsmenu.h"

PreviewCommand::PreviewCommand(Eve *window)
    : QObject(window)
    , window(window)
    , previewAction(new QAction(tr("Pre&view changes..."), window))
{
    previewAction->setObjectName(QStringLiteral("actionPreviewChanges"));
    previewAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    previewAction->setStatusTip(tr("Show every line the next save would change in each file"));
    previewAction->setIcon(QIcon::fromTheme(QStringLiteral("document-preview")));
    previewAction->setEnabled(window->actionSave->isEnabled());
    connect(window->actionSave, &QAction::changed, previewAction,
            [this] { previewAction->setEnabled(this->window->actionSave->isEnabled()); });
    ToolsMenu::of(window)->addAction(previewAction);
    connect(previewAction, &QAction::triggered, this, &PreviewCommand::run);
}

QAction *PreviewCommand::action() const
{
    return previewAction;
}

void PreviewCommand::run()
{
    const EveModel *model = window->eveModel();
    const ChangePreview preview =
        ChangePreview::of(model->saveInput(), model->ShellKind, model->homeDir);
    PreviewDialog dialog(preview, model->homeDir, window);
    // The window's own Save, with its messages, once the preview is gone.
    if (dialog.exec() == QDialog::Accepted)
        window->actionSave->trigger();
}
