#include "core/preview/surprises.h"

#include "core/preview/linediff.h"
#include "core/shell/characters.h"
#include "core/shell/linegrammar.h"
#include "core/shell/shelllexer.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using ShellCharacters::isNameChar;
using ShellLexer::startsWord;
using ShellLexer::wordEndAt;

// Where the run of name characters that ends at `end` starts.
int nameStart(const QString &line, int end)
{
    int start = end;
    while (start > 0 && isNameChar(line.at(start - 1)))
        --start;
    return start;
}

// The names assigned in the line from `from` on, outside comments.
QStringList assignedNames(const QString &line, int from = 0)
{
    QStringList names;
    for (int at = line.indexOf(QLatin1Char('='), from); at >= 0;
         at = line.indexOf(QLatin1Char('='), at + 1)) {
        const int start = nameStart(line, at);
        if (start < at && start >= from && startsWord(line, start) && wordEndAt(line, start) >= 0)
            names.append(line.mid(start, at - start));
    }
    return names;
}

QString lineText(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes.endsWith('\n') ? bytes.chopped(1) : bytes);
    return text.remove(QLatin1Char('\r'));
}

void addOnce(QStringList &list, const QString &name)
{
    if (!list.contains(name))
        list.append(name);
}

// "a", "a and b", "a, b and c".
QString joined(const QStringList &items)
{
    if (items.size() < 2)
        return items.value(0);
    return Surprises::tr("%1 and %2")
        .arg(items.mid(0, items.size() - 1).join(QStringLiteral(", ")), items.last());
}

// Whether a line of the file after the save sets the name outside a comment.
bool setsName(const QString &line, const QString &name)
{
    const QString needle = name + QLatin1Char('=');
    for (int at = line.indexOf(needle); at >= 0; at = line.indexOf(needle, at + 1)) {
        if (startsWord(line, at) && wordEndAt(line, at) >= 0)
            return true;
    }
    return false;
}

// Which of a list of names a line holds followed by "=", found from the
// line's "=" signs rather than by trying every name.
class NameFinder
{
public:
    explicit NameFinder(const QStringList &names)
    {
        for (int i = 0; i < names.size(); ++i) {
            if (!names.at(i).isEmpty() &&
                std::all_of(names.at(i).cbegin(), names.at(i).cend(), isNameChar))
                plain.insert(names.at(i), i);
            else
                odd.append(i);
        }
    }

    // Indices into the names, in their order; names that are no shell
    // names are always among them.
    QVector<int> in(const QString &line) const
    {
        QVector<int> found = odd;
        for (int at = line.indexOf(QLatin1Char('=')); at >= 0;
             at = line.indexOf(QLatin1Char('='), at + 1)) {
            // A name before "=" may be the end of a longer one.
            for (int start = nameStart(line, at); start < at; ++start) {
                const int index = plain.value(line.mid(start, at - start), -1);
                if (index >= 0 && !found.contains(index))
                    found.append(index);
            }
        }
        std::sort(found.begin(), found.end());
        return found;
    }

private:
    QHash<QString, int> plain;
    QVector<int> odd;
};

} // namespace

bool Surprises::isEmpty() const
{
    return otherNames.isEmpty() && commentedLines.isEmpty() && lostTexts.isEmpty() &&
           homelessNames.isEmpty();
}

