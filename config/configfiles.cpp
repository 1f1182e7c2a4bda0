#include "evemodel.h"
#include "systempaths.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

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

} // namespace

void EveModel::scanEnvironmentEntry(const QStringList &entry)
{
    const QString name = entry.value(0);
    const QString value = entry.value(1);

    if (name == QLatin1String("HOME"))
        homeDir = value;
    // Root is recognised by the login name, in any letter case.
    if (name == QLatin1String("LOGNAME") && value.toUpper() == QLatin1String("ROOT"))
        rootSession = true;
    if (name == QLatin1String("SHELL")) {
        if (value.contains(QLatin1String("bash"), Qt::CaseInsensitive)) {
            bashShell = true;
            ShellKind = Bash;
        } else if (value.contains(QLatin1String("csh"), Qt::CaseInsensitive)) {
            ShellKind = Csh;
        }
    }
}

void EveModel::chooseConfigFiles(int shellKind, QString &global, QString &local)
{
    if (!canOpenReadWrite(global)) {
        if (canOpenReadWrite(SystemPaths::etcProfile()))
            global = SystemPaths::etcProfile();
        else
            global = SystemPaths::globalScratch();
    }

    if (canOpenReadWrite(local))
        return;
    QString second;
    switch (shellKind) {
    case Bash:
        second = homeDir + QStringLiteral("/.bash_profile");
        break;
    case Csh:
        second = homeDir + QStringLiteral("/.tcshrc");
        break;
    default:
        second = homeDir + QStringLiteral("/.profile");
        break;
    }
    if (canOpenReadWrite(second)) {
        local = second;
        return;
    }
    const QString profile = homeDir + QStringLiteral("/.profile");
    local = canOpenReadWrite(profile) ? profile : SystemPaths::localScratch();
}

void EveModel::readFileLists()
{
    QSettings settings;
    settings.beginGroup(QStringLiteral("configFiles"));
    systemFiles = settings.value(QStringLiteral("system")).toStringList();
    if (ShellKind == Bash)
        userFiles = settings.value(QStringLiteral("bash")).toStringList();
    else if (ShellKind == Csh)
        userFiles = settings.value(QStringLiteral("tcsh")).toStringList();

    // The chosen files are always scanned, even when the stored lists lost them.
    if (!userFiles.contains(localFile))
        userFiles.prepend(localFile);
    if (rootSession && !systemFiles.contains(globalFile))
        systemFiles.prepend(globalFile);
    if (!systemFiles.contains(SystemPaths::etcProfile()))
        systemFiles.prepend(SystemPaths::etcProfile());
    settings.endGroup();
}
