#pragma once

// Start-up files and changes for the benchmarks of saving and previewing.

#include "gui/model/evemodel.h"
#include "support/sandbox.h"

#include <QStringList>

inline QString userStartupFile()
{
    return Sandbox::home() + QStringLiteral("/.bashrc");
}

inline QModelIndex valueIndexOf(const EveModel &model, const QString &name)
{
    const QModelIndex found =
        model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    return found.siblingAtColumn(EveModel::ValueColumn);
}

// A start-up file of `lines` lines of `lineLength` bytes: exports of the
// named variables spread among ordinary shell lines.
inline QByteArray startupFile(const QStringList &names, int lines, int lineLength = 40)
{
    QByteArray bytes;
    const int every = lines / qMax(1, names.size());
    for (int i = 0; i < lines; ++i) {
        QByteArray line;
        if (i % every == 0 && i / every < names.size())
            line = "export " + names.at(i / every).toUtf8() + "=/opt/old/value";
        else
            line = "alias l" + QByteArray::number(i) + "='ls -l --color=auto'";
        if (line.size() < lineLength)
            line += " # " + QByteArray(lineLength - line.size() - 3, 'c');
        bytes += line + '\n';
    }
    return bytes;
}

// 16,384 lines of 64 bytes, FOO's export in the middle.
inline QByteArray oneMebibyteWithFoo()
{
    return startupFile({}, 1 << 13, 63) + startupFile({QStringLiteral("FOO")}, 1 << 13, 63);
}
