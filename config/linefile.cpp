#include "linefile.h"

#include <QFile>
#include <QFileInfo>

LineFile LineFile::fromBytes(const QByteArray &bytes)
{
    LineFile file;
    int start = 0;
    while (start < bytes.size()) {
        int end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        int length = end - start;
        if (length > 0 && bytes.at(end - 1) == '\r')
            --length;
        const QByteArray line = bytes.mid(start, length);
        QString text = QString::fromUtf8(line.constData(), line.size());
        text.remove(QLatin1Char('\r'));
        file.raw.append(line);
        file.text.append(text);
        start = end + 1;
    }
    return file;
}

QByteArray LineFile::toBytes(const QStringList &lines) const
{
    QByteArray bytes;
    const int added = lines.size() - text.size();
    for (int i = 0; i < lines.size(); ++i) {
        const int original = i - added;
        if (original >= 0 && original < text.size() && lines.at(i) == text.at(original))
            bytes += raw.at(original);
        else
            bytes += lines.at(i).toUtf8();
        bytes += '\n';
    }
    return bytes;
}

bool openForRewrite(QFile &file)
{
    const QFileInfo info(file.fileName());
    if (info.exists() && !info.isFile())
        return false;
    return file.open(QIODevice::ReadWrite);
}

QByteArray readContents(QFile &file)
{
    file.seek(0);
    return file.readAll();
}

void replaceContents(QFile &file, const QByteArray &bytes)
{
    file.resize(0);
    file.seek(0);
    file.write(bytes);
    file.close();
}
