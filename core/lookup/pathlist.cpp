#include "core/lookup/pathlist.h"

#include <QDir>
#include <QHash>

namespace PathList {

QStringList split(const QString &value)
{
    if (value.isEmpty())
        return {};
    return value.split(QLatin1Char(':'), Qt::KeepEmptyParts);
}

QString join(const QStringList &entries)
{
    return entries.join(QLatin1Char(':'));
}

QVector<int> earlierDuplicates(const QStringList &entries)
{
    QVector<int> earlier(entries.size(), -1);
    QHash<QString, int> first;
    for (int i = 0; i < entries.size(); ++i) {
        const QString key = QDir::cleanPath(entries.at(i));
        const auto found = first.constFind(key);
        if (found != first.constEnd())
            earlier[i] = found.value();
        else
            first.insert(key, i);
    }
    return earlier;
}

QStringList withoutDuplicates(const QStringList &entries)
{
    const QVector<int> earlier = earlierDuplicates(entries);
    QStringList kept;
    for (int i = 0; i < entries.size(); ++i) {
        if (earlier.at(i) < 0)
            kept.append(entries.at(i));
    }
    return kept;
}

} // namespace PathList
