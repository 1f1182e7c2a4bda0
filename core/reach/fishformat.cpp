#include "core/reach/fishformat.h"

#include "core/reach/variablereference.h"

namespace {

bool bare(const QString &text)
{
    if (text.isEmpty())
        return false;
    for (const QChar c : text) {
        const bool safe = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                          (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                          (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
                          QStringLiteral("_./,:+=@%-").contains(c);
        if (!safe)
            return false;
    }
    return true;
}

} // namespace

bool FishFormat::isPathList(const QString &name)
{
    return name.endsWith(QLatin1String("PATH"));
}

QString FishFormat::quoted(const QString &text)
{
    if (bare(text))
        return text;
    const QStringList lines = text.split(QLatin1Char('\n'));
    QString word;
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 0)
            word += QStringLiteral("\\n");
        if (lines.at(i).isEmpty() && lines.size() > 1)
            continue;
        QString part = lines.at(i);
        part.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
        part.replace(QLatin1Char('\''), QStringLiteral("\\'"));
        word += QLatin1Char('\'') + part + QLatin1Char('\'');
    }
    return word;
}

FormattedLine FishFormat::line(const QString &name, const QString &value,
                               const QStringList &references)
{
    if (!VariableReference::isName(name))
        return {QString(), tr("%1 is not a variable name fish accepts").arg(name)};
    if (value.contains(QChar(0)))
        return {QString(), tr("fish cannot hold a value with a NUL character")};
    const QStringList elements =
        isPathList(name) ? value.split(QLatin1Char(':')) : QStringList{value};
    QString text = QStringLiteral("set -gx ") + name;
    for (const QString &element : elements) {
        const QList<VariableReference> pieces = VariableReference::split(element);
        QString word;
        if (pieces.size() == 1 && pieces.front().isReference() &&
            references.contains(pieces.front().name) && isPathList(pieces.front().name)) {
            word = QLatin1Char('$') + pieces.front().name;
        } else {
            for (const VariableReference &piece : pieces) {
                if (piece.isReference() && references.contains(piece.name))
                    word += QStringLiteral("\"$") + piece.name + QLatin1Char('"');
                else
                    word += quoted(piece.text);
            }
        }
        text += QLatin1Char(' ') + (word.isEmpty() ? QStringLiteral("''") : word);
    }
    return {text, QString()};
}
