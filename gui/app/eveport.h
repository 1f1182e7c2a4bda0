#pragma once

#include "gui/window/editorwindow.h"

#include <QObject>

class Eve;

// The main window as its features see it. Lives as a child of the window.
class EvePort : public QObject, public EditorWindow
{
    Q_OBJECT

public:
    explicit EvePort(Eve *window);

    QMainWindow *window() const override;
    QTableView *table() const override;
    EveModel *model() const override;
    QMenu *toolsMenu() const override;
    QToolBar *toolBar() const override;
    bool isModified() const override;
    QAction *saveAction() const override;
    void updateRecord(const QModelIndex &index, const QString &name, const QString &value,
                      const QString &description, const QString &scope,
                      const QString &vip) override;
    void saveReviewed() override;
    void reload(const QString &message, int timeout) override;
    void disableRowCommands() override;

private:
    Eve *eve;
};
