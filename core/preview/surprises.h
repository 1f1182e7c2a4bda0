#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QStringList>

// What a save does to a file beyond setting the variables it writes: the
// save rewrites every "NAME=" to the end of its line and blanks every
// "export ... NAME=", whatever else the line holds.
struct Surprises
{
    Q_DECLARE_TR_FUNCTIONS(Surprises)

public:
    struct LostText
    {
        int line = 0; // counted from 1, in the file now
        QString name;
        QString text;
        bool operator==(const LostText &other) const
        {
            return line == other.line && name == other.name && text == other.text;
        }
    };

    QStringList otherNames;    // variables not saved whose lines change, in file order
    QList<int> commentedLines; // commented-out lines that change, counted from 1
    QList<LostText> lostTexts; // what followed a saved assignment on its line
    QStringList homelessNames; // saved names that no uncommented line sets afterwards

    bool isEmpty() const;

    static Surprises find(const QByteArray &before, const QByteArray &after,
                          const QStringList &savedNames, const QStringList &deletedNames);

    // The findings in plain words, one sentence each.
    QStringList sentences() const;
};
