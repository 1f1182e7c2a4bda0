#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// An assignment of a saved variable that refers to another variable ($HOME,
// ${PATH}) in the file now, where the save writes a fixed value instead: the
// session's expansion of it, frozen.
struct FrozenReference
{
    int line = 0;      // in the file now, from 1
    QString reference; // as written: "$HOME" or "${HOME}"
    QString written;   // the value the save writes in its place, quotes removed

    bool operator==(const FrozenReference &other) const
    {
        return line == other.line && reference == other.reference && written == other.written;
    }

    static QList<FrozenReference> find(const QByteArray &before, const QByteArray &after,
                                       const QStringList &savedNames);
};
