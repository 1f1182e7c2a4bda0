#include "environmententry.h"
#include "evemodel.h"
#include "exportmatcher.h"

#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QSet>
#include <QSettings>

#include <string_view>
#include <unordered_map>
#include <vector>

void EveModel::loadEnvironment(QList<QStringList> &records)
{
    records.clear();
    const QStringList environment = QProcess::systemEnvironment();
    const QString system = tr("System");
    const QString local = QStringLiteral("local");

    // Only a variable with a group of its own under "variables" can have a
    // stored description or mark; asking the settings once for those groups
    // saves two look-ups for every other variable.
    QSettings settings;
    settings.beginGroup(QStringLiteral("variables"));
    const QStringList storedGroups = settings.childGroups();
    settings.endGroup();
    const QSet<QString> stored(storedGroups.cbegin(), storedGroups.cend());

    for (const QString &entry : environment) {
        QStringList record = LineGrammar::nameAndValue(entry);
        const QString name = record.at(VariableColumn);
        if (name.isEmpty())
            continue;
        scanEnvironmentEntry(record);
        record.reserve(ColumnCount);
        record << system << QString() << local << QString() << QString();
        describeKnownVariable(record);

        // What the user wrote for a variable wins over the catalogue, also
        // when it is an empty text.
        if (!stored.isEmpty() && stored.contains(name)) {
            settings.beginGroup(QStringLiteral("variables/") + name);
            if (settings.contains(QStringLiteral("description")))
                record[DescriptionColumn] =
                    settings.value(QStringLiteral("description")).toString();
            if (settings.contains(QStringLiteral("vip")))
                record[VipColumn] = settings.value(QStringLiteral("vip")).toString();
            settings.endGroup();
        }
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

    // Each row's name in UTF-8, as the files give names, and the index of the
    // last file that exports it. Later files win: user files come after
    // system files, and within a file the last line wins.
    std::vector<QByteArray> names;
    names.reserve(size_t(rows.size()));
    std::unordered_map<std::string_view, int> lastFile;
    lastFile.reserve(size_t(rows.size()));
    for (const QStringList &row : qAsConst(rows)) {
        names.push_back(row.value(VariableColumn).toUtf8());
        lastFile.emplace(std::string_view(names.back().constData(), size_t(names.back().size())),
                         -1);
    }

    const QStringList files = systemFiles + userFiles;
    for (int i = 0; i < files.size(); ++i) {
        const QString &path = files.at(i);
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
        LineGrammar::forEachExportedName(file.readAll(), [&](std::string_view name) {
            const auto found = lastFile.find(name);
            if (found != lastFile.end())
                found->second = i;
        });
        file.close();
    }
    for (int r = 0; r < rows.size(); ++r) {
        const QByteArray &name = names[size_t(r)];
        const int file = lastFile[std::string_view(name.constData(), size_t(name.size()))];
        if (file >= 0)
            rows[r][OriginColumn] = files.at(file);
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
