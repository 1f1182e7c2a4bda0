#include "wheresetcommand.h"

#include "currentrowaction.h"
#include "eve.h"
#include "evemodel.h"
#include "toolsmenu.h"
#include "wheresetdialog.h"

#include <QProcessEnvironment>

WhereSetCommand::WhereSetCommand(Eve *window)
    : QObject(window)
    , window(window)
    , whereAction(new CurrentRowAction(tr("&Where is it set?..."), window->tableView, window))
{
    whereAction->setObjectName(QStringLiteral("actionWhereSet"));
    whereAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    whereAction->setStatusTip(
        tr("Show every line of the start-up files that sets the selected variable"));
    whereAction->setIcon(QIcon::fromTheme(QStringLiteral("edit-find")));
    ToolsMenu::of(window)->addAction(whereAction);
    connect(whereAction, &QAction::triggered, this, &WhereSetCommand::run);
}

QAction *WhereSetCommand::action() const
{
    return whereAction;
}

WhereSetCommand::Answer WhereSetCommand::answer(const QString &name,
                                                const QString &tableValue) const
{
    const EveModel *model = window->eveModel();
    Answer result;
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

void WhereSetCommand::run()
{
    if (whereAction->currentRow() < 0)
        return;
    const QString name = whereAction->field(EveModel::VariableColumn);
    const Answer found = answer(name, whereAction->field(EveModel::ValueColumn));
    WhereSetDialog dialog(name, found.session, found.lines, found.explanation,
                          window->eveModel()->homeDir, window);
    dialog.exec();
}
