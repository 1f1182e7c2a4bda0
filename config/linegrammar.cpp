#include "linegrammar.h"

namespace LineGrammar {

namespace {

// True when the name means itself as a pattern, so a plain substring test
// can skip the lines that cannot match.
bool isLiteralName(const QString &name)
{
    for (const QChar c : name) {
        if (!(c.isLetterOrNumber() && c.unicode() < 128) && c != QLatin1Char('_') &&
            c != QLatin1Char('-'))
            return false;
    }
    return !name.isEmpty();
}

} // namespace

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

void writeAssignment(QStringList &lines, const QString &name, const QString &quotedValue)
{
    const QRegExp rx(name + QStringLiteral("=.*"), Qt::CaseSensitive, QRegExp::RegExp);
    const QString assignment = name + QLatin1Char('=') + quotedValue;
    const QString literal = name + QLatin1Char('=');
    const bool literalName = isLiteralName(name);

    bool found = false;
    for (QString &line : lines) {
        if (literalName && !line.contains(literal))
            continue;
        line.replace(rx, assignment);
    }
    for (const QString &line : qAsConst(lines)) {
        if (line.contains(assignment, Qt::CaseInsensitive)) {
            found = true;
            break;
        }
    }
    if (!found)
        lines.prepend(QStringLiteral("export ") + assignment);
}

void blankExport(QStringList &lines, const QString &name)
{
    const QRegExp rx(QStringLiteral("export.*") + name + QStringLiteral("=.*"), Qt::CaseSensitive,
                     QRegExp::RegExp);
    const bool literalName = isLiteralName(name);
    for (QString &line : lines) {
        if (literalName && !line.contains(name + QLatin1Char('=')))
            continue;
        line.replace(rx, QStringLiteral(" "));
    }
}

} // namespace LineGrammar
