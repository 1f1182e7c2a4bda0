#include "core/shell/linegrammar.h"

#include <QCoreApplication>

namespace LineGrammar {

namespace {

// What a value holds that a shell would not read back as it stands.
struct ValueScan
{
    // Outside $(...), ${...} and `...`, a character that a bare word does not
    // keep as itself: a backslash, a single quote, a tab, an operator, or a
    // "{" that could start a brace expansion.
    bool bareHazard = false;
    QString refusal; // why no quoting can make it one word
};

ValueScan scanValue(const QString &value)
{
    ValueScan scan;
    int parens = 0;
    int braces = 0;
    bool backquote = false;
    for (int i = 0; i < value.size(); ++i) {
        const char16_t c = value.at(i).unicode();
        const char16_t next = i + 1 < value.size() ? value.at(i + 1).unicode() : 0;
        if ((c < 0x20 && c != '\t') || c == 0x7f) {
            scan.refusal = QCoreApplication::translate(
                "LineGrammar", "it holds a line break or another control character");
            return scan;
        }
        if (c == '\\') {
            scan.bareHazard = true;
            ++i; // the escaped character means itself
        } else if (c == '`') {
            backquote = !backquote;
        } else if (c == '$' && (next == '(' || next == '{') && !backquote) {
            ++(next == '(' ? parens : braces);
            ++i;
        } else if (parens > 0) {
            parens += c == '(' ? 1 : c == ')' ? -1 : 0;
        } else if (braces > 0) {
            braces -= c == '}' ? 1 : 0;
        } else if (!backquote) {
            switch (c) {
            case '\'':
            case '\t':
            case ';':
            case '&':
            case '|':
            case '<':
            case '>':
            case '(':
            case ')':
            case '{':
                scan.bareHazard = true;
                break;
            default:
                break;
            }
        }
    }
    if (parens > 0 || braces > 0 || backquote)
        scan.refusal = QCoreApplication::translate("LineGrammar",
                                                   "it opens a $(, ${ or ` that it does not close");
    return scan;
}

} // namespace

QString quoteValue(const QString &value)
{
    // Trimmed, each double quote escaped, in double quotes when it holds a
    // space. A value the shell would not read back as itself (a backslash
    // before a quote or at the end, a single quote, an operator, a tab) is
    // put in double quotes too, and the backslashes that would escape a
    // quote or pair up are doubled. `$` and backquotes stay as written: they
    // are meant to expand at login.
    const QString trimmed = value.trimmed();
    const bool wrap = trimmed.contains(QLatin1Char(' ')) || scanValue(trimmed).bareHazard;
    QString quoted;
    quoted.reserve(trimmed.size() + 2);
    for (int i = 0; i < trimmed.size();) {
        const QChar c = trimmed.at(i);
        if (c != QLatin1Char('\\')) {
            if (c == QLatin1Char('"'))
                quoted += QLatin1Char('\\');
            quoted += c;
            ++i;
            continue;
        }
        int end = i;
        while (end < trimmed.size() && trimmed.at(end) == QLatin1Char('\\'))
            ++end;
        const int run = end - i;
        const QChar next = end < trimmed.size() ? trimmed.at(end) : QChar();
        bool doubled;
        if (next == QLatin1Char('"') || next.isNull())
            doubled = true; // it would escape the quote
        else if (next == QLatin1Char('$') || next == QLatin1Char('`'))
            doubled = false; // the user's own escape of an expansion
        else
            doubled = run > 1; // inside double quotes pairs become one
        quoted += QString(doubled ? 2 * run : run, QLatin1Char('\\'));
        i = end;
    }
    return wrap ? QLatin1Char('"') + quoted + QLatin1Char('"') : quoted;
}

QString valueRefusal(const QString &value)
{
    return scanValue(value.trimmed()).refusal;
}

bool isLiteralName(const QString &name)
{
    // The characters with a meaning in QRegExp's RegExp syntax.
    static const QString special = QStringLiteral("\\^$.[]|()*+?{}");
    for (const QChar c : name) {
        if (special.contains(c))
            return false;
    }
    return true;
}

LineEdits::LineEdits(const QString &name)
    : literal(isLiteralName(name))
    , needle(name + QLatin1Char('='))
    , matcher(needle)
{
    if (!literal) {
        assignmentPattern =
            QRegExp(name + QStringLiteral("=.*"), Qt::CaseSensitive, QRegExp::RegExp);
        exportPattern = QRegExp(QStringLiteral("export.*") + name + QStringLiteral("=.*"),
                                Qt::CaseSensitive, QRegExp::RegExp);
    }
}

LineEdits::Rewrite LineEdits::rewriteAssignment(QString &line, const QString &assignment) const
{
    if (!literal) {
        if (assignmentPattern.indexIn(line) < 0)
            return NoMatch;
        const QString before = line;
        line.replace(assignmentPattern, assignment);
        return line == before ? Unchanged : Changed;
    }
    // The pattern's ".*" runs to the end of the line, so only the first
    // occurrence matters.
    const int at = matcher.indexIn(line);
    if (at < 0)
        return NoMatch;
    if (line.midRef(at) == assignment)
        return Unchanged;
    line.truncate(at);
    line += assignment;
    return Changed;
}

bool LineEdits::blankExport(QString &line) const
{
    if (!literal) {
        const QString before = line;
        line.replace(exportPattern, QStringLiteral(" "));
        return line != before;
    }
    // The match starts at the first "export" exactly when the last "NAME="
    // of the line begins after it; any later "export" could only do worse.
    static const QString keyword = QStringLiteral("export");
    const int start = line.indexOf(keyword);
    if (start < 0 || line.lastIndexOf(needle) < start + keyword.size())
        return false;
    line.truncate(start);
    line += QLatin1Char(' ');
    return true;
}

} // namespace LineGrammar
