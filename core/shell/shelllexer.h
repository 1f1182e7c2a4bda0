#pragma once

#include <QList>
#include <QString>

// Splits one line of shell text into words the way sh, bash and csh split a
// simple command, without expanding anything.
namespace ShellLexer {

struct Word
{
    int start = 0;           // where it starts in the line
    int end = 0;             // one past its last character
    QString raw;             // as written
    QString text;            // with quotes and escapes removed; $(...), ${...} and `...` as written
    bool isOperator = false; // one of ; & | ( ) < >
};

// Skips blanks, then any "#" that comments the line out, and tells whether
// one did.
int skipCommentMarks(const QString &line, bool *commented);

// The word that starts at `pos`.
Word readWord(const QString &line, int pos);

// The words from `pos` on, up to a comment.
QList<Word> words(const QString &line, int pos = 0);

// Where the word that holds `pos` ends, or -1 when `pos` is inside a comment.
int wordEndAt(const QString &line, int pos);

// Whether a word holding an assignment could start at `pos`: at the start of
// the line or after a blank or an operator.
bool startsWord(const QString &line, int pos);

} // namespace ShellLexer
