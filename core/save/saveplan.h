#pragma once

#include "core/files/safefile.h"
#include "core/result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

// What a save will do, worked out from the table and the current bytes of
// the files without touching anything: the settings to store, the new bytes
// of every file it rewrites, and where it meets a file it cannot open. The
// rows are handled in table order and the deletions in removal order, with
// the same fallbacks and final bytes as editing the files one row at a time,
// but each file is read once and edited in memory.
struct SavePlan
{
    struct Settings
    {
        QString name;
        QString description;
        QString vip;
    };
    struct File
    {
        QString path;
        bool existed = false;
        QByteArray before;
        QByteArray after;
        QStringList savedNames;   // changed rows written here, in table order
        QStringList deletedNames; // deleted rows blanked here, in removal order
    };
    struct Deletion
    {
        QString name;
        QString path;
        int file = -1; // into files; -1 when the file cannot be opened
        QString error; // why it cannot be opened
    };
    // A changed row whose own file cannot be opened, saved into the fallback.
    struct Redirect
    {
        QString name;
        QString origin;
        QString path;
        QString error; // why the origin cannot be opened
    };

    QList<Settings> settings; // of every changed row handled, the stopping one too
    QVector<File> files;      // in the order they are first touched
    QList<Deletion> deletions;
    QList<Redirect> redirects;
    // Changed rows whose value no quoting makes one shell word: the save
    // writes nothing at all while there is one.
    struct Refusal
    {
        QString name;
        QString reason;
    };
    QList<Refusal> refusals;

    // A changed row for which neither its file nor the fallback can be
    // opened stops the save: nothing after it, and no deletions, are planned.
    bool stopped = false;
    QString stoppedName;
    QString stoppedPath; // the fallback, the file tried last
    QString stoppedError;

    // The files in the order a save writes them: those of saved rows first,
    // in the order they were first written to, then those that only
    // deletions touch, in the order of the deletions. Files whose bytes stay
    // the same are left out.
    QList<int> writeOrder() const;
};

struct SaveInput
{
    QList<QStringList> rows; // variable records in table order
    QList<QStringList> deletedRows;
    bool rootSession = false;
    QString localFile;
    QString globalFile;
    QString systemOrigin; // the Origin of rows that no file exports
};

using FileReader = std::function<Result<SafeFile::Contents>(const QString &path)>;

SavePlan planSave(const SaveInput &input, const FileReader &read = SafeFile::read);
