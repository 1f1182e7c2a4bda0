#pragma once

#include "core/files/backups.h"

#include <QDialog>

class DiffView;
class QLabel;
class QPushButton;
class QTreeWidget;

// The copies kept of each start-up file, newest first, and what restoring
// the chosen one would change in the file now. Accepted means: restore the
// chosen copy.
class RestoreDialog : public QDialog
{
    Q_OBJECT

public:
    // `startupFiles` are listed even without copies; files with copies are
    // listed whatever they are.
    RestoreDialog(const QStringList &startupFiles, const QString &home, QWidget *parent);

    Backups::Copy chosenCopy() const;

    QLabel *folderLabel;
    QTreeWidget *copyTree;
    QLabel *statusLabel;
    DiffView *diffView;
    QPushButton *restoreButton;

private:
    void showChosen();

    QList<Backups::Copy> copies;
    QString home;
};
