#include "core/reach/etcenvironment.h"

#include <QFile>
#include <QFileInfo>

#include <cctype>

QList<EtcEnvironment::Entry> EtcEnvironment::parse(const QByteArray &bytes)
{
    QList<Entry> entries;
    const QList<QByteArray> lines = bytes.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const int first = i + 1;
        QByteArray text = lines.at(i);
        // A line ending in a backslash goes on in the next one, the
        // backslash turned into a space; a "#" ends it for good.
        while (!text.contains('#') && text.trimmed().endsWith('\\') && i + 1 < lines.size()) {
            text = text.left(text.lastIndexOf('\\')) + ' ' + lines.at(++i);
        }
        if (const int hash = text.indexOf('#'); hash >= 0)
            text.truncate(hash);
        int at = 0;
        while (at < text.size() && (text.at(at) == ' ' || text.at(at) == '\t'))
            ++at;
        text = text.mid(at);
        if (text.startsWith("export "))
            text = text.mid(7);
        const int equals = text.indexOf('=');
        if (equals <= 0)
            continue;
        const QByteArray name = text.left(equals);
        bool valid = true;
        for (const char c : name)
            valid = valid && (std::isalnum(uchar(c)) || c == '_');
        if (!valid)
            continue;
        QByteArray value = text.mid(equals + 1);
        if (value.endsWith('\r'))
            value.chop(1);
        if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
            value.back() == value.front())
            value = value.mid(1, value.size() - 2);
        entries.append({QString::fromUtf8(name), QString::fromUtf8(value), first});
    }
    return entries;
}

ReachResult EtcEnvironment::lookup(const QString &path, const QString &name)
{
    const QFileInfo info(path);
    if (!info.exists())
        return ReachResult::notSet();
    QFile file(path);
    // A FIFO would block the open, a folder reads as nothing.
    if (!info.isFile())
        return ReachResult::failed(tr("%1 cannot be read: it is not a regular file").arg(path));
    if (!file.open(QIODevice::ReadOnly))
        return ReachResult::failed(tr("%1 cannot be read: %2").arg(path, file.errorString()));
    const QByteArray bytes = file.readAll();
    if (bytes.size() != file.size())
        return ReachResult::failed(tr("%1 cannot be read: %2").arg(path, file.errorString()));
    const QList<Entry> entries = parse(bytes);
    for (auto it = entries.crbegin(); it != entries.crend(); ++it) {
        if (it->name == name)
            return ReachResult::set(it->value, path, it->line);
    }
    return ReachResult::notSet();
}
