#include "commit.h"

#include "backups.h"
#include "safefile.h"

#include <QCoreApplication>

QString commitFile(const SavePlan::File &file, QString *copy)
{
    QString kept;
    if (copy)
        copy->clear();
    if (file.existed && file.after == file.before)
        return QString();
    QString error;
    if (file.existed) {
        // Without a copy (no writable data folder) the rewrite still goes on.
        QString ignored;
        kept = Backups::keep(file.path, file.before, &ignored);
        if (copy)
            *copy = kept;
    }
    bool restored = true;
    if (SafeFile::rewrite(file.path, file.existed, file.before, file.after, &error, &restored))
        return QString();
    if (!restored && !kept.isEmpty())
        error += QLatin1Char(' ') +
                 QCoreApplication::translate("EveModel",
                                             "Its content from before the save is kept in %1.")
                     .arg(kept);
    return error;
}
