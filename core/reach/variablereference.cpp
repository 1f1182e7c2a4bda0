#include "core/reach/variablereference.h"

namespace {

bool startsName(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) || c == QLatin1Char('_');
}

bool inName(QChar c)
{
    return startsName(c) || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

} // namespace

QList<VariableReference> VariableReference::split(const QString &value)
{
    QList<VariableReference> pieces;
    QString plain;
    const auto reference = [&](int from, int length, const QString &name) {
        if (!plain.isEmpty())
            pieces.append({plain, QString()});
        plain.clear();
        pieces.append({value.mid(from, length), name});
    };
    for (int i = 0; i < value.size();) {
        if (value.at(i) == QLatin1Char('$') && i + 1 < value.size()) {
            if (startsName(value.at(i + 1))) {
                int end = i + 2;
                while (end < value.size() && inName(value.at(end)))
                    ++end;
                reference(i, end - i, value.mid(i + 1, end - i - 1));
                i = end;
                continue;
            }
            if (value.at(i + 1) == QLatin1Char('{') && i + 2 < value.size() &&
                startsName(value.at(i + 2))) {
                int end = i + 3;
                while (end < value.size() && inName(value.at(end)))
                    ++end;
                if (end < value.size() && value.at(end) == QLatin1Char('}')) {
                    reference(i, end + 1 - i, value.mid(i + 2, end - i - 2));
                    i = end + 1;
                    continue;
                }
            }
        }
        plain += value.at(i++);
    }
    if (!plain.isEmpty())
        pieces.append({plain, QString()});
    return pieces;
}

bool VariableReference::isName(const QString &name)
{
    if (name.isEmpty() || !startsName(name.front()))
        return false;
    for (const QChar c : name) {
        if (!inName(c))
            return false;
    }
    return true;
}
