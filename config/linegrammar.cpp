#include "linegrammar.h"

namespace LineGrammar {

ExportMatcher::ExportMatcher()
    : rx(QStringLiteral("\\bexport\\b\\s+\\b(\\w+)=(.+)\\b"), Qt::CaseSensitive, QRegExp::RegExp)
{}

bool ExportMatcher::match(const QString &line)
{
    // Most lines of a start-up file are no exports; skip the engine for them.
    if (!line.contains(QLatin1String("export")))
        return false;
    return rx.indexIn(line) >= 0;
}

QStringList splitEnvironmentEntry(const QString &entry)
{
    // Built once: the environment can hold thousands of entries.
    thread_local QRegExp rx(QStringLiteral("([a-zA-Z0-9_]+)=(.*)"), Qt::CaseSensitive,
                            QRegExp::RegExp);
    if (rx.indexIn(entry) < 0)
        return {QString(), QString()};
    return {rx.cap(1), rx.cap(2)};
}

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

bool rewriteAssignment(QString &line, const QString &name, const QString &assignment)
{
    if (!isLiteralName(name)) {
        const QString before = line;
        line.replace(QRegExp(name + QStringLiteral("=.*"), Qt::CaseSensitive, QRegExp::RegExp),
                     assignment);
        return line != before;
    }
    // The pattern's ".*" runs to the end of the line, so only the first
    // occurrence matters.
    const int at = line.indexOf(name + QLatin1Char('='));
    if (at < 0)
        return false;
    const QString rewritten = line.left(at) + assignment;
    if (rewritten == line)
        return false;
    line = rewritten;
    return true;
}

bool blankExport(QString &line, const QString &name)
{
    if (!isLiteralName(name)) {
        const QString before = line;
        line.replace(QRegExp(QStringLiteral("export.*") + name + QStringLiteral("=.*"),
                             Qt::CaseSensitive, QRegExp::RegExp),
                     QStringLiteral(" "));
        return line != before;
    }
    // The match starts at the first "export" exactly when the last "NAME="
    // of the line begins after it; any later "export" could only do worse.
    static const QString keyword = QStringLiteral("export");
    const int start = line.indexOf(keyword);
    if (start < 0 || line.lastIndexOf(name + QLatin1Char('=')) < start + keyword.size())
        return false;
    const QString blanked = line.left(start) + QLatin1Char(' ');
    if (blanked == line)
        return false;
    line = blanked;
    return true;
}

void writeAssignment(QStringList &lines, const QString &name, const QString &quotedValue)
{
    const QString assignment = name + QLatin1Char('=') + quotedValue;
    bool found = false;
    for (QString &line : lines) {
        rewriteAssignment(line, name, assignment);
        // A rewritten line holds the assignment; others may in another case.
        found = found || line.contains(assignment, Qt::CaseInsensitive);
    }
    if (!found)
        lines.prepend(QStringLiteral("export ") + assignment);
}

void blankExport(QStringList &lines, const QString &name)
{
    for (QString &line : lines)
        blankExport(line, name);
}

} // namespace LineGrammar
