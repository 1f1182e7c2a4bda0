#include "core/save/saveplan.h"

#include "core/save/linedocument.h"
#include "core/shell/linegrammar.h"
#include "core/variables/record.h"

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
        const Result<SafeFile::Contents> contents = read(path);
        int index = -1;
        if (contents) {
            index = plan.files.size();
            SavePlan::File file;
            file.path = path;
            file.existed = contents->exists;
            file.before = contents->bytes;
            plan.files.append(file);
            documents.append(LineDocument::fromBytes(contents->bytes));
        } else {
            errors.insert(path, contents.reason());
        }
        opened.insert(path, index);
        return index;
    };

    for (const QStringList &row : input.rows) {
        if (row.value(Record::Previous).isEmpty())
            continue;
        const QString name = row.value(Record::Variable);
        const QString refusal = LineGrammar::valueRefusal(row.value(Record::Value));
        if (!refusal.isEmpty())
            plan.refusals.append({name, refusal});
        plan.settings.append({name, row.value(Record::Description), row.value(Record::Vip)});

        // A variable that a file already exports goes back to that file; new
        // and environment-only ones go to the user's or the system-wide file.
        QString target = input.localFile;
        if (input.rootSession && row.value(Record::Scope) == QLatin1String("global"))
            target = input.globalFile;
        const QString fallback = target;
        if (row.value(Record::Origin) != input.systemOrigin)
            target = row.value(Record::Origin);

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
        documents[file].writeAssignment(name, LineGrammar::quoteValue(row.value(Record::Value)));
        plan.files[file].savedNames.append(name);
    }

    if (!plan.stopped) {
        for (const QStringList &row : input.deletedRows) {
            const QString origin = row.value(Record::Origin);
            if (origin == input.systemOrigin)
                continue; // only the environment has it
            const QString name = row.value(Record::Variable);
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

QList<int> SavePlan::writeOrder() const
{
    QList<int> order;
    const auto changes = [this](int i) {
        return !files.at(i).existed || files.at(i).after != files.at(i).before;
    };
    for (int i = 0; i < files.size(); ++i) {
        if (!files.at(i).savedNames.isEmpty() && changes(i))
            order.append(i);
    }
    for (const Deletion &deletion : deletions) {
        const int i = deletion.file;
        if (i >= 0 && files.at(i).savedNames.isEmpty() && !order.contains(i) && changes(i))
            order.append(i);
    }
    return order;
}
