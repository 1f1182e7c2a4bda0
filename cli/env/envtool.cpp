#include "cli/env/envtool.h"

#include "cli/backups/backupstool.h"
#include "core/export/ansibleplaybook.h"
#include "core/export/dotenv.h"
#include "core/lookup/whereset.h"
#include "core/preview/changepreview.h"
#include "core/preview/linediff.h"
#include "core/preview/sideeffects.h"
#include "core/save/savecommit.h"
#include "core/shell/characters.h"
#include "core/variables/record.h"
#include "core/variables/variabletable.h"

#include <QFile>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

void print(QIODevice *device, const QString &text)
{
    device->write(text.toLocal8Bit());
}

// The arguments with the options that hold for the whole call taken out.
struct Call
{
    QStringList words;
    bool dryRun = false;
    bool yes = false;
};

Call callOf(const QStringList &arguments)
{
    Call call;
    for (const QString &argument : arguments) {
        if (argument == QLatin1String("--dry-run"))
            call.dryRun = true;
        else if (argument == QLatin1String("--yes"))
            call.yes = true;
        else
            call.words.append(argument);
    }
    return call;
}

int wrong(QIODevice *err, const QString &why)
{
    print(err, why + QLatin1Char('\n'));
    print(err, EnvTool::tr("Try \"orv-admin-env-cli --help\".\n"));
    return EnvTool::BadArgument;
}

// Says what the table could not read; true when something was said.
void sayUnreadable(const VariableTable &table, QIODevice *err)
{
    for (const Failure &failure : table.unreadable())
        print(err, EnvTool::tr("%1 cannot be read: %2\n").arg(failure.path, failure.reason));
}

int list(const VariableTable &table, bool json, QIODevice *out)
{
    if (json) {
        QJsonArray array;
        for (const QStringList &row : table.rows()) {
            array.append(QJsonObject{{QStringLiteral("name"), row.at(Record::Variable)},
                                     {QStringLiteral("value"), row.at(Record::Value)},
                                     {QStringLiteral("origin"), row.at(Record::Origin)},
                                     {QStringLiteral("description"), row.at(Record::Description)},
                                     {QStringLiteral("critical"), !row.at(Record::Vip).isEmpty()}});
        }
        out->write(QJsonDocument(array).toJson());
        return EnvTool::Success;
    }
    for (const QStringList &row : table.rows())
        print(out,
              QStringList{row.at(Record::Variable), row.at(Record::Value), row.at(Record::Origin),
                          row.at(Record::Description),
                          row.at(Record::Vip).isEmpty() ? QString() : QStringLiteral("critical")}
                      .join(QLatin1Char('\t')) +
                  QLatin1Char('\n'));
    return EnvTool::Success;
}

int where(const VariableTable &table, const QString &name, QIODevice *out)
{
    const QString home = table.session().homeDir;
    const QList<WhereSet::File> files = WhereSet::startupFiles(
        table.session().shellKind, home, table.systemFiles(), table.userFiles());
    for (const WhereSet::File &file : files) {
        for (const WhereSet::Line &line : WhereSet::scanFile(file, name)) {
            const QString place = line.readable
                                      ? line.path + QLatin1Char(':') + QString::number(line.number)
                                      : line.path;
            print(out, place + QStringLiteral(": ") + line.text + QLatin1Char('\n'));
        }
    }
    return EnvTool::Success;
}

// The set and unset clauses of the call, applied to the table in order.
int applyChanges(VariableTable &table, const QStringList &words, QIODevice *err)
{
    for (int i = 0; i < words.size();) {
        const QString &command = words.at(i);
        const QString name = words.value(i + 1);
        if (command == QLatin1String("unset")) {
            if (i + 1 >= words.size())
                return wrong(err, EnvTool::tr("unset needs a NAME"));
            if (!table.unset(name))
                return wrong(err, EnvTool::tr("%1 is not a variable of this session").arg(name));
            i += 2;
            continue;
        }
        if (command != QLatin1String("set") || i + 2 >= words.size())
            return wrong(err, EnvTool::tr("Expected \"set NAME VALUE\" or \"unset NAME\", not "
                                          "\"%1\"")
                                  .arg(words.mid(i).join(QLatin1Char(' '))));
        if (!ShellCharacters::isName(name))
            return wrong(err, EnvTool::tr("%1 is not a variable name: letters, digits and \"_\", "
                                          "not starting with a digit")
                                  .arg(name));
        const QString value = words.at(i + 2);
        i += 3;
        bool system = false;
        bool critical = false;
        std::optional<QString> description;
        for (; i < words.size() && words.at(i).startsWith(QLatin1String("--")); ++i) {
            if (words.at(i) == QLatin1String("--system")) {
                system = true;
            } else if (words.at(i) == QLatin1String("--critical")) {
                critical = true;
            } else if (words.at(i) == QLatin1String("--description") && i + 1 < words.size()) {
                description = words.at(++i);
            } else {
                return wrong(err, EnvTool::tr("Unknown option: %1").arg(words.at(i)));
            }
        }
        if (system && !table.session().rootSession)
            return wrong(err, EnvTool::tr("--system: only a root session writes the system-wide "
                                          "start-up file"));
        table.set(name, value, description ? &*description : nullptr, critical, system);
    }
    return EnvTool::Success;
}

