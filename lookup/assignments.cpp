#include "assignments.h"

#include <QRegularExpression>
#include <QStringList>

namespace Assignments {

namespace {

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

bool isNameChar(QChar c)
{
    return (c.isLetterOrNumber() && c.unicode() < 128) || c == QLatin1Char('_');
}

bool isOperator(QChar c)
{
    return QStringLiteral(";&|()<>").contains(c);
}

// Skips blanks, then any "#" that comments the line out.
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

// One shell word: `raw` as written, `text` with quotes and escapes removed.
// $(...), ${...} and `...` are kept as written, blanks inside them included.
struct Word
{
    QString raw;
    QString text;
    bool isOperator = false;
};

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

int readWord(const QString &line, int pos, Word *word)
{
    const int start = pos;
    QChar quote;
    while (pos < line.size()) {
        const QChar c = line.at(pos);
        if (quote.isNull() && (isBlank(c) || isOperator(c)))
            break;
        if (c == QLatin1Char('\\') && quote != QLatin1Char('\'') && pos + 1 < line.size()) {
            const QChar next = line.at(pos + 1);
            // Inside double quotes a backslash only escapes these.
            if (quote.isNull() || QStringLiteral("$`\"\\").contains(next))
                word->text += next;
            else
                word->text += c + QString(next);
            pos += 2;
            continue;
        }
        if (c == QLatin1Char('$') && quote != QLatin1Char('\'') && pos + 1 < line.size() &&
            (line.at(pos + 1) == QLatin1Char('(') || line.at(pos + 1) == QLatin1Char('{'))) {
            const QChar open = line.at(pos + 1);
            const int end =
                skipNested(line, pos + 1, open,
                           open == QLatin1Char('(') ? QLatin1Char(')') : QLatin1Char('}'));
            word->text += line.midRef(pos, end - pos);
            pos = end;
            continue;
        }
        if (c == QLatin1Char('`') && quote != QLatin1Char('\'')) {
            const int close = line.indexOf(QLatin1Char('`'), pos + 1);
            const int end = close < 0 ? line.size() : close + 1;
            word->text += line.midRef(pos, end - pos);
            pos = end;
            continue;
        }
        if (quote.isNull() && (c == QLatin1Char('\'') || c == QLatin1Char('"'))) {
            quote = c;
        } else if (c == quote) {
            quote = QChar();
        } else {
            word->text += c;
        }
        ++pos;
    }
    word->raw = line.mid(start, pos - start);
    return pos;
}

QList<Word> shellWords(const QString &line, int pos)
{
    QList<Word> words;
    while (pos < line.size()) {
        const QChar c = line.at(pos);
        if (isBlank(c)) {
            ++pos;
        } else if (c == QLatin1Char('#')) {
            break; // a comment runs to the end of the line
        } else if (isOperator(c)) {
            Word word;
            word.isOperator = true;
            word.raw = word.text = c;
            words.append(word);
            ++pos;
        } else {
            Word word;
            pos = readWord(line, pos, &word);
            words.append(word);
        }
    }
    return words;
}

// "NAME=" written plainly at the start of a word.
bool assigns(const Word &word, const QString &name)
{
    return word.raw.size() > name.size() && word.raw.startsWith(name) &&
           word.raw.at(name.size()) == QLatin1Char('=');
}

bool isAnyAssignment(const Word &word)
{
    const int equals = word.raw.indexOf(QLatin1Char('='));
    if (equals <= 0 || word.raw.at(0).isDigit())
        return false;
    for (int i = 0; i < equals; ++i) {
        if (!isNameChar(word.raw.at(i)))
            return false;
    }
    return true;
}

Match matchShell(const QString &line, const QString &name, int pos, Match match)
{
    enum class Position { Command, Declaration, Setenv, Arguments };
    static const QStringList leading{
        QStringLiteral("if"),    QStringLiteral("then"), QStringLiteral("else"),
        QStringLiteral("elif"),  QStringLiteral("do"),   QStringLiteral("while"),
        QStringLiteral("until"), QStringLiteral("!"),    QStringLiteral("{"),
        QStringLiteral("time"),  QStringLiteral("exec")};
    static const QStringList declarations{QStringLiteral("export"), QStringLiteral("declare"),
                                          QStringLiteral("typeset"), QStringLiteral("readonly")};

    const QList<Word> words = shellWords(line, pos);
    Position position = Position::Command;
    bool exporting = false;
    for (int i = 0; i < words.size(); ++i) {
        const Word &word = words.at(i);
        if (word.isOperator) {
            position = Position::Command;
            continue;
        }
        switch (position) {
        case Position::Command:
            if (assigns(word, name)) {
                match.found = match.hasValue = true;
                match.value = word.text.mid(name.size() + 1);
            } else if (isAnyAssignment(word) || leading.contains(word.raw)) {
                // still before the command word
            } else if (declarations.contains(word.raw)) {
                position = Position::Declaration;
                exporting = word.raw == QLatin1String("export");
            } else if (word.raw == QLatin1String("setenv")) {
                position = Position::Setenv;
            } else {
                position = Position::Arguments;
            }
            break;
        case Position::Declaration:
            if (assigns(word, name)) {
                match.found = match.hasValue = true;
                match.value = word.text.mid(name.size() + 1);
            } else if (word.raw == name && exporting) {
                // Exports what an earlier assignment of the line may have set.
                match.found = true;
            } else if (word.raw == QLatin1String("-x")) {
                exporting = true;
            }
            break;
        case Position::Setenv:
            if (word.raw == name) {
                match.found = match.hasValue = true;
                const bool hasNext = i + 1 < words.size() && !words.at(i + 1).isOperator;
                match.value = hasNext ? words.at(i + 1).text : QString();
            }
            position = Position::Arguments;
            break;
        case Position::Arguments:
            break;
        }
    }
    return match;
}

// A value as /etc/environment and environment.d write it: the rest of the
// line, without the quotes around it.
QString environmentValue(const QString &rest)
{
    const QString value = rest.trimmed();
    if (value.size() >= 2 &&
        (value.startsWith(QLatin1Char('"')) || value.startsWith(QLatin1Char('\'')))) {
        Word word;
        readWord(value, 0, &word);
        return word.text;
    }
    return value;
}

Match matchEnvironment(const QString &line, const QString &name, int pos, Match match,
                       bool pamForms)
{
    QString body = line.mid(pos);
    if (body.startsWith(QLatin1String("export")) && body.size() > 6 && isBlank(body.at(6)))
        body = body.mid(7).trimmed();
    if (!body.startsWith(name))
        return match;
    const QChar after = body.size() > name.size() ? body.at(name.size()) : QLatin1Char(' ');
    if (after == QLatin1Char('=')) {
        match.found = match.hasValue = true;
        match.value = environmentValue(body.mid(name.size() + 1));
        return match;
    }
    if (!pamForms || !isBlank(after))
        return match;

    // NAME [DEFAULT=value] [OVERRIDE=value]: the override wins when it is set.
    QString defaultValue, overrideValue;
    bool hasDefault = false, hasOverride = false;
    for (int i = name.size(); i < body.size();) {
        if (isBlank(body.at(i))) {
            ++i;
            continue;
        }
        Word word;
        i = readWord(body, i, &word);
        if (word.raw.startsWith(QLatin1String("DEFAULT="))) {
            hasDefault = true;
            defaultValue = word.text.mid(8);
        } else if (word.raw.startsWith(QLatin1String("OVERRIDE="))) {
            hasOverride = true;
            overrideValue = word.text.mid(9);
        }
        if (i < body.size() && isOperator(body.at(i)))
            ++i;
    }
    match.found = true;
    match.hasValue = hasDefault || hasOverride;
    match.value = hasOverride && !overrideValue.isEmpty() ? overrideValue : defaultValue;
    return match;
}

} // namespace

Match match(const QString &line, const QString &name, Syntax syntax)
{
    Match result;
    if (name.isEmpty() || !line.contains(name))
        return result;
    const int pos = skipCommentMarks(line, &result.commented);
    switch (syntax) {
    case Syntax::Shell:
        result = matchShell(line, name, pos, result);
        break;
    case Syntax::Environment:
        result = matchEnvironment(line, name, pos, result, false);
        break;
    case Syntax::Pam:
        result = matchEnvironment(line, name, pos, result, true);
        break;
    }
    return result.found ? result : Match();
}

int shellWordEnd(const QString &line, int pos)
{
    Word word;
    return readWord(line, pos, &word);
}

QString expandHome(const QString &value, const QString &home)
{
    static const QRegularExpression homeReference(
        QStringLiteral("\\$\\{HOME\\}|\\$HOME(?![A-Za-z0-9_])|@\\{HOME\\}|(?<![^:])~(?=/|:|$)"));
    QString expanded = value;
    return expanded.replace(homeReference, home);
}

bool needsShell(const QString &value)
{
    return value.contains(QLatin1Char('$')) || value.contains(QLatin1Char('`')) ||
           value.contains(QLatin1String("@{"));
}

} // namespace Assignments
