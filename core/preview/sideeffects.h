#pragma once

#include "core/save/saveplan.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

// What a save changes beyond the variables it was asked to write or delete:
// other variables whose value the rewritten lines change (a longer name
// ending in the saved one, an assignment cut off behind it, one blanked
// with a deleted export) and commented-out lines it rewrites.
struct SideEffects
{
    Q_DECLARE_TR_FUNCTIONS(SideEffects)

public:
    struct Variable
    {
        QString path;
        int line = 0; // where the file sets it after the save, from 1; 0 when it no longer does
        QString name;
        QString value;      // after the save, quotes removed
        bool isSet = false; // false: the file no longer sets it
    };
    struct CommentedLine
    {
        QString path;
        int line = 0; // in the file before the save, from 1
    };

    QList<Variable> variables; // in file and line order, each name once per file
    QList<CommentedLine> commentedLines;

    bool isEmpty() const { return variables.isEmpty() && commentedLines.isEmpty(); }

    static SideEffects of(const SavePlan &plan);

    // One sentence for asking before the save: "This save also changes PATH,
    // GOPATH and MANPATH to /opt/th." Paths under `home` are written with "~".
    QString sentence(const QString &home) const;
};
