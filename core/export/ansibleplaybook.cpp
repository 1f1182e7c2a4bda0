#include "core/export/ansibleplaybook.h"

#include "core/shell/linegrammar.h"
#include "core/variables/record.h"

#include <QHash>
#include <QRegularExpression>

namespace AnsiblePlaybook {

namespace {

// One lineinfile task as the module carries it out, on the file's lines
// (each with its "\n", the last one maybe without).
struct LineTask
{
    enum Kind { Replace, Blank, Prepend } kind;
    QString name;
    QByteArray line; // Replace: NAME=VALUE; Prepend: export NAME=VALUE
};

QByteArrayList linesOf(const QByteArray &bytes)
{
    QByteArrayList lines;
    for (int start = 0; start < bytes.size();) {
        const int end = bytes.indexOf('\n', start);
        lines.append(bytes.mid(start, end < 0 ? -1 : end + 1 - start));
        start = end < 0 ? bytes.size() : end + 1;
    }
    return lines;
}

QByteArray withoutLineEnd(const QByteArray &line)
{
    return line.endsWith('\n') ? line.chopped(1) : line;
}

// What lineinfile does: with backrefs it rewrites the last matching line and
// leaves the file alone when none matches; without, it puts the line first
// unless a line is exactly it.
QByteArray carryOut(const QByteArray &bytes, const LineTask &task)
{
    QByteArrayList lines = linesOf(bytes);
    if (task.kind == LineTask::Prepend) {
        for (const QByteArray &line : qAsConst(lines)) {
            if (withoutLineEnd(line) == task.line)
                return bytes;
        }
        return task.line + '\n' + bytes;
    }
    const QByteArray needle = task.name.toUtf8() + '=';
    for (int i = lines.size() - 1; i >= 0; --i) {
        const QByteArray text = withoutLineEnd(lines.at(i));
        int at = text.indexOf(needle);
        if (task.kind == LineTask::Blank) {
            const int keyword = text.indexOf("export");
            at = keyword >= 0 && text.indexOf(needle, keyword + 6) >= 0 ? keyword : -1;
        }
        if (at < 0)
            continue;
        lines[i] =
            text.left(at) + (task.kind == LineTask::Blank ? QByteArray(" ") : task.line) + '\n';
        return lines.join();
    }
    return bytes;
}

QString quoted(const QString &text)
{
    return QLatin1Char('\'') + QString(text).replace(QLatin1Char('\''), QStringLiteral("''")) +
           QLatin1Char('\'');
}

QString shownPath(const QString &path, const QString &home)
{
    if (!home.isEmpty() && path.startsWith(home + QLatin1Char('/')))
        return QLatin1Char('~') + path.mid(home.size());
    return path;
}

QString taskText(const LineTask &task, const QString &path)
{
    const QString name = QRegularExpression::escape(task.name);
    const QString line = QString::fromUtf8(task.line);
    QString text = QStringLiteral("    - name: %1\n      ansible.builtin.lineinfile:\n"
                                  "        path: %2\n")
                       .arg(quoted(task.name + QStringLiteral(" in ") + path), quoted(path));
    switch (task.kind) {
    case LineTask::Replace:
        text += QStringLiteral("        regexp: %1\n        line: %2\n        backrefs: true\n")
                    .arg(quoted(QStringLiteral("^(.*?)") + name + QStringLiteral("=.*$")),
                         quoted(QStringLiteral("\\g<1>") +
                                QString(line).replace(QLatin1Char('\\'), QStringLiteral("\\\\"))));
        break;
    case LineTask::Blank:
        text +=
            QStringLiteral("        regexp: %1\n        line: '\\g<1> '\n        backrefs: true\n")
                .arg(quoted(QStringLiteral("^(.*?)export.*") + name + QStringLiteral("=.*$")));
        break;
    case LineTask::Prepend:
        text +=
            QStringLiteral("        line: %1\n        insertbefore: BOF\n        create: true\n")
                .arg(quoted(line));
        break;
    }
    return text + QStringLiteral("        backup: true\n");
}

QString blockText(const SavePlan::File &file, const QList<LineTask> &tasks, const QString &path)
{
    QString block;
    for (const LineTask &task : tasks) {
        if (task.kind == LineTask::Prepend)
            block += QStringLiteral("          ") + QString::fromUtf8(task.line) + '\n';
    }
    QString text = QStringLiteral("    - name: %1\n      ansible.builtin.blockinfile:\n"
                                  "        path: %2\n"
                                  "        marker: '# {mark} orv-admin-env: Environment Variables "
                                  "Editor'\n        backup: true\n")
                       .arg(quoted(QStringLiteral("variables in ") + path), quoted(path));
    if (!file.existed)
        text += QStringLiteral("        create: true\n");
    if (block.isEmpty())
        return text + QStringLiteral("        state: absent\n");
    return text + QStringLiteral("        block: |\n") + block;
}

} // namespace

QByteArray of(const SavePlan &plan, const SaveInput &input, const QString &home, QList<Task> *tasks)
{
    QHash<QString, QString> values;
    for (const QStringList &row : input.rows) {
        if (!row.value(Record::Previous).isEmpty())
            values.insert(row.value(Record::Variable),
                          LineGrammar::quoteValue(row.value(Record::Value)));
    }
    QString text =
        QStringLiteral("# Made by orv-admin-env-cli: makes on any machine the change that the\n"
                       "# Environment Variables Editor would save here.\n"
                       "- name: Environment variables of the Environment Variables Editor\n"
                       "  hosts: all\n  gather_facts: false\n  tasks:\n");
    for (const int index : plan.writeOrder()) {
        const SavePlan::File &file = plan.files.at(index);
        QList<LineTask> lineTasks;
        for (const QString &name : file.savedNames) {
            const QByteArray assignment = (name + QLatin1Char('=') + values.value(name)).toUtf8();
            if (file.existed)
                lineTasks.append({LineTask::Replace, name, assignment});
            lineTasks.append({LineTask::Prepend, name, "export " + assignment});
        }
        for (const QString &name : file.deletedNames)
            lineTasks.append({LineTask::Blank, name, QByteArray()});
        QByteArray bytes = file.before;
        for (const LineTask &task : qAsConst(lineTasks))
            bytes = carryOut(bytes, task);
        const bool lineByLine = bytes == file.after;
        const QString path = shownPath(file.path, home);
        if (lineByLine) {
            for (const LineTask &task : qAsConst(lineTasks))
                text += taskText(task, path);
        } else {
            text += blockText(file, lineTasks, path);
        }
        if (tasks)
            tasks->append({file.path, lineByLine});
    }
    return text.toUtf8();
}

} // namespace AnsiblePlaybook