Surprises Surprises::find(const QByteArray &before, const QByteArray &after,
                          const QStringList &savedNames, const QStringList &deletedNames)
{
    Surprises found;
    const QByteArrayList oldLines = LineDiff::splitLines(before);
    const QVector<LineDiff::Change> changes =
        LineDiff::changes(oldLines, LineDiff::splitLines(after));

    QStringList saved = savedNames;
    saved.removeDuplicates();
    QStringList deleted = deletedNames;
    deleted.removeDuplicates();
    QVector<LineGrammar::LineEdits> rewrites;
    for (const QString &name : saved)
        rewrites.append(LineGrammar::LineEdits(name));
    QVector<LineGrammar::LineEdits> blanks;
    for (const QString &name : deleted)
        blanks.append(LineGrammar::LineEdits(name));
    const NameFinder savedFinder(saved);
    const NameFinder deletedFinder(deleted);

    const auto commented = [&found](int line) {
        if (!found.commentedLines.contains(line))
            found.commentedLines.append(line);
    };
    for (const LineDiff::Change &change : changes) {
        for (int index = change.oldStart; index < change.oldStart + change.oldCount; ++index) {
            const QString text = lineText(oldLines.at(index));
            const int number = index + 1;
            for (int i : savedFinder.in(text)) {
                // The rewrite keeps the line up to where the assignment starts.
                QString rewritten = text;
                const QString assignment = saved.at(i) + QLatin1Char('=');
                if (rewrites.at(i).rewriteAssignment(rewritten, assignment) ==
                    LineGrammar::LineEdits::NoMatch)
                    continue;
                const int at = rewritten.size() - assignment.size();
                const int end = wordEndAt(text, at);
                if (end < 0)
                    commented(number);
                else if (at > 0 && isNameChar(text.at(at - 1)))
                    addOnce(found.otherNames,
                            text.mid(nameStart(text, at), at - nameStart(text, at)) + saved.at(i));
                else if (const QString rest = text.mid(end).trimmed(); !rest.isEmpty())
                    found.lostTexts.append({number, saved.at(i), rest});
            }
            for (int i : deletedFinder.in(text)) {
                QString blanked = text;
                if (!blanks.at(i).blankExport(blanked))
                    continue;
                const int at = blanked.size() - 1; // where "export" stood
                if (wordEndAt(text, at) < 0) {
                    commented(number);
                    continue;
                }
                for (const QString &name : assignedNames(text, at)) {
                    if (name != deleted.at(i))
                        addOnce(found.otherNames, name);
                }
            }
        }
    }
    std::sort(found.commentedLines.begin(), found.commentedLines.end());

    // A saved name with no line of its own is not set by this file at all.
    QSet<QString> plainMissing;
    QStringList oddMissing; // names with characters a shell name cannot have
    for (const QString &name : saved) {
        if (std::all_of(name.cbegin(), name.cend(), isNameChar))
            plainMissing.insert(name);
        else
            oddMissing.append(name);
    }
    const QByteArrayList newLines = LineDiff::splitLines(after);
    for (const QByteArray &bytes : newLines) {
        if (!bytes.contains('='))
            continue;
        const QString text = lineText(bytes);
        for (const QString &name : assignedNames(text))
            plainMissing.remove(name);
        oddMissing.erase(
            std::remove_if(oddMissing.begin(), oddMissing.end(),
                           [&text](const QString &name) { return setsName(text, name); }),
            oddMissing.end());
    }
    for (const QString &name : saved) {
        if (plainMissing.contains(name) || oddMissing.contains(name))
            found.homelessNames.append(name);
    }
    return found;
}

QStringList Surprises::sentences() const
{
    QStringList result;
    if (otherNames.size() == 1)
        result.append(tr("%1 also changes.").arg(otherNames.first()));
    else if (otherNames.size() > 1)
        result.append(tr("%1 also change.").arg(joined(otherNames)));
    if (commentedLines.size() == 1) {
        result.append(tr("A commented-out line changes: line %1.").arg(commentedLines.first()));
    } else if (commentedLines.size() > 1) {
        QStringList numbers;
        for (int line : commentedLines)
            numbers.append(QString::number(line));
        result.append(tr("Commented-out lines change: lines %1.").arg(joined(numbers)));
    }
    for (const LostText &lost : lostTexts)
        result.append(tr("Line %1 loses \"%2\", which follows the value of %3.")
                          .arg(QString::number(lost.line), lost.text, lost.name));
    for (const QString &name : homelessNames)
        result.append(
            tr("%1 is saved into no line of its own: this file will not set it.").arg(name));
    return result;
}
