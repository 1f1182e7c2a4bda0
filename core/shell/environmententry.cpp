#include "core/shell/environmententry.h"

#include "core/shell/characters.h"

namespace LineGrammar {

using ShellCharacters::isNameChar;

QStringList nameAndValue(const QString &entry)
{
    const QChar *s = entry.constData();
    const int n = entry.size();
    for (int equals = 1; equals < n; ++equals) {
        if (s[equals] != QLatin1Char('=') || !isNameChar(s[equals - 1]))
            continue;
        int start = equals - 1;
        while (start > 0 && isNameChar(s[start - 1]))
            --start;
        // QRegExp gives a null string for an empty value.
        const QString value = equals + 1 < n ? entry.mid(equals + 1) : QString();
        return {entry.mid(start, equals - start), value};
    }
    return {QString(), QString()};
}

} // namespace LineGrammar
