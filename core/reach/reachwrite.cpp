#include "core/reach/reachwrite.h"

#include "core/files/safefile.h"
#include "core/reach/environmentdformat.h"
#include "core/reach/fishformat.h"
#include "core/reach/ownedfile.h"
#include "core/save/linedocument.h"
#include "core/shell/linegrammar.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace {

QString pathOf(ReachWrite::Target target, const ReachEnvironment &environment)
{
    switch (target) {
    case ReachWrite::Target::GraphicalPrograms:
        return OwnedFile::path(OwnedFile::Kind::EnvironmentD, environment.configHome());
    case ReachWrite::Target::Fish:
        return OwnedFile::path(OwnedFile::Kind::Fish, environment.configHome());
    case ReachWrite::Target::Zsh:
        break;
    }
    return environment.home + QStringLiteral("/.zshenv");
}

// The file as a save reads it; a folder that does not exist yet holds no file.
Result<SafeFile::Contents> current(const QString &path)
{
    if (!QFileInfo::exists(QFileInfo(path).absolutePath()))
        return SafeFile::Contents();
    return SafeFile::read(path);
}

// Every missing folder of the path, readable by the user alone.
Status makeFolders(const QString &folder)
{
    if (QFileInfo(folder).isDir())
        return Status();
    const Status parent = makeFolders(QFileInfo(folder).absolutePath());
    if (!parent)
        return parent;
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) != 0 && errno != EEXIST)
        return Failure{folder, Failure::Step::Create, qt_error_string(errno)};
    return Status();
}

} // namespace

Result<ReachWrite> ReachWrite::plan(Target target, const ReachEnvironment &environment,
                                    const QString &name, const QString &value)
{
    ReachWrite write;
    write.target = target;
    write.file.path = pathOf(target, environment);
    const Result<SafeFile::Contents> now = current(write.file.path);
    if (!now)
        return now.failure();
    write.file.existed = now->exists;
    write.file.before = now->bytes;
    const auto refused = [&write](const QString &reason) {
        return Failure{write.file.path, Failure::Step::Check, reason};
    };

    if (target == Target::Zsh) {
        const QString refusal = LineGrammar::valueRefusal(value);
        if (!refusal.isEmpty())
            return refused(refusal);
        const QString quoted = LineGrammar::quoteValue(value);
        LineDocument document = LineDocument::fromBytes(write.file.before);
        document.writeAssignment(name, quoted);
        write.file.after = document.toBytes();
        write.line = QStringLiteral("export ") + name + QLatin1Char('=') + quoted;
        return write;
    }

    const QStringList references = EnvironmentDFormat::referencesIn(value);
    const bool graphical = target == Target::GraphicalPrograms;
    const FormattedLine line = graphical ? EnvironmentDFormat::line(name, value, references)
                                         : FishFormat::line(name, value, references);
    if (!line.ok())
        return refused(line.refusal);
    const OwnedFile::Edit edit = OwnedFile::withLine(
        graphical ? OwnedFile::Kind::EnvironmentD : OwnedFile::Kind::Fish,
        write.file.existed ? std::optional<QByteArray>(write.file.before) : std::nullopt, name,
        line.text);
    if (!edit.ok())
        return refused(edit.refusal);
    write.file.after = edit.bytes;
    write.line = line.text;
    return write;
}

Result<CommittedFile> ReachWrite::commit() const
{
    const Status folders = makeFolders(QFileInfo(file.path).absolutePath());
    if (!folders)
        return folders.failure();
    return commitFile(file);
}
