#pragma once

#include <QList>
#include <QString>

// A value cut into plain text and references: `$NAME` (the longest run of
// letters, digits and "_" after a "$" and a letter or "_") and `${NAME}`.
// Joined again, the pieces' texts give the value back.
struct VariableReference
{
    QString text; // as written in the value
    QString name; // empty for plain text

    bool isReference() const { return !name.isEmpty(); }

    static QList<VariableReference> split(const QString &value);
    // A name a shell and environment.d both accept.
    static bool isName(const QString &name);
};
