#include "environmententry.h"
#include "evemodel.h"
#include "exportmatcher.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>

void EveModel::loadEnvironment(QList<QStringList> &records)
{
    records.clear();
    const QStringList environment = QProcess::systemEnvironment();
    QSettings settings;
    for (const QString &entry : environment) {
        QStringList record = LineGrammar::nameAndValue(entry);
        const QString name = record.at(VariableColumn);
        if (name.isEmpty())
            continue;
        scanEnvironmentEntry(record);
        record << tr("System") << QString() << QStringLiteral("local") << QString() << QString();
        describeKnownVariable(record);

        // What the user wrote for a variable wins over the catalogue, also
        // when it is an empty text.
        settings.beginGroup(QStringLiteral("variables/") + name);
        if (settings.contains(QStringLiteral("description")))
            record[DescriptionColumn] = settings.value(QStringLiteral("description")).toString();
        if (settings.contains(QStringLiteral("vip")))
            record[VipColumn] = settings.value(QStringLiteral("vip")).toString();
        settings.endGroup();
        records.append(record);
    }
}

QList<QStringList> EveModel::parseFile(QFile &file) const
{
    QList<QStringList> records;
    const QString path = file.fileName();
    LineGrammar::forEachExport(file.readAll(), [&](QStringView name, QStringView value) {
        records.append(
            {name.toString(), value.toString(), path, QString(), QString(), QString(), QString()});
    });
    return records;
}

void EveModel::loadFiles()
{
    beginResetModel();

    // Later files win: user files come after system files, and within a
    // file the last line wins.
    QHash<QString, QString> origins;
    const QStringList files = systemFiles + userFiles;
    for (const QString &path : files) {
        if (!QFileInfo::exists(path))
            continue;
        QFile file(path);
        // Anything but a regular file (a FIFO would block) counts as unopenable.
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
            QMessageBox box;
            box.setText(tr("Couldn't open file: %1 !").arg(path));
            box.exec();
            continue;
        }
        // Only the names matter here; parseFile's records would cost more.
        LineGrammar::forEachExport(file.readAll(), [&](QStringView name, QStringView) {
            origins.insert(name.toString(), path);
        });
        file.close();
    }
    for (QStringList &row : rows) {
        const auto origin = origins.constFind(row.value(VariableColumn));
        if (origin != origins.constEnd())
            row[OriginColumn] = origin.value();
    }

    endResetModel();
}

bool EveModel::reload()
{
    deletedRows.clear();
    rows.clear();
    loadEnvironment(rows);
    loadFiles();
    return true;
}
