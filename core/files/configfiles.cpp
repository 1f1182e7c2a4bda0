#include "core/files/configfiles.h"

#include "core/files/systempaths.h"
#include "core/settings/settingkeys.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace ConfigFiles {

namespace {

// Opening read-write creates a missing file; that is how a chosen user file
// comes to exist after start-up. Anything but a regular file (a FIFO would
// block a later read) counts as unopenable.
bool canOpenReadWrite(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return false;
    QFile file(path);
    return file.open(QIODevice::ReadWrite);
}

QString secondCandidate(int shellKind, const QString &home)
{
    switch (shellKind) {
    case Bash:
        return home + QStringLiteral("/.bash_profile");
    case Csh:
        return home + QStringLiteral("/.tcshrc");
    default:
        return home + QStringLiteral("/.profile");
    }
}

} // namespace

void scanEnvironmentEntry(Session &session, const QString &name, const QString &value)
{
    if (name == QLatin1String("HOME"))
        session.homeDir = value;
    // Root is recognised by the login name, in any letter case.
    if (name == QLatin1String("LOGNAME") && value.toUpper() == QLatin1String("ROOT"))
        session.rootSession = true;
    if (name == QLatin1String("SHELL")) {
        if (value.contains(QLatin1String("bash"), Qt::CaseInsensitive)) {
            session.bashShell = true;
            session.shellKind = Bash;
        } else if (value.contains(QLatin1String("csh"), Qt::CaseInsensitive)) {
            session.shellKind = Csh;
        }
    }
}

Candidates candidates(int shellKind, const QString &home)
{
    switch (shellKind) {
    case Bash:
        return {SystemPaths::bashBashrc(), home + QStringLiteral("/.bashrc")};
    case Csh:
        return {SystemPaths::cshCshrc(), home + QStringLiteral("/.cshrc")};
    default:
        return {SystemPaths::etcProfile(), home + QStringLiteral("/.profile")};
    }
}

void choose(int shellKind, const QString &home, QString &global, QString &local)
{
    if (!canOpenReadWrite(global)) {
        if (canOpenReadWrite(SystemPaths::etcProfile()))
            global = SystemPaths::etcProfile();
        else
            global = SystemPaths::globalScratch();
    }

    if (canOpenReadWrite(local))
        return;
    const QString second = secondCandidate(shellKind, home);
    if (canOpenReadWrite(second)) {
        local = second;
        return;
    }
    const QString profile = home + QStringLiteral("/.profile");
    local = canOpenReadWrite(profile) ? profile : SystemPaths::localScratch();
}

Lists readLists(int shellKind, bool rootSession, const QString &global, const QString &local)
{
    const QSettings settings;
    Lists lists;
    lists.systemFiles = SettingKeys::systemFiles.read(settings).toStringList();
    if (const SettingKey *key = SettingKeys::userFilesOf(shellKind))
        lists.userFiles = key->read(settings).toStringList();

    // The chosen files are always scanned, even when the stored lists lost them.
    if (!lists.userFiles.contains(local))
        lists.userFiles.prepend(local);
    if (rootSession && !lists.systemFiles.contains(global))
        lists.systemFiles.prepend(global);
    if (!lists.systemFiles.contains(SystemPaths::etcProfile()))
        lists.systemFiles.prepend(SystemPaths::etcProfile());
    return lists;
}

void storeLists(int shellKind, const QStringList &systemFiles, const QStringList &userFiles)
{
    QSettings settings;
    SettingKeys::systemFiles.write(settings, systemFiles);
    if (const SettingKey *key = SettingKeys::userFilesOf(shellKind))
        key->write(settings, userFiles);
}

} // namespace ConfigFiles
