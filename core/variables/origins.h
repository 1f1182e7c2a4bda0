#pragma once

#include "core/result.h"

#include <QList>
#include <QStringList>

// Sets the Origin of every record whose name a file exports to that file's
// path: the last file in the list that exports it wins, and within a file the
// last line. Files that do not exist are passed over; those that exist but
// cannot be read are returned, in list order, and export nothing.
QList<Failure> assignOrigins(QList<QStringList> &records, const QStringList &files);

// The records of the lines of a file's bytes that export a variable, in line
// order: name, value, `path` and four empty columns.
QList<QStringList> exportRecords(const QByteArray &bytes, const QString &path);
