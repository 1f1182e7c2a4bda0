#pragma once

#include <QRegExp>
#include <QStringList>
#include <QStringMatcher>

// The one line grammar of the start-up files, "export NAME=VALUE", as plain
// text functions.
namespace LineGrammar {

// Trims the value, escapes its double quotes and wraps it in double quotes
// when it holds a space, so that a login shell reads the written word back
// as the value: a value it would read otherwise (a backslash, a single
// quote, a tab, an operator) is wrapped too, with the backslashes that would
// escape a quote doubled. `$` and backquotes are kept as written, to expand.
QString quoteValue(const QString &value);

// Why a value cannot be written as one word at all (a line break or another
// control character, an unclosed $(, ${ or backquote), or an empty string.
QString valueRefusal(const QString &value);

// True when a name means itself inside the save's patterns "NAME=.*" and
// "export.*NAME=.*", so the edits below can search for it as plain text.
bool isLiteralName(const QString &name);

// The save's edits of single lines for one variable, with what they search
// for prepared once. For a literal name they are plain searches, linear in
// the length of the line, with exactly the results of the patterns
// "NAME=.*" and "export.*NAME=.*"; any other name is used as the pattern.
class LineEdits
{
public:
    explicit LineEdits(const QString &name);
    bool isLiteral() const { return literal; }

    enum Rewrite { NoMatch, Unchanged, Changed };
    // Everything from the first "NAME=" to the end of the line becomes
    // `assignment`.
    Rewrite rewriteAssignment(QString &line, const QString &assignment) const;
    // From the first "export" to the end of the line becomes one space, when
    // "NAME=" follows that "export" somewhere. Returns whether the line changed.
    bool blankExport(QString &line) const;

private:
    bool literal;
    QString needle; // NAME=
    QStringMatcher matcher;
    QRegExp assignmentPattern;
    QRegExp exportPattern;
};

} // namespace LineGrammar
