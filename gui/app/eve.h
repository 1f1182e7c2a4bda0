#pragma once

#include "ui_mainwindow.h"

#include <QMainWindow>

class EveModel;
struct SavePlan;
class QHeaderView;

// The editor's main window: the table of variables with its menus, tool bar
// and status bar, and the user's commands.
class Eve : public QMainWindow, public Ui_MainWindow
{
    Q_OBJECT

public:
    explicit Eve(QWidget *parent = nullptr);
    ~Eve() override;

private slots:
    void checkModelIndex(const QModelIndex &index);
    void setModifiedFlagTrue(const QModelIndex &, const QModelIndex &);
    void setModifiedFlag(bool b = true);
    void disableModifications();
    void enableModifications();
    void insertRow();
    void removeRow();
    bool eventFilter(QObject *object, QEvent *event) override;
    void help();
    void rowsInsertedInModel(const QModelIndex &parent, int start, int end);
    void showPreferencesDialog();
    void save();
    void reset();
    void showEditDialog();
    void showNewDialog();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void initDesktopUi();
    void readSettings();
    void writeSettings();
    bool maybeSave();
    bool confirmReset();
    bool confirmDelete();
    void resort();
    // The Edit command's steps once its dialog is accepted.
    void updateRecord(const QModelIndex &index, const QString &name, const QString &value,
                      const QString &description, const QString &scope, const QString &vip);
    // Drops unsaved changes and loads everything again.
    void reloadModel(const QString &message, int timeout);
    // Save asks first when the save would change variables the user did not
    // edit; the rest of the Save command follows.
    bool confirmSideEffects(const SavePlan &plan);
    void saveChanges(const SavePlan &plan);

    // The window as its features see it.
    friend class EvePort;

    EveModel *model = nullptr;
    QHeaderView *header = nullptr;
    bool modified = false;
};
