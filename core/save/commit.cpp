#include "core/save/commit.h"

#include "core/files/backups.h"
#include "core/files/safefile.h"

#include <QCoreApplication>

Result<CommittedFile> commitFile(const SavePlan::File &file)
{
    CommittedFile committed;
    if (file.existed && file.after == file.before)
        return committed;
    if (file.existed) {
        const Result<QString> copy = Backups::keep(file.path, file.before);
        if (copy)
            committed.copy = copy.value();
        else
            committed.copyFailure = copy.reason();
    }
    const Status written = SafeFile::rewrite(file.path, file.existed, file.before, file.after);
    if (written)
        return committed;
    Failure failure = written.failure();
    if (failure.step == Failure::Step::PutBack && !committed.copy.isEmpty())
        failure.reason +=
            QLatin1Char(' ') + QCoreApplication::translate(
                                   "EveModel", "Its content from before the save is kept in %1.")
                                   .arg(committed.copy);
    return failure;
}
