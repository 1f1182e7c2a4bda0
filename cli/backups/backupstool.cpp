#include "cli/backups/backupstool.h"

#include "core/files/backups.h"
#include "core/preview/linediff.h"
#include "core/save/restore.h"

#include <QFileInfo>
#include <QIODevice>

namespace {

void print(QIODevice *device, const QString &text)
{
    device->write(text.toLocal8Bit());
}

int list(const QStringList &arguments, QIODevice *out, QIODevice *err)
{
    const QString file =
        arguments.isEmpty() ? QString() : QFileInfo(arguments.first()).absoluteFilePath();
    const Result<QList<Backups::Copy>> listed = Backups::list(file);
    if (!listed) {
        print(err, BackupsTool::tr("Cannot read the folder of copies %1: %2\n")
                       .arg(Backups::directory(), listed.reason()));
        return BackupsTool::Unreadable;
    }
    const QList<Backups::Copy> &copies = listed.value();
    for (const Backups::Copy &copy : copies)
        print(out, QStringLiteral("%1\t%2\t%3\t%4\n")
                       .arg(Restore::timeText(copy.time), QString::number(copy.size), copy.original,
                            QFileInfo(copy.path).fileName()));
    if (copies.isEmpty())
        print(err, file.isEmpty()
                       ? BackupsTool::tr("No copies are kept in %1.\n").arg(Backups::directory())
                       : BackupsTool::tr("No copies of %1 are kept in %2.\n")
                             .arg(file, Backups::directory()));
    return BackupsTool::Success;
}

// A copy named as list prints it, or by its path.
bool findCopy(const QString &argument, Backups::Copy *copy, QIODevice *err)
{
    copy->path = argument.contains(QLatin1Char('/'))
                     ? argument
                     : Backups::directory() + QLatin1Char('/') + argument;
    if (!Backups::parseFileName(QFileInfo(copy->path).fileName(), copy)) {
        print(
            err,
            BackupsTool::tr("%1 is not the name of a copy; \"list\" shows them.\n").arg(argument));
        return false;
    }
    // Only the user's own copies: never a file someone else placed, nor a link.
    const Result<QByteArray> bytes = Backups::readCopy(copy->path);
    if (!bytes && bytes.failure().step == Failure::Step::Check) {
        print(err, BackupsTool::tr("%1 is not a copy that can be used: %2\n")
                       .arg(argument, bytes.reason()));
        return false;
    }
    return true;
}

int diff(const Backups::Copy &copy, QIODevice *out, QIODevice *err)
{
    const Result<QByteArray> kept = Backups::readCopy(copy.path);
    if (!kept) {
        print(err,
              BackupsTool::tr("The copy %1 cannot be read: %2\n").arg(copy.path, kept.reason()));
        return BackupsTool::Unreadable;
    }
    const Result<Restore::Contents> now = Restore::read(copy.original);
    if (!now) {
        print(err, BackupsTool::tr("%1 cannot be read: %2\n").arg(copy.original, now.reason()));
        return BackupsTool::Unreadable;
    }
    const QByteArray text = LineDiff::unified(now->bytes, kept.value(), copy.original, copy.path);
    if (text.isEmpty())
        print(err, BackupsTool::tr("%1 is the same as the copy.\n").arg(copy.original));
    out->write(text);
    return BackupsTool::Success;
}

int restore(const Backups::Copy &copy, QIODevice *out, QIODevice *err)
{
    const Result<QString> result = Restore::copy(copy.path, copy.original);
    if (!result) {
        print(err, Restore::sentence(result.failure()) + QLatin1Char('\n'));
        return BackupsTool::RestoreFailed;
    }
    print(out, BackupsTool::tr("Restored %1 from its copy of %2.\n")
                   .arg(copy.original, Restore::timeText(copy.time)));
    if (!result->isEmpty())
        print(out, BackupsTool::tr("What it held before is kept in %1.\n").arg(result.value()));
    return BackupsTool::Success;
}

} // namespace

QString BackupsTool::usage()
{
    return tr("Usage: orv-admin-env-backups list [FILE]\n"
              "       orv-admin-env-backups diff COPY\n"
              "       orv-admin-env-backups restore COPY\n"
              "\n"
              "Lists, compares and restores the copies that the Environment Variables Editor\n"
              "keeps of a start-up file each time it rewrites it.\n"
              "\n"
              "  list [FILE]   the copies, newest first, one a line: time, size in bytes,\n"
              "                start-up file and copy, separated by tabs; only those of\n"
              "                FILE when it is given\n"
              "  diff COPY     what restoring COPY would change in its file (unified diff)\n"
              "  restore COPY  writes COPY back into its file in place, after keeping a\n"
              "                copy of the file as it is now, so a restore can be undone\n"
              "  --help        this text\n"
              "\n"
              "COPY is a copy's name as list prints it, or the path of a copy.\n"
              "The copies are kept in %1.\n"
              "\n"
              "Exit status: 0 done, 1 a copy, a file or the folder of copies cannot be read,\n"
              "2 wrong arguments, 3 the file could not be restored (it is left as it was).\n")
        .arg(Backups::directory());
}

int BackupsTool::run(const QStringList &arguments, QIODevice *out, QIODevice *err)
{
    const QString command = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        print(out, usage());
        return Success;
    }
    if (command == QLatin1String("list") && rest.size() <= 1)
        return list(rest, out, err);
    if ((command == QLatin1String("diff") || command == QLatin1String("restore")) &&
        rest.size() == 1) {
        Backups::Copy copy;
        if (!findCopy(rest.first(), &copy, err))
            return BadArgument;
        return command == QLatin1String("diff") ? diff(copy, out, err) : restore(copy, out, err);
    }
    print(err, command.isEmpty() || command == QLatin1String("list") ||
                       command == QLatin1String("diff") || command == QLatin1String("restore")
                   ? tr("Wrong arguments.\n")
                   : tr("Unknown command: %1\n").arg(command));
    print(err, tr("Try \"orv-admin-env-backups --help\".\n"));
    return BadArgument;
}
