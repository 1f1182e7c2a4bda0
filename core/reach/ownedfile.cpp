#include "core/reach/ownedfile.h"

#include <QFileInfo>
#include <QList>
#include <QRegularExpression>

namespace {

struct Line
{
    int start = 0;
    int length = 0; // without the line end
    int end = 0;    // after the line end
};

QList<Line> linesOf(const QByteArray &bytes)
{
    QList<Line> lines;
    for (int start = 0; start < bytes.size();) {
        const int newline = bytes.indexOf('\n', start);
        const int end = newline < 0 ? bytes.size() : newline + 1;
        int length = (newline < 0 ? bytes.size() : newline) - start;
        if (length > 0 && bytes.at(start + length - 1) == '\r')
            --length;
        lines.append({start, length, end});
        start = end;
    }
    return lines;
}

bool continues(const QByteArray &text)
{
    return text.endsWith('\\');
}

} // namespace

QString OwnedFile::path(Kind kind, const QString &configHome)
{
    return configHome + (kind == Kind::EnvironmentD
                             ? QStringLiteral("/environment.d/60-orv-admin-env.conf")
                             : QStringLiteral("/fish/conf.d/orv-admin-env.fish"));
}

QByteArray OwnedFile::header()
{
    return "# This file belongs to the Environment Variables Editor (orv-admin-env), which "
           "replaces its lines.";
}

OwnedFile::Edit OwnedFile::withLine(Kind kind, const std::optional<QByteArray> &current,
                                    const QString &name, const QString &line)
{
    const QByteArray newLine = line.toUtf8();
    if (!current || current->isEmpty())
        return {header() + '\n' + newLine + '\n', QString()};

    const QByteArray &bytes = *current;
    const QString fileName = QFileInfo(path(kind, QString())).fileName();
    const QRegularExpression sets(
        kind == Kind::EnvironmentD
            ? QStringLiteral("^[ \\t]*%1=").arg(QRegularExpression::escape(name))
            : QStringLiteral("^[ \\t]*set([ \\t]+-[^ \\t]*)*[ \\t]+%1([ \\t]|$)")
                  .arg(QRegularExpression::escape(name)));
    const QList<Line> lines = linesOf(bytes);
    for (int i = lines.size() - 1; i >= 0; --i) {
        const Line &found = lines.at(i);
        const QByteArray text = bytes.mid(found.start, found.length);
        if (!sets.match(QString::fromUtf8(text)).hasMatch())
            continue;
        if (continues(text))
            return {QByteArray(), tr("line %1 of %2 continues on the next line, so it is left "
                                     "for you to change")
                                      .arg(i + 1)
                                      .arg(fileName)};
        return {bytes.left(found.start) + newLine + bytes.mid(found.start + found.length),
                QString()};
    }
    const Line &last = lines.last();
    if (continues(bytes.mid(last.start, last.length)))
        return {QByteArray(),
                tr("the last line of %1 ends in a backslash, which would join the new line to it")
                    .arg(fileName)};
    return {bytes + (bytes.endsWith('\n') ? "" : "\n") + newLine + '\n', QString()};
}
