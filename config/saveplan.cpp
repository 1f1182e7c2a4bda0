#include "saveplan.h"

#include "evemodel.h"
#include "linedocument.h"
#include "linegrammar.h"

#include <QHash>

SavePlan planSave(const SaveInput &input, const FileReader &read)
{
    SavePlan plan;
    QVector<LineDocument> documents;
    QHash<QString, int> opened;     // path -> index into files, or -1
    QHash<QString, QString> errors; // path -> why it cannot be opened

    // Each path is read once; what could not be opened stays so for this save.
    const auto open = [&](const QString &path) {
        const auto known = opened.constFind(path);
        if (known != opened.constEnd())
            return known.value();
        const SafeFile::Contents contents = read(path);
        int index = -1;
        if (contents.usable) {
            index = plan.files.size();
            SavePlan::File file;
            file.path = path;
            file.existed = contents.exists;
            file.before = contents.bytes;
            plan.files.append(file);
            documents.append(LineDocument::fromBytes(contents.bytes));
        } else {
            errors.insert(path, contents.error);
        }
        opened.insert(path, index);
        return index;
    };

    for (const QStringList &row : input.rows) {
        if (row.value(EveModel::PreviousColumn).isEmpty())
            continue;
        const QString name = row.value(EveModel::VariableColumn);
        plan.settings.append(
            {name, row.value(EveModel::DescriptionColumn), row.value(EveModel::VipColumn)});

        // A variable that a file already exports goes back to that file; new
        // and environment-only ones go to the user's or the system-wide file.
        QString target = input.localFile;
        if (input.rootSession && row.value(EveModel::ScopeColumn) == QLatin1String("global"))
            target = input.globalFile;
        const QString fallback = target;
        if (row.value(EveModel::OriginColumn) != input.systemOrigin)
            target = row.value(EveModel::OriginColumn);

        int file = open(target);
        if (file < 0)
            file = open(fallback);
        if (file < 0) {
            plan.stopped = true;
            plan.stoppedName = name;
            plan.stoppedPath = fallback;
            plan.stoppedError = errors.value(fallback);
            break;
        }
        if (plan.files.at(file).path != target)
            plan.redirects.append({name, target, fallback, errors.value(target)});
        documents[file].writeAssignment(name,
                                        LineGrammar::quoteValue(row.value(EveModel::ValueColumn)));
        plan.files[file].savedNames.append(name);
    }

    if (!plan.stopped) {
        for (const QStringList &row : input.deletedRows) {
            const QString origin = row.value(EveModel::OriginColumn);
            if (origin == input.systemOrigin)
                continue; // only the environment has it
            const QString name = row.value(EveModel::VariableColumn);
            const int file = open(origin);
            plan.deletions.append({name, origin, file, errors.value(origin)});
            if (file < 0)
                continue;
            documents[file].blankExport(name);
            plan.files[file].deletedNames.append(name);
        }
    }

    for (int i = 0; i < plan.files.size(); ++i)
        plan.files[i].after = documents.at(i).toBytes();
    return plan;
}
