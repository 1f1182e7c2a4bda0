#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>

// Bringing an earlier copy of a start-up file back, with the safety of a
// save: a copy of what the file holds now is kept first, and the file is
// rewritten in place with every check.
struct Restore
{
    Q_DECLARE_TR_FUNCTIONS(Restore)

public:
    // A whole file read without opening it for writing.
    struct Contents
    {
        bool readable = false;
        bool exists = false;
        QByteArray bytes;
        QString error;
    };
    static Contents read(const QString &path);

    bool restored = false;
    QString error;    // a sentence naming the file and the reason
    QString keptCopy; // the copy of what the file held before, if one was made

    static Restore copy(const QString &copyPath, const QString &original);

    // A copy's time as the user reads it: local, to the second.
    static QString timeText(const QDateTime &time);
};
