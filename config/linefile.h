#pragma once

#include <QByteArrayList>
#include <QStringList>

class QFile;

// A start-up file as lines. The decoded text is what the grammar works on;
// the raw bytes let a rewrite keep every line it did not change exactly as
// it was, also in files that are not valid UTF-8.
struct LineFile
{
    QByteArrayList raw; // each line's bytes without its line end
    QStringList text;   // the same lines decoded as UTF-8, carriage returns dropped

    static LineFile fromBytes(const QByteArray &bytes);
    // Every line of `lines` followed by "\n"; a line equal to its original
    // text is written with the original bytes. `lines` may have gained lines
    // at the front.
    QByteArray toBytes(const QStringList &lines) const;
};

// Opens a regular file (or a missing one, which is created) for reading and
// writing. Directories, FIFOs, sockets and devices count as unopenable, so a
// save never blocks on them.
bool openForRewrite(QFile &file);

// Reads the whole open file, lets `edit` change its lines and writes them
// back in place (the file is truncated, so a symlink stays a link).
template <typename Edit>
void rewriteLines(QFile &file, Edit edit);

// Implementation detail of rewriteLines.
void replaceContents(QFile &file, const QByteArray &bytes);
QByteArray readContents(QFile &file);

template <typename Edit>
void rewriteLines(QFile &file, Edit edit)
{
    const LineFile original = LineFile::fromBytes(readContents(file));
    QStringList lines = original.text;
    edit(lines);
    replaceContents(file, original.toBytes(lines));
}
