#include "core/variables/variabletable.h"

#include "core/variables/environmentrecords.h"
#include "core/variables/origins.h"
#include "core/variables/record.h"

VariableTable::VariableTable()
{
    records = environmentRecords(systemOrigin());
    for (const QStringList &record : qAsConst(records))
        ConfigFiles::scanEnvironmentEntry(state, record.at(Record::Variable),
                                          record.at(Record::Value));
    const ConfigFiles::Candidates candidates =
        ConfigFiles::candidates(state.shellKind, state.homeDir);
    globalFile = candidates.global;
    localFile = candidates.local;
    ConfigFiles::choose(state.shellKind, state.homeDir, globalFile, localFile);
    lists = ConfigFiles::readLists(state.shellKind, state.rootSession, globalFile, localFile);
    unreadableFiles = assignOrigins(records, lists.systemFiles + lists.userFiles);
}

QString VariableTable::systemOrigin()
{
    return QCoreApplication::translate("EveModel", "System");
}

int VariableTable::rowOf(const QString &name) const
{
    for (int row = 0; row < records.size(); ++row) {
        if (records.at(row).at(Record::Variable) == name)
            return row;
    }
    return -1;
}

void VariableTable::set(const QString &name, const QString &value, const QString *description,
                        bool critical, bool system)
{
    const int row = rowOf(name);
    if (row < 0) {
        // As the new-variable dialog adds it: from the environment, changed.
        const QString scope = system ? QStringLiteral("global") : QStringLiteral("local");
        records.append({name, value, systemOrigin(), description ? *description : QString(), scope,
                        critical ? QStringLiteral("true") : QString(), value});
        return;
    }
    // As the editor dialog's record update: the first change keeps the old value.
    QStringList &record = records[row];
    if (record.at(Record::Previous).isEmpty())
        record[Record::Previous] = record.at(Record::Value);
    record[Record::Value] = value;
    if (description)
        record[Record::Description] = *description;
    if (critical)
        record[Record::Vip] = QStringLiteral("true");
    if (system)
        record[Record::Scope] = QStringLiteral("global");
}

bool VariableTable::unset(const QString &name)
{
    const int row = rowOf(name);
    if (row < 0)
        return false;
    // As the model's removal: remembered unless its description reads "System".
    if (records.at(row).at(Record::Description) != QLatin1String("System"))
        deletedRecords.append(records.at(row));
    records.removeAt(row);
    return true;
}

SaveInput VariableTable::saveInput() const
{
    return {records, deletedRecords, state.rootSession, localFile, globalFile, systemOrigin()};
}
