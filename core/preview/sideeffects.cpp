#include "core/preview/sideeffects.h"

#include "core/lookup/assignments.h"
#include "core/lookup/whereset.h"
#include "core/preview/linediff.h"
#include "core/shell/characters.h"
#include "core/shell/shelllexer.h"

#include <QSet>

namespace {

QStringList decodedLines(const QByteArrayList &lines, int from, int count)
{
    QStringList texts;
    for (int i = from; i < from + count; ++i) {
        QByteArray bytes = lines.at(i);
        if (bytes.endsWith('\n'))
            bytes.chop(1);
        texts.append(QString::fromUtf8(bytes).remove(QLatin1Char('\r')));
    }
    return texts;
}

// The names a line may assign: a run of name characters that starts a word
// and is followed by "=".
void addAssignedNames(const QString &line, QStringList &names)
{
    for (int at = line.indexOf(QLatin1Char('=')); at >= 0;
         at = line.indexOf(QLatin1Char('='), at + 1)) {
        int start = at;
        while (start > 0 && ShellCharacters::isNameChar(line.at(start - 1)))
            --start;
        const QString name = line.mid(start, at - start);
        if (ShellCharacters::isName(name) && ShellLexer::startsWord(line, start) &&
            !names.contains(name))
            names.append(name);
    }
}

// The value the lines leave a name with, outside comments, and the line (in
// `lines`, from 0) that sets it last; -1 when none does.
int lastSetting(const QStringList &lines, const QString &name, QString *value)
{
    int last = -1;
    for (int i = 0; i < lines.size(); ++i) {
        const Assignments::Match match =
            Assignments::match(lines.at(i), name, Assignments::Syntax::Shell);
        if (match.found && match.hasValue && !match.commented) {
            last = i;
            *value = match.value;
        }
    }
    return last;
}

// "a", "a and b", "a, b and c".
QString joined(const QStringList &items)
{
    if (items.size() < 2)
        return items.value(0);
    return SideEffects::tr("%1 and %2")
        .arg(items.mid(0, items.size() - 1).join(QStringLiteral(", ")), items.last());
}

} // namespace

SideEffects SideEffects::of(const SavePlan &plan)
{
    SideEffects effects;
    for (const int index : plan.writeOrder()) {
        const SavePlan::File &file = plan.files.at(index);
        QSet<QString> asked(file.savedNames.cbegin(), file.savedNames.cend());
        asked.unite(QSet<QString>(file.deletedNames.cbegin(), file.deletedNames.cend()));
        const QByteArrayList oldLines = LineDiff::splitLines(file.before);
        const QByteArrayList newLines = LineDiff::splitLines(file.after);
        QSet<QString> reported;
        for (const LineDiff::Change &change : LineDiff::changes(oldLines, newLines)) {
            const QStringList before = decodedLines(oldLines, change.oldStart, change.oldCount);
            const QStringList after = decodedLines(newLines, change.newStart, change.newCount);
            QStringList names;
            for (int i = 0; i < before.size(); ++i) {
                bool commented = false;
                ShellLexer::skipCommentMarks(before.at(i), &commented);
                if (commented)
                    effects.commentedLines.append({file.path, change.oldStart + i + 1});
                addAssignedNames(before.at(i), names);
            }
            for (const QString &line : after)
                addAssignedNames(line, names);
            for (const QString &name : qAsConst(names)) {
                if (asked.contains(name) || reported.contains(name))
                    continue;
                QString oldValue, newValue;
                const bool wasSet = lastSetting(before, name, &oldValue) >= 0;
                const int line = lastSetting(after, name, &newValue);
                if (wasSet == (line >= 0) && oldValue == newValue)
                    continue;
                reported.insert(name);
                effects.variables.append({file.path, line >= 0 ? change.newStart + line + 1 : 0,
                                          name, newValue, line >= 0});
            }
        }
    }
    return effects;
}

QString SideEffects::sentence(const QString &home) const
{
    // Names that end with the same value are said together.
    QStringList values;
    QList<QStringList> namesByValue;
    QStringList unset;
    for (const Variable &variable : variables) {
        if (!variable.isSet) {
            if (!unset.contains(variable.name))
                unset.append(variable.name);
            continue;
        }
        int at = values.indexOf(variable.value);
        if (at < 0) {
            at = values.size();
            values.append(variable.value);
            namesByValue.append(QStringList());
        }
        if (!namesByValue[at].contains(variable.name))
            namesByValue[at].append(variable.name);
    }
    QStringList parts;
    for (int i = 0; i < values.size(); ++i)
        parts.append(tr("changes %1 to %2").arg(joined(namesByValue.at(i)), values.at(i)));
    if (!unset.isEmpty())
        parts.append(tr("removes %1").arg(joined(unset)));
    if (commentedLines.size() == 1) {
        parts.append(tr("rewrites the commented-out line %1 of %2")
                         .arg(commentedLines.first().line)
                         .arg(WhereSet::displayPath(commentedLines.first().path, home)));
    } else if (!commentedLines.isEmpty()) {
        QStringList where;
        for (const CommentedLine &line : commentedLines)
            where.append(
                tr("line %1 of %2").arg(line.line).arg(WhereSet::displayPath(line.path, home)));
        parts.append(tr("rewrites the commented-out %1").arg(joined(where)));
    }
    if (parts.isEmpty())
        return QString();
    return tr("This save also %1.").arg(joined(parts));
}
