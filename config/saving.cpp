#include "commit.h"
#include "evemodel.h"
#include "saveplan.h"

#include <QMessageBox>
#include <QSettings>

SaveInput EveModel::saveInput() const
{
    return {rows, deletedRows, rootSession, localFile, globalFile, tr("System")};
}

bool EveModel::save()
{
    const SavePlan plan = planSave(saveInput());

    // Stored first, so descriptions survive a file that cannot be written.
    if (!plan.settings.isEmpty()) {
        QSettings settings;
        for (const SavePlan::Settings &entry : plan.settings) {
            settings.beginGroup(QStringLiteral("variables/") + entry.name);
            settings.setValue(QStringLiteral("description"), entry.description);
            settings.setValue(QStringLiteral("vip"), entry.vip);
            settings.endGroup();
        }
    }

    QVector<bool> written(plan.files.size(), false);
    for (int i = 0; i < plan.files.size(); ++i) {
        const SavePlan::File &file = plan.files.at(i);
        if (file.savedNames.isEmpty())
            continue;
        const QString error = commitFile(file);
        if (!error.isNull()) {
            QMessageBox::warning(nullptr, tr("Warning!"),
                                 tr("Couldn't write file %1 for saving variable %2: %3")
                                     .arg(file.path, file.savedNames.first(), error),
                                 QMessageBox::Ok);
            return false;
        }
        written[i] = true;
    }
    if (plan.stopped) {
        QMessageBox::warning(nullptr, tr("Warning!"),
                             tr("Couldn't open file %1 for saving variable %2")
                                 .arg(plan.stoppedPath, plan.stoppedName),
                             QMessageBox::Ok);
        return false;
    }

    for (QStringList &row : rows) {
        if (row.size() > PreviousColumn)
            row[PreviousColumn].clear();
    }

    for (const SavePlan::Deletion &deletion : plan.deletions) {
        if (deletion.file < 0) {
            QMessageBox::warning(nullptr, tr("Warning!"),
                                 tr("Couldn't open file %1 for deleting variable %2")
                                     .arg(deletion.path, deletion.name),
                                 QMessageBox::Ok);
            continue;
        }
        if (written.at(deletion.file))
            continue;
        written[deletion.file] = true;
        const QString error = commitFile(plan.files.at(deletion.file));
        if (!error.isNull()) {
            QMessageBox::warning(nullptr, tr("Warning!"),
                                 tr("Couldn't write file %1 for deleting variable %2: %3")
                                     .arg(deletion.path, deletion.name, error),
                                 QMessageBox::Ok);
        }
    }
    deletedRows.clear();
    return true;
}