// The plain-word warnings of the preview, and the diffs on the output.
void preview(const SaveInput &input, const VariableTable &table, const SideEffects &effects,
             QIODevice *out, QIODevice *err)
{
    const QString home = table.session().homeDir;
    const ChangePreview change = ChangePreview::of(input, table.session().shellKind, home);
    for (const ChangePreview::File &file : change.files)
        out->write(LineDiff::unified(file.before, file.after, file.path, file.path));
    QStringList warnings = change.notices;
    if (!effects.isEmpty())
        warnings.append(effects.sentence(home));
    for (const ChangePreview::File &file : change.files) {
        for (const QString &sentence : file.surprises.sentences())
            warnings.append(WhereSet::displayPath(file.path, home) + QStringLiteral(": ") +
                            sentence);
        if (file.check.outcome == ShellCheck::Fails)
            warnings.append(WhereSet::displayPath(file.path, home) + QStringLiteral(": ") +
                            file.check.sentence());
    }
    for (const QString &warning : qAsConst(warnings))
        print(err, warning + QLatin1Char('\n'));
}

int save(VariableTable &table, const Call &call, QIODevice *out, QIODevice *err)
{
    const SaveInput input = table.saveInput();
    const SavePlan plan = planSave(input);
    const SideEffects effects = SideEffects::of(plan);
    if (call.dryRun) {
        preview(input, table, effects, out, err);
        return EnvTool::Success;
    }
    for (const SavePlan::Refusal &refusal : plan.refusals)
        return wrong(err, EnvTool::tr("The value of %1 cannot be written into a start-up file: "
                                      "%2. Nothing was saved.")
                              .arg(refusal.name, refusal.reason));
    if (!effects.isEmpty() && !call.yes) {
        print(err, effects.sentence(table.session().homeDir) + QLatin1Char('\n'));
        print(err, EnvTool::tr("Nothing was saved: run again with --yes to save anyway, or with "
                               "--dry-run to see every line it changes.\n"));
        return EnvTool::BadArgument;
    }
    const SaveReport report = commitSave(plan);
    for (const SaveReport::Problem &problem : report.problems)
        print(err, EnvTool::tr("%1: cannot save %2: %3\n")
                       .arg(problem.failure.path, problem.name, problem.failure.reason));
    for (const Failure &failure : report.withoutCopies)
        print(err, EnvTool::tr("Saved %1 without a copy: %2\n").arg(failure.path, failure.reason));
    for (const int index : plan.writeOrder()) {
        if (report.complete())
            print(out, EnvTool::tr("Saved %1\n").arg(plan.files.at(index).path));
    }
    return report.complete() ? EnvTool::Success : EnvTool::FileError;
}

int exportTo(VariableTable &table, const QString &format, const QStringList &names, QIODevice *out,
             QIODevice *err)
{
    for (const QString &name : names) {
        if (table.rowOf(name) < 0)
            return wrong(err, EnvTool::tr("%1 is not a variable of this session").arg(name));
    }
    QList<QStringList> rows;
    for (const QStringList &row : table.rows()) {
        if (names.isEmpty() || names.contains(row.at(Record::Variable)))
            rows.append(row);
    }
    if (format == QLatin1String("env")) {
        for (const QStringList &row : qAsConst(rows))
            print(out, DotEnv::line(row.at(Record::Variable), row.at(Record::Value)) +
                           QLatin1Char('\n'));
    } else if (format == QLatin1String("json")) {
        QJsonObject object;
        for (const QStringList &row : qAsConst(rows))
            object.insert(row.at(Record::Variable), row.at(Record::Value));
        out->write(QJsonDocument(object).toJson());
    } else if (format == QLatin1String("ansible")) {
        if (names.isEmpty())
            return wrong(err, EnvTool::tr("export --format ansible needs the NAMEs to set"));
        // The save that writes these variables with their values here.
        for (const QString &name : names)
            table.set(name, table.rows().at(table.rowOf(name)).at(Record::Value), nullptr, false,
                      false);
        const SaveInput input = table.saveInput();
        out->write(AnsiblePlaybook::of(planSave(input), input, table.session().homeDir));
    } else {
        return wrong(err, EnvTool::tr("Unknown format: %1").arg(format));
    }
    return EnvTool::Success;
}

