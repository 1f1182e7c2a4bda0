#include "core/reach/environmentdformat.h"

#include "core/reach/variablereference.h"

FormattedLine EnvironmentDFormat::line(const QString &name, const QString &value,
                                       const QStringList &references)
{
    if (!VariableReference::isName(name))
        return {QString(), tr("%1 is not a variable name environment.d accepts").arg(name)};
    if (value.isEmpty())
        return {QString(), tr("environment.d cannot set a variable to an empty value")};
    if (value.contains(QLatin1Char('\n')) || value.contains(QLatin1Char('\r')))
        return {QString(), tr("environment.d cannot hold a value with a line break")};
    for (const QChar c : value) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            return {QString(), tr("environment.d cannot pass on a value with a tab or another "
                                  "control character as it is")};
    }

    QString text;
    for (const VariableReference &piece : VariableReference::split(value)) {
        if (piece.isReference() && references.contains(piece.name))
            text += piece.text;
        else
            text += QString(piece.text).replace(QLatin1Char('$'), QStringLiteral("$$"));
    }
    const bool quote = text.front().isSpace() || text.back().isSpace() ||
                       text.startsWith(QLatin1Char('"')) || text.startsWith(QLatin1Char('\'')) ||
                       text.contains(QLatin1Char('\\'));
    if (quote) {
        text.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        text.replace(QLatin1Char('"'), QStringLiteral("\\\""));
        text = QLatin1Char('"') + text + QLatin1Char('"');
    }
    return {name + QLatin1Char('=') + text, QString()};
}

QStringList EnvironmentDFormat::referencesIn(const QString &value)
{
    QStringList names;
    for (const VariableReference &piece : VariableReference::split(value)) {
        if (piece.isReference() && !names.contains(piece.name))
            names << piece.name;
    }
    return names;
}
