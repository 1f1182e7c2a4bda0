#pragma once

#include "core/result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>

// .env files: NAME=VALUE lines as the dotenv tools of most languages read
// and write them.
class DotEnv
{
    Q_DECLARE_TR_FUNCTIONS(DotEnv)

public:
    struct Entry
    {
        QString name;
        QString value;
        int line = 0; // from 1
    };

    // Blank lines and "#" comments are passed over, an "export " before the
    // name allowed; a value in double quotes has its \n, \t, \", \\ and \$
    // escapes undone, one in single quotes is taken as it stands, a bare one
    // ends at " #" and loses its blanks at either end. A line that is none
    // of these is a Failure naming it.
    static Result<QList<Entry>> parse(const QByteArray &bytes, const QString &path);

    // NAME=VALUE, the value bare when it holds only plain characters,
    // otherwise in double quotes with those escapes.
    static QString line(const QString &name, const QString &value);
};