int import(VariableTable &table, const QString &path, const Call &call, QIODevice *out,
           QIODevice *err)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        print(err, EnvTool::tr("%1 cannot be read: %2\n").arg(path, file.errorString()));
        return EnvTool::FileError;
    }
    const Result<QList<DotEnv::Entry>> entries = DotEnv::parse(file.readAll(), path);
    if (!entries)
        return wrong(err, entries.failure().path + QStringLiteral(": ") + entries.reason());
    for (const DotEnv::Entry &entry : entries.value())
        table.set(entry.name, entry.value, nullptr, false, false);
    return save(table, call, out, err);
}

} // namespace

QString EnvTool::usage()
{
    return tr("Usage: orv-admin-env-cli list [--json]\n"
              "       orv-admin-env-cli get NAME\n"
              "       orv-admin-env-cli where NAME\n"
              "       orv-admin-env-cli [--dry-run] [--yes] set NAME VALUE [--system]\n"
              "                         [--description TEXT] [--critical] [set ...] [unset NAME]\n"
              "       orv-admin-env-cli [--dry-run] [--yes] unset NAME [set ...] [unset ...]\n"
              "       orv-admin-env-cli export --format env|json|ansible [NAME...]\n"
              "       orv-admin-env-cli [--dry-run] [--yes] import FILE.env\n"
              "       orv-admin-env-cli backups list|diff|restore ...\n"
              "\n"
              "The Environment Variables Editor from a shell: the same variables, start-up\n"
              "files, rules and safe saves as its window.\n"
              "\n"
              "  list         the variables of this session: name, value, origin file,\n"
              "               description and \"critical\", separated by tabs (--json: JSON)\n"
              "  get NAME     the variable's value\n"
              "  where NAME   every line of the start-up files that sets it, one a line\n"
              "  set, unset   changes, as many as given, written as one save\n"
              "  export       the variables as .env lines, as JSON, or as an Ansible\n"
              "               playbook that makes the same change on any machine\n"
              "  import       sets every NAME=VALUE of a .env file, as one save\n"
              "  backups      the copies of the start-up files (see orv-admin-env-backups)\n"
              "  --dry-run    prints the unified diff of every file the save would write,\n"
              "               and its warnings on the error output; writes nothing\n"
              "  --yes        saves even when the save also changes variables not named\n"
              "  --help       this text\n"
              "\n"
              "Exit status: 0 done, 1 a file could not be read or written (nothing changed\n"
              "in it), 2 wrong arguments or a refused change.\n");
}

int EnvTool::run(const QStringList &arguments, QIODevice *out, QIODevice *err)
{
    const Call call = callOf(arguments);
    const QString command = call.words.value(0);
    const QStringList rest = call.words.mid(1);
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        print(out, usage());
        return Success;
    }
    if (command == QLatin1String("backups"))
        return BackupsTool::run(rest, out, err);
    if (command.isEmpty())
        return wrong(err, tr("No command given."));

    VariableTable table;
    sayUnreadable(table, err);
    if (command == QLatin1String("list") &&
        (rest.isEmpty() || rest == QStringList{QStringLiteral("--json")}))
        return list(table, !rest.isEmpty(), out);
    if ((command == QLatin1String("get") || command == QLatin1String("where")) &&
        rest.size() == 1) {
        if (command == QLatin1String("where"))
            return where(table, rest.first(), out);
        const int row = table.rowOf(rest.first());
        if (row < 0)
            return wrong(err, tr("%1 is not a variable of this session").arg(rest.first()));
        print(out, table.rows().at(row).at(Record::Value) + QLatin1Char('\n'));
        return Success;
    }
    if (command == QLatin1String("set") || command == QLatin1String("unset")) {
        const int applied = applyChanges(table, call.words, err);
        return applied == Success ? save(table, call, out, err) : applied;
    }
    if (command == QLatin1String("export") && rest.size() >= 2 &&
        rest.first() == QLatin1String("--format"))
        return exportTo(table, rest.at(1), rest.mid(2), out, err);
    if (command == QLatin1String("import") && rest.size() == 1)
        return import(table, rest.first(), call, out, err);
    const QStringList commands{QStringLiteral("list"), QStringLiteral("get"),
                               QStringLiteral("where"), QStringLiteral("export"),
                               QStringLiteral("import")};
    return wrong(err, commands.contains(command) ? tr("Wrong arguments for %1.").arg(command)
                                                 : tr("Unknown command: %1").arg(command));
}
