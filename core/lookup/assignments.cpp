#include "core/lookup/assignments.h"

#include "core/shell/characters.h"
#include "core/shell/shelllexer.h"

#include <QRegularExpression>
#include <QStringList>

namespace Assignments {

namespace {

using ShellCharacters::isBlank;
using ShellCharacters::isOperator;
using ShellLexer::Word;

// "NAME=" written plainly at the start of a word.
bool assigns(const Word &word, const QString &name)
{
    return word.raw.size() > name.size() && word.raw.startsWith(name) &&
           word.raw.at(name.size()) == QLatin1Char('=');
}

bool isAnyAssignment(const Word &word)
{
    const int equals = word.raw.indexOf(QLatin1Char('='));
    return equals > 0 && ShellCharacters::isName(word.raw.left(equals));
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

    const QList<Word> words = ShellLexer::words(line, pos);
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
        return ShellLexer::readWord(value, 0).text;
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
        const Word word = ShellLexer::readWord(body, i);
        i = word.end;
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
    const int pos = ShellLexer::skipCommentMarks(line, &result.commented);
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
