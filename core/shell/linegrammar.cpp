#include "core/shell/linegrammar.h"

namespace LineGrammar {

QString quoteValue(const QString &value)
{
    QString quoted = value.trimmed();
    const QRegExp quote(QStringLiteral("[\"]"), Qt::CaseSensitive, QRegExp::RegExp);
    int pos = 0;
    while ((pos = quote.indexIn(quoted, pos)) >= 0) {
        quoted.insert(pos, QLatin1Char('\\'));
        pos += 2;
    }
    if (quoted.contains(QLatin1Char(' ')))
        quoted = QLatin1Char('"') + quoted + QLatin1Char('"');
    return quoted;
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
