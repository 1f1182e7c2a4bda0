#pragma once

#include <QStringList>
#include <QVector>

// A colon-separated value such as PATH as a list of entries. Empty entries
// are kept where they are: in a search path they stand for the current folder.
namespace PathList {

// "" gives no entries; otherwise one entry per colon-separated part.
QStringList split(const QString &value);
QString join(const QStringList &entries);

// For each entry, the position of the first earlier entry naming the same
// folder ("/usr/bin" and "/usr/bin/" do), or -1 when it is the first.
QVector<int> earlierDuplicates(const QStringList &entries);

// The entries without the later copies; a search uses the first anyway.
QStringList withoutDuplicates(const QStringList &entries);

} // namespace PathList
