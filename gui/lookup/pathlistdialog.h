#pragma once

#include <QDialog>

#include <functional>

class QDialogButtonBox;
class QListWidget;
class QPushButton;

// Shows a colon-separated value one entry per line, marks the entries that
// are no existing folders and the repeated ones, and lets the user add,
// remove, reorder and de-duplicate them. It only edits its copy: the caller
// reads value() on OK.
class PathListDialog : public QDialog
{
    Q_OBJECT

public:
    // Asks for a folder to add, starting in the given one; empty when cancelled.
    using FolderChooser = std::function<QString(QWidget *parent, const QString &start)>;

    PathListDialog(const QString &name, const QString &value, QWidget *parent);

    QStringList entries() const;
    QString value() const;
    void setFolderChooser(const FolderChooser &chooser) { folderChooser = chooser; }
    // The default chooser: a folder dialog that shows hidden folders too.
    static QString chooseFolder(QWidget *parent, const QString &start);

    QListWidget *list;
    QPushButton *addButton;
    QPushButton *removeButton;
    QPushButton *upButton;
    QPushButton *downButton;
    QPushButton *duplicatesButton;
    QDialogButtonBox *buttons;

private:
    void addFolder();
    void removeCurrent();
    void move(int step);
    void removeDuplicates();
    void setEntries(const QStringList &entries, int current);
    void entryEdited();
    void refresh();

    const QString original;
    FolderChooser folderChooser = &PathListDialog::chooseFolder;
};
