#include "core/lookup/whereset.h"

#include "core/files/configfiles.h"
#include "core/files/systempaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using Assignments::Syntax;

namespace {

class FileList
{
public:
    void add(const QString &path, Syntax syntax)
    {
        const QFileInfo info(path);
        if (!info.exists())
            return;
        const QString key = info.canonicalFilePath();
        if (seen.contains(key))
            return;
        seen.insert(key);
        files.append({path, syntax});
    }
    // The entries of a directory that a shell glob "*.suffix" gives, by name.
    void addMatching(const QString &dir, const QString &pattern, Syntax syntax)
    {
        const QStringList names =
            QDir(dir).entryList({pattern}, QDir::Files | QDir::System, QDir::Name);
        for (const QString &name : names)
            add(dir + QLatin1Char('/') + name, syntax);
    }

    QList<WhereSet::File> files;

private:
    QSet<QString> seen;
};

} // namespace

QList<WhereSet::File> WhereSet::startupFiles(int shellKind, const QString &home,
                                             const QStringList &systemFiles,
                                             const QStringList &userFiles)
{
    FileList list;
    // The login program's PAM session, then the systemd user manager.
    list.add(SystemPaths::etcEnvironment(), Syntax::Environment);
    list.add(home + QStringLiteral("/.pam_environment"), Syntax::Pam);
    list.addMatching(home + QStringLiteral("/.config/environment.d"), QStringLiteral("*.conf"),
                     Syntax::Environment);

    if (shellKind == ConfigFiles::Csh) {
        list.add(SystemPaths::cshCshrc(), Syntax::Shell);
        list.add(SystemPaths::cshLogin(), Syntax::Shell);
    } else {
        list.add(SystemPaths::etcProfile(), Syntax::Shell);
        // Debian's /etc/profile reads bash.bashrc for bash, then profile.d.
        if (shellKind == ConfigFiles::Bash)
            list.add(SystemPaths::bashBashrc(), Syntax::Shell);
        list.addMatching(SystemPaths::profileDir(), QStringLiteral("*.sh"), Syntax::Shell);
    }
    for (const QString &path : systemFiles)
        list.add(path, Syntax::Shell);

    QStringList own;
    if (shellKind == ConfigFiles::Csh)
        own = QStringList{QStringLiteral("/.tcshrc"), QStringLiteral("/.cshrc"),
                          QStringLiteral("/.login")};
    else if (shellKind == ConfigFiles::Bash)
        own = QStringList{QStringLiteral("/.bash_profile"), QStringLiteral("/.bash_login"),
                          QStringLiteral("/.profile"), QStringLiteral("/.bashrc")};
    else
        own = QStringList{QStringLiteral("/.profile")};
    for (const QString &name : qAsConst(own))
        list.add(home + name, Syntax::Shell);
    for (const QString &path : userFiles)
        list.add(path, Syntax::Shell);
    return list.files;
}

QList<WhereSet::Line> WhereSet::scanText(const QString &path, const QByteArray &contents,
                                         const QString &name, Syntax syntax)
{
    QList<Line> lines;
    const QString text = QString::fromUtf8(contents);
    int number = 1;
    int counted = 0; // line ends are counted up to here
    // Only lines holding the name can set it: jump from one to the next.
    for (int at = text.indexOf(name); at >= 0 && !name.isEmpty();) {
        const int start = text.lastIndexOf(QLatin1Char('\n'), at) + 1;
        int end = text.indexOf(QLatin1Char('\n'), at);
        if (end < 0)
            end = text.size();
        number += int(
            std::count(text.constBegin() + counted, text.constBegin() + start, QLatin1Char('\n')));
        counted = start;

        QString line = text.mid(start, end - start);
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        const Assignments::Match match = Assignments::match(line, name, syntax);
        if (match.found) {
            Line found;
            found.path = path;
            found.number = number;
            found.text = line;
            found.commented = match.commented;
            found.hasValue = match.hasValue;
            found.value = match.value;
            lines.append(found);
        }
        at = end < text.size() ? text.indexOf(name, end + 1) : -1;
    }
    return lines;
}

QList<WhereSet::Line> WhereSet::scanFile(const File &file, const QString &name)
{
    Line failure;
    failure.path = file.path;
    failure.readable = false;
    // Checked first: opening a FIFO would wait for a writer.
    if (!QFileInfo(file.path).isFile()) {
        failure.text = tr("cannot be read: it is not a regular file");
        return {failure};
    }
    QFile input(file.path);
    if (!input.open(QIODevice::ReadOnly)) {
        failure.text = tr("cannot be read: %1").arg(input.errorString());
        return {failure};
    }
    const QByteArray contents = input.readAll();
    if (input.error() != QFileDevice::NoError || contents.size() != input.size()) {
        failure.text = tr("cannot be read: %1").arg(input.errorString());
        return {failure};
    }
    return scanText(file.path, contents, name, file.syntax);
}

QString WhereSet::displayPath(const QString &path, const QString &home)
{
    if (!home.isEmpty() && path.startsWith(home + QLatin1Char('/')))
        return QLatin1Char('~') + path.mid(home.size());
    return path;
}

QString WhereSet::explain(const QList<Line> &lines, const QString &name,
                          const std::optional<QString> &session, const QString &tableValue,
                          const QString &home)
{
    const Line *last = nullptr;
    for (const Line &line : lines) {
        if (line.readable && !line.commented && line.hasValue)
            last = &line;
    }
    if (!last)
        return tr("No start-up file that a login reads sets %1").arg(name);

    const QString file = displayPath(last->path, home);
    const QString value = Assignments::expandHome(last->value, home);
    if (Assignments::needsShell(value)) {
        if (!session)
            return tr("%1 sets `%2`, which the shell works out at login; this session does not "
                      "have %3")
                .arg(file, last->value, name);
        return tr("%1 sets `%2`, which the shell works out at login; this session has `%3`")
            .arg(file, last->value, *session);
    }
    if (session && value == *session)
        return tr("%1 sets `%2`, the value this session has").arg(file, last->value);

    const bool saved = value == tableValue;
    if (!session) {
        if (saved)
            return tr("%1 sets `%2`; this session does not have %3: the saved value takes "
                      "effect at the next login")
                .arg(file, last->value, name);
        return tr("%1 sets `%2`; this session does not have %3: log in again to use the "
                  "file's value")
            .arg(file, last->value, name);
    }
    if (saved)
        return tr("%1 sets `%2`; this session has `%3`: the saved value takes effect at the next "
                  "login")
            .arg(file, last->value, *session);
    return tr("%1 sets `%2`; this session has `%3`: log in again to use the file's value")
        .arg(file, last->value, *session);
}
