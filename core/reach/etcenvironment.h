#pragma once

#include "core/reach/reachresult.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

// /etc/environment, which PAM's pam_env gives every login, graphical ones
// included. Read as pam_env reads it: lines joined where one ends in a
// backslash, everything from a "#" on ignored, an "export " before the name
// allowed, a name of letters, digits and "_", one pair of matching quotes
// around the value taken off, nothing expanded.
class EtcEnvironment
{
    Q_DECLARE_TR_FUNCTIONS(EtcEnvironment)

public:
    struct Entry
    {
        QString name;
        QString value;
        int line = 0; // where the entry starts, from 1
    };

    static QList<Entry> parse(const QByteArray &bytes);
    // The value `name` gets from the file at `path` (the caller's sysroot
    // included): the last entry for it, not set when there is none or no
    // file, or a failure naming the file and the reason.
    static ReachResult lookup(const QString &path, const QString &name);
};
