#include "gui/lookup/wheresetcommand.h"

#include "gui/lookup/wheresetdialog.h"
#include "gui/model/evemodel.h"
#include "gui/window/currentrowaction.h"
#include "gui/window/editorwindow.h"
#include "gui/window/toolscommand.h"

#include <QMainWindow>
#include <QMenu>

#include <QProcessEnvironment>

WhereSetCommand::WhereSetCommand(EditorWindow *window)
    : QObject(window->window())
    , window(window)
    , whereAction(
          new CurrentRowAction(tr("&Where is it set?..."), window->table(), window->window()))
{
    addToolsCommand(window, whereAction, QStringLiteral("actionWhereSet"),
                    tr("Show every line of the start-up files that sets the selected variable"),
                    QStringLiteral("edit-find"), QKeySequence(Qt::CTRL | Qt::Key_I));
    connect(whereAction, &QAction::triggered, this, &WhereSetCommand::run);
}

QAction *WhereSetCommand::action() const
{
    return whereAction;
}

namespace {

WhereSetCommand::Answer answerFor(const EveModel *model, const QString &name,
                                  const QString &tableValue)
{
    WhereSetCommand::Answer result;
    // The editor's own environment is the session's: the table may hold edits.
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (environment.contains(name))
        result.session = environment.value(name);
    const QList<WhereSet::File> files = WhereSet::startupFiles(
        model->ShellKind, model->homeDir, model->systemFiles, model->userFiles);
    for (const WhereSet::File &file : files)
        result.lines += WhereSet::scanFile(file, name);
    result.explanation =
        WhereSet::explain(result.lines, name, result.session, tableValue, model->homeDir);
    return result;
}

} // namespace

WhereSetCommand::Answer WhereSetCommand::answer(const QString &name,
                                                const QString &tableValue) const
{
    return answerFor(window->model(), name, tableValue);
}

void WhereSetCommand::show(EditorWindow *window, const QString &name, const QString &tableValue,
                           const QString &path, int line)
{
    const Answer found = answerFor(window->model(), name, tableValue);
    WhereSetDialog dialog(name, found.session, found.lines, found.explanation,
                          window->model()->homeDir, window->window());
    if (!path.isEmpty())
        dialog.selectLine(path, line);
    dialog.exec();
}

void WhereSetCommand::run()
{
    if (whereAction->currentRow() < 0)
        return;
    show(window, whereAction->field(EveModel::VariableColumn),
         whereAction->field(EveModel::ValueColumn));
}
