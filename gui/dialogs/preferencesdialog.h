#pragma once

#include "ui_preferencesdialog.h"

#include <QDialog>

class EveModel;
class QAbstractButton;
class QListWidget;

// Edits the ordered lists of system and user start-up files that the model
// scans, and stores them in the settings.
class preferencesDialog : public QDialog, public Ui_preferencesDialog
{
    Q_OBJECT

public:
    preferencesDialog(QWidget *parent, EveModel *model);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void on_userAddButton_clicked();
    void on_userRemoveButton_clicked();
    void on_userUpButton_clicked();
    void on_userDownButton_clicked();
    void on_userFilesList_currentItemChanged();
    void on_systemAddButton_clicked();
    void on_systemRemoveButton_clicked();
    void on_systemUpButton_clicked();
    void on_systemDownButton_clicked();
    void on_systemFilesList_currentItemChanged();
    void on_buttonBox_clicked(QAbstractButton *button);

private:
    void setModified(bool m);
    void setSystemButtonsEnabled(bool e);
    void setUserButtonsEnabled(bool e);
    void readSettings();
    void writeSettings();

    // Shared by both lists.
    void updateButtons(QListWidget *list, QPushButton *up, QPushButton *down, QPushButton *remove);
    void moveCurrent(QListWidget *list, int step);
    void removeCurrent(QListWidget *list);
    void addFile(QListWidget *list, const QString &startDir);

    EveModel *model = nullptr;
    bool modified = false;
};
