#include "core/reach/reachenvironment.h"

#include <QFileInfo>

QProcessEnvironment ReachEnvironment::cleanEnvironment() const
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("USER"), user);
    environment.insert(QStringLiteral("LOGNAME"), user);
    environment.insert(QStringLiteral("SHELL"), shell);
    environment.insert(QStringLiteral("PATH"), path);
    environment.insert(QStringLiteral("LANG"), lang);
    return environment;
}

QString ReachEnvironment::configHome() const
{
    return xdgConfigHome.isEmpty() ? home + QStringLiteral("/.config") : xdgConfigHome;
}

QString ReachEnvironment::startDirectory() const
{
    return QFileInfo(home).isDir() ? home : QStringLiteral("/");
}

ReachEnvironment ReachEnvironment::fromProcess()
{
    const QProcessEnvironment process = QProcessEnvironment::systemEnvironment();
    ReachEnvironment environment;
    environment.home = process.value(QStringLiteral("HOME"));
    environment.user =
        process.value(QStringLiteral("USER"), process.value(QStringLiteral("LOGNAME")));
    environment.shell = process.value(QStringLiteral("SHELL"));
    environment.lang = process.value(QStringLiteral("LANG"), environment.lang);
    environment.xdgConfigHome = process.value(QStringLiteral("XDG_CONFIG_HOME"));
    environment.sysroot = process.value(QStringLiteral("ORV_ADMIN_ENV_SYSROOT"));
    return environment;
}
