#include "core/shell/shelllexer.h"

#include "core/shell/characters.h"

using ShellCharacters::isBlank;
using ShellCharacters::isOperator;

namespace ShellLexer {

namespace {

int skipNested(const QString &line, int pos, QChar open, QChar close)
{
    int depth = 0;
    for (; pos < line.size(); ++pos) {
        if (line.at(pos) == open)
            ++depth;
        else if (line.at(pos) == close && --depth == 0)
            return pos + 1;
    }
    return pos;
}

} // namespace

int skipCommentMarks(const QString &line, bool *commented)
{
    int pos = 0;
    *commented = false;
    while (pos < line.size()) {
        if (isBlank(line.at(pos))) {
            ++pos;
        } else if (line.at(pos) == QLatin1Char('#')) {
            *commented = true;
            ++pos;
        } else {
            break;
        }
    }
    return pos;
}

Word readWord(const QString &line, int pos)
{
    Word word;
    word.start = pos;
    QChar quote;
    while (pos < line.size()) {
        const QChar c = line.at(pos);
        if (quote.isNull() && (isBlank(c) || isOperator(c)))
            break;
        if (c == QLatin1Char('\\') && quote != QLatin1Char('\'') && pos + 1 < line.size()) {
            const QChar next = line.at(pos + 1);
            // Inside double quotes a backslash only escapes these.
            if (quote.isNull() || QStringLiteral("$`\"\\").contains(next))
                word.text += next;
            else
                word.text += c + QString(next);
            pos += 2;
            continue;
        }
        if (c == QLatin1Char('$') && quote != QLatin1Char('\'') && pos + 1 < line.size() &&
            (line.at(pos + 1) == QLatin1Char('(') || line.at(pos + 1) == QLatin1Char('{'))) {
            const QChar open = line.at(pos + 1);
            const int end =
                skipNested(line, pos + 1, open,
                           open == QLatin1Char('(') ? QLatin1Char(')') : QLatin1Char('}'));
            word.text += line.midRef(pos, end - pos);
            pos = end;
            continue;
        }
        if (c == QLatin1Char('`') && quote != QLatin1Char('\'')) {
            const int close = line.indexOf(QLatin1Char('`'), pos + 1);
            const int end = close < 0 ? line.size() : close + 1;
            word.text += line.midRef(pos, end - pos);
            pos = end;
            continue;
        }
        if (quote.isNull() && (c == QLatin1Char('\'') || c == QLatin1Char('"'))) {
            quote = c;
        } else if (c == quote) {
            quote = QChar();
        } else {
            word.text += c;
        }
        ++pos;
    }
    word.end = pos;
    word.raw = line.mid(word.start, pos - word.start);
    return word;
}

QList<Word> words(const QString &line, int pos)
{
    QList<Word> result;
    while (pos < line.size()) {
        const QChar c = line.at(pos);
        if (isBlank(c)) {
            ++pos;
        } else if (c == QLatin1Char('#')) {
            break; // a comment runs to the end of the line
        } else if (isOperator(c)) {
            Word word;
            word.isOperator = true;
            word.start = pos;
            word.end = pos + 1;
            word.raw = word.text = c;
            result.append(word);
            ++pos;
        } else {
            result.append(readWord(line, pos));
            pos = result.last().end;
        }
    }
    return result;
}

int wordEndAt(const QString &line, int pos)
{
    int at = 0;
    while (at < line.size() && at <= pos) {
        const QChar c = line.at(at);
        if (isBlank(c)) {
            ++at;
        } else if (c == QLatin1Char('#')) {
            return -1;
        } else if (isOperator(c)) {
            if (at == pos)
                return at + 1;
            ++at;
        } else {
            const int end = readWord(line, at).end;
            if (pos < end)
                return end;
            at = end;
        }
    }
    return line.size();
}

bool startsWord(const QString &line, int pos)
{
    return pos == 0 || isBlank(line.at(pos - 1)) || isOperator(line.at(pos - 1));
}

} // namespace ShellLexer
