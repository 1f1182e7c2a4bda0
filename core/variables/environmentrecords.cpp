#include "core/variables/environmentrecords.h"

#include "core/settings/settingkeys.h"
#include "core/shell/environmententry.h"
#include "core/variables/catalogue.h"
#include "core/variables/record.h"

#include <QProcess>
#include <QSet>
#include <QSettings>

QList<QStringList> environmentRecords(const QString &systemOrigin)
{
    QList<QStringList> records;
    const QStringList environment = QProcess::systemEnvironment();
    const QString local = QStringLiteral("local");
    const QString descriptionKey = QLatin1String(SettingKeys::descriptionKey);
    const QString vipKey = QLatin1String(SettingKeys::vipKey);

    // Only a variable with a group of its own under "variables" can have a
    // stored description or mark; asking the settings once for those groups
    // saves two look-ups for every other variable.
    QSettings settings;
    settings.beginGroup(SettingKeys::variablesGroup());
    const QStringList storedGroups = settings.childGroups();
    settings.endGroup();
    const QSet<QString> stored(storedGroups.cbegin(), storedGroups.cend());

    for (const QString &entry : environment) {
        QStringList record = LineGrammar::nameAndValue(entry);
        const QString name = record.at(Record::Variable);
        if (name.isEmpty())
            continue;
        record.reserve(Record::ColumnCount);
        record << systemOrigin << QString() << local << QString() << QString();
        Catalogue::describe(record);

        // What the user wrote for a variable wins over the catalogue, also
        // when it is an empty text.
        if (!stored.isEmpty() && stored.contains(name)) {
            settings.beginGroup(SettingKeys::variableGroup(name));
            if (settings.contains(descriptionKey))
                record[Record::Description] = settings.value(descriptionKey).toString();
            if (settings.contains(vipKey))
                record[Record::Vip] = settings.value(vipKey).toString();
            settings.endGroup();
        }
        records.append(record);
    }
    return records;
}
