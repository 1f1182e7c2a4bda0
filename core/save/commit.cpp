#include "core/save/commit.h"

#include "core/files/backups.h"
#include "core/files/safefile.h"

#include <QCoreApplication>

Result<QString> commitFile(const SavePlan::File &file)
{
    if (file.existed && file.after == file.before)
        return QString();
    QString kept;
    if (file.existed) {
        // Without a copy (no writable data folder) the rewrite still goes on.
        const Result<QString> copy = Backups::keep(file.path, file.before);
        if (copy)
            kept = copy.value();
    }
    const Status written = SafeFile::rewrite(file.path, file.existed, file.before, file.after);
    if (written)
        return kept;
    Failure failure = written.failure();
    if (failure.step == Failure::Step::PutBack && !kept.isEmpty())
        failure.reason +=
            QLatin1Char(' ') + QCoreApplication::translate(
                                   "EveModel", "Its content from before the save is kept in %1.")
                                   .arg(kept);
    return failure;
}
