#pragma once

#include "core/shell/linegrammar.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

// A start-up file's lines as a save edits them in memory. Each edit gives
// exactly the bytes that writing the file and reading it back after every
// edit would give (line ends become "\n", lines an edit does not change keep
// their bytes, a line break inside a value starts a new line), but the file
// is read once and written once.
class LineDocument
{
public:
    static LineDocument fromBytes(const QByteArray &bytes);
    QByteArray toBytes() const;

    // The lines as the next edit sees them.
    QStringList lines() const;

    // Every "NAME=..." up to the end of a line becomes NAME=value; when no line
    // then holds that assignment (in any letter case), an export line for it
    // goes first.
    void writeAssignment(const QString &name, const QString &quotedValue);
    // "export ... NAME=..." up to the end of a line becomes one space.
    void blankExport(const QString &name);

private:
    struct Line
    {
        QByteArray bytes; // as last written, before the reads that strip a '\r' each
        QString text;     // as an edit sees it: decoded, without any '\r'
        int written = 0;  // the edit that wrote these bytes; 0 for the original file
    };
    // Front lines are kept in reverse order, so a prepend is cheap.
    using LineRef = int; // body index, or -(front index + 1)

    Line &line(LineRef ref) { return ref >= 0 ? body[ref] : front[-ref - 1]; }
    template <typename Visit>
    void forEachLine(Visit visit);
    // Lines that may hold `name` followed by "=", in any letter case; a
    // superset, in no particular order.
    QVector<LineRef> candidates(const QString &name);
    // Visits the lines an edit for the name may change: those the index
    // gives, or all.
    template <typename Visit>
    void forLinesWith(const LineGrammar::LineEdits &lineEdits, const QString &name, Visit visit);
    void buildIndex();
    void indexLine(LineRef ref);
    void setText(LineRef ref, const QString &text);
    void prepend(const QString &text);

    QVector<Line> front;
    QVector<Line> body;
    int edits = 0;
    // The last few characters before each "=", folded to one case, hashed;
    // built once a document gets more than a couple of edits.
    QHash<quint64, QVector<LineRef>> index;
    bool indexed = false;
};
