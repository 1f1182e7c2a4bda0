#pragma once

#include "ui_mainwindow.h"

#include <QMainWindow>

class EveModel;
class QHeaderView;

// The editor's main window: the table of variables with its menus, tool bar
// and status bar, and the user's commands.
class Eve : public QMainWindow, public Ui_MainWindow
{
    Q_OBJECT

public:
    explicit Eve(QWidget *parent = nullptr);
    ~Eve() override;

    EveModel *eveModel() const { return model; }
    bool isModified() const { return modified; }
    // Drops unsaved changes and loads everything again.
    void reloadModel(const QString &message, int timeout);

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

    EveModel *model = nullptr;
    QHeaderView *header = nullptr;
    bool modified = false;
};
