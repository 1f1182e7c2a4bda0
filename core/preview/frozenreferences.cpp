#include "core/preview/frozenreferences.h"

#include "core/lookup/assignments.h"
#include "core/preview/linediff.h"

#include <QRegularExpression>

namespace {

QString lineText(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes.endsWith('\n') ? bytes.chopped(1) : bytes)
        .remove(QLatin1Char('\r'));
}

// The value a line gives the name outside comments, if it gives one.
bool valueOf(const QString &line, const QString &name, QString *value)
{
    const Assignments::Match match = Assignments::match(line, name, Assignments::Syntax::Shell);
    if (!match.found || !match.hasValue || match.commented)
        return false;
    *value = match.value;
    return true;
}

} // namespace

QList<FrozenReference> FrozenReference::find(const QByteArray &before, const QByteArray &after,
                                             const QStringList &savedNames)
{
    static const QRegularExpression reference(
        QStringLiteral("\\$(?:\\{([A-Za-z_][A-Za-z0-9_]*)\\}|([A-Za-z_][A-Za-z0-9_]*))"));
    QList<FrozenReference> found;
    const QByteArrayList oldLines = LineDiff::splitLines(before);
    const QByteArrayList newLines = LineDiff::splitLines(after);
    for (const LineDiff::Change &change : LineDiff::changes(oldLines, newLines)) {
        for (const QString &name : savedNames) {
            QString written;
            bool writes = false;
            for (int i = change.newStart; i < change.newStart + change.newCount; ++i)
                writes = valueOf(lineText(newLines.at(i)), name, &written) || writes;
            if (!writes)
                continue;
            for (int i = change.oldStart; i < change.oldStart + change.oldCount; ++i) {
                QString old;
                if (!valueOf(lineText(oldLines.at(i)), name, &old))
                    continue;
                for (auto it = reference.globalMatch(old); it.hasNext();) {
                    const QRegularExpressionMatch match = it.next();
                    const QString variable =
                        match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
                    const bool kept = written.contains(QLatin1Char('$') + variable) ||
                                      written.contains(QStringLiteral("${") + variable + '}');
                    if (!kept)
                        found.append({i + 1, match.captured(0), written});
                }
            }
        }
    }
    return found;
}
