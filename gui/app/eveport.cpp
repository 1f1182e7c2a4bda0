#include "gui/app/eveport.h"

#include "gui/app/eve.h"

#include "core/save/saveplan.h"
#include "gui/model/evemodel.h"
#include "gui/window/toolsmenu.h"

EvePort::EvePort(Eve *window)
    : QObject(window)
    , eve(window)
{}

QMainWindow *EvePort::window() const
{
    return eve;
}

QTableView *EvePort::table() const
{
    return eve->tableView;
}

EveModel *EvePort::model() const
{
    return eve->model;
}

QMenu *EvePort::toolsMenu() const
{
    return ToolsMenu::of(eve);
}

QToolBar *EvePort::toolBar() const
{
    return eve->toolBar;
}

bool EvePort::isModified() const
{
    return eve->modified;
}

QAction *EvePort::saveAction() const
{
    return eve->actionSave;
}

void EvePort::updateRecord(const QModelIndex &index, const QString &name, const QString &value,
                           const QString &description, const QString &scope, const QString &vip)
{
    eve->updateRecord(index, name, value, description, scope, vip);
}

void EvePort::saveReviewed()
{
    eve->saveChanges(planSave(eve->model->saveInput()));
}

void EvePort::reload(const QString &message, int timeout)
{
    eve->reloadModel(message, timeout);
}

void EvePort::disableRowCommands()
{
    eve->disableModifications();
}
