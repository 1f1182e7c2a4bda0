#pragma once

#include <QString>

class EveModel;
class QAction;
class QMainWindow;
class QMenu;
class QModelIndex;
class QTableView;
class QToolBar;

// What the window's features may use of it: the table and its model, the
// window's own Edit, Save and reload, and a place for their actions. A
// feature gets this at its construction and never reaches into the window's
// form or slots.
class EditorWindow
{
public:
    virtual ~EditorWindow() = default;

    // The window itself: the parent of a feature's dialogs, widgets and actions.
    virtual QMainWindow *window() const = 0;
    virtual QTableView *table() const = 0;
    virtual EveModel *model() const = 0;
    // The "&Tools" menu, before Help, and the window's tool bar.
    virtual QMenu *toolsMenu() const = 0;
    virtual QToolBar *toolBar() const = 0;

    // Whether there are unsaved changes, and the action that saves them.
    virtual bool isModified() const = 0;
    virtual QAction *saveAction() const = 0;

    // What the Edit command does with its dialog's texts: the whole-record
    // update of the row at `index`, then the window's own steps after it.
    virtual void updateRecord(const QModelIndex &index, const QString &name, const QString &value,
                              const QString &description, const QString &scope,
                              const QString &vip) = 0;
    // The Save command without its question about variables the user did not
    // edit, for a save whose every change the user has seen.
    virtual void saveReviewed() = 0;
    // Drops unsaved changes and loads everything again, as Reset does after
    // its question, with `message` in the status bar.
    virtual void reload(const QString &message, int timeout) = 0;
    // Delete and Edit have no row to act on.
    virtual void disableRowCommands() = 0;
};
