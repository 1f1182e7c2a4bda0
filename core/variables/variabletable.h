#pragma once

#include "core/files/configfiles.h"
#include "core/result.h"
#include "core/save/saveplan.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

// The table of variables as the editor's window builds it, for programs
// without a window: the session's variables with their origins,
// descriptions and critical marks, the chosen start-up files, and changes
// made as the window's commands make them, ready for the same save.
class VariableTable
{
    Q_DECLARE_TR_FUNCTIONS(VariableTable)

public:
    // Loads as the window's model does: the environment, then the files it
    // chooses, then the origins from the files it scans.
    VariableTable();

    const QList<QStringList> &rows() const { return records; }
    // The row of a name, or -1.
    int rowOf(const QString &name) const;
    const ConfigFiles::Session &session() const { return state; }
    QStringList systemFiles() const { return lists.systemFiles; }
    QStringList userFiles() const { return lists.userFiles; }
    // Listed files that exist but could not be read.
    const QList<Failure> &unreadable() const { return unreadableFiles; }

    // A variable the table has changes as Edit changes it (its file stays its
    // origin); a new one is added as Add adds it. `system` asks for the
    // system-wide file, which only a root session writes.
    void set(const QString &name, const QString &value, const QString *description, bool critical,
             bool system);
    // Removes the variable as Delete does; false when the table lacks it.
    bool unset(const QString &name);

    SaveInput saveInput() const;
    // What the table calls a variable that no file exports.
    static QString systemOrigin();

private:
    QList<QStringList> records;
    QList<QStringList> deletedRecords;
    ConfigFiles::Session state;
    QString globalFile;
    QString localFile;
    ConfigFiles::Lists lists;
    QList<Failure> unreadableFiles;
};
