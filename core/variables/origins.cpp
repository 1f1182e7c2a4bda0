#include "core/variables/origins.h"

#include "core/shell/exportmatcher.h"
#include "core/variables/record.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <string_view>
#include <unordered_map>
#include <vector>

QList<Failure> assignOrigins(QList<QStringList> &records, const QStringList &files)
{
    QList<Failure> unreadable;
    // Each record's name in UTF-8, as the files give names, and the index of
    // the last file that exports it.
    std::vector<QByteArray> names;
    names.reserve(size_t(records.size()));
    std::unordered_map<std::string_view, int> lastFile;
    lastFile.reserve(size_t(records.size()));
    for (const QStringList &record : qAsConst(records)) {
        names.push_back(record.value(Record::Variable).toUtf8());
        lastFile.emplace(std::string_view(names.back().constData(), size_t(names.back().size())),
                         -1);
    }

    for (int i = 0; i < files.size(); ++i) {
        const QString &path = files.at(i);
        const QFileInfo info(path);
        if (!info.exists())
            continue;
        QFile file(path);
        // Anything but a regular file (a FIFO would block) counts as unopenable.
        if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
            unreadable.append({path, Failure::Step::Open,
                               info.isFile() ? file.errorString()
                                             : QCoreApplication::translate(
                                                   "SafeFile", "it is not a regular file")});
            continue;
        }
        LineGrammar::forEachExportedName(file.readAll(), [&](std::string_view name) {
            const auto found = lastFile.find(name);
            if (found != lastFile.end())
                found->second = i;
        });
    }
    for (int r = 0; r < records.size(); ++r) {
        const QByteArray &name = names[size_t(r)];
        const int file = lastFile[std::string_view(name.constData(), size_t(name.size()))];
        if (file >= 0)
            records[r][Record::Origin] = files.at(file);
    }
    return unreadable;
}

QList<QStringList> exportRecords(const QByteArray &bytes, const QString &path)
{
    QList<QStringList> records;
    LineGrammar::forEachExport(bytes, [&](QStringView name, QStringView value) {
        records.append(
            {name.toString(), value.toString(), path, QString(), QString(), QString(), QString()});
    });
    return records;
}
