#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QVector>

// Line differences between two versions of a file, compared byte for byte.
namespace LineDiff {

// A file's lines, each with its "\n" when it has one, so that a last line
// without a line end differs from the same line with one.
QByteArrayList splitLines(const QByteArray &bytes);

// `oldCount` lines from `oldStart` are replaced by `newCount` lines from
// `newStart` (counted from 0).
struct Change
{
    int oldStart = 0;
    int oldCount = 0;
    int newStart = 0;
    int newCount = 0;
    bool operator==(const Change &other) const
    {
        return oldStart == other.oldStart && oldCount == other.oldCount &&
               newStart == other.newStart && newCount == other.newCount;
    }
};

// The changes that turn `before` into `after`, in file order: as few changed
// lines as possible, unless the two differ in so many places that the
// middle part is given as one change.
QVector<Change> changes(const QByteArrayList &before, const QByteArrayList &after);

// A unified diff ("diff -u") of the two, `context` lines around each change,
// headed by the two labels; empty when they are equal.
QByteArray unified(const QByteArray &before, const QByteArray &after, const QString &beforeLabel,
                   const QString &afterLabel, int context = 3);

} // namespace LineDiff
