#include "core/lookup/rowmatch.h"

bool rowMatches(const QString &name, const QString &value, const QString &description,
                const QString &text)
{
    return name.contains(text, Qt::CaseInsensitive) || value.contains(text, Qt::CaseInsensitive) ||
           description.contains(text, Qt::CaseInsensitive);
}
