#include "gui/reach/reachcommand.h"

#include "core/reach/reachenvironment.h"
#include "gui/model/evemodel.h"
#include "gui/reach/reachdialog.h"
#include "gui/window/currentrowaction.h"
#include "gui/window/editorwindow.h"
#include "gui/window/toolscommand.h"

#include <QMainWindow>

ReachCommand::ReachCommand(EditorWindow *window)
    : QObject(window->window())
    , window(window)
    , reachAction(new CurrentRowAction(tr("R&each..."), window->table(), window->window()))
{
    addToolsCommand(window, reachAction, QStringLiteral("actionReach"),
                    tr("Show which value each kind of program gets for the selected variable"),
                    QStringLiteral("system-run"), QKeySequence(Qt::CTRL | Qt::Key_R));
    connect(reachAction, &QAction::triggered, this, &ReachCommand::run);
}

QAction *ReachCommand::action() const
{
    return reachAction;
}

void ReachCommand::run()
{
    if (reachAction->currentRow() < 0)
        return;
    ReachDialog dialog(window, reachAction->field(EveModel::VariableColumn),
                       reachAction->field(EveModel::ValueColumn), ReachEnvironment::fromProcess(),
                       window->window());
    dialog.exec();
}

void installReach(EditorWindow *window)
{
    new ReachCommand(window);
}
