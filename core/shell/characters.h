#pragma once

#include <QChar>
#include <QString>

// The kinds of character the editor's readers of shell text tell apart, in
// one place.
namespace ShellCharacters {

// A character of a shell variable name: ASCII letters, digits and '_'. The
// process environment's names and every reader of shell lines use this rule.
inline bool isNameChar(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_';
}

// A name: name characters, not starting with a digit.
bool isName(const QString &text);

// What separates words on a shell line.
inline bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

// A character that ends a word and is a word of its own: ; & | ( ) < >
inline bool isOperator(QChar c)
{
    switch (c.unicode()) {
    case ';':
    case '&':
    case '|':
    case '(':
    case ')':
    case '<':
    case '>':
        return true;
    default:
        return false;
    }
}

// A word character of the export pattern's \w and \b: letters, digits and
// marks by Unicode's categories, and '_'. Wider than a shell name on purpose:
// it is how the start-up files' export lines have always been read.
inline bool isPatternWordChar(QChar c)
{
    if (c.unicode() < 128)
        return isNameChar(c);
    return c.isLetterOrNumber() || c.isMark();
}

} // namespace ShellCharacters
