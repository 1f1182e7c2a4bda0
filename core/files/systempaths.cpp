#include "core/files/systempaths.h"

#include <QtGlobal>

namespace SystemPaths {

namespace {

QString &cachedRoot()
{
    static QString value = qEnvironmentVariable("ORV_ADMIN_ENV_SYSROOT");
    return value;
}

} // namespace

QString root()
{
    return cachedRoot();
}

void reloadRoot()
{
    cachedRoot() = qEnvironmentVariable("ORV_ADMIN_ENV_SYSROOT");
}

QString underRoot(const QString &path)
{
    const QString prefix = root();
    if (prefix.isEmpty())
        return path;
    return prefix.endsWith(QLatin1Char('/')) ? prefix.chopped(1) + path : prefix + path;
}

QString etcDir()
{
    return underRoot(QStringLiteral("/etc"));
}

QString etcProfile()
{
    return underRoot(QStringLiteral("/etc/profile"));
}

QString bashBashrc()
{
    return underRoot(QStringLiteral("/etc/bash.bashrc"));
}

QString cshCshrc()
{
    return underRoot(QStringLiteral("/etc/csh.cshrc"));
}

QString globalScratch()
{
    return underRoot(QStringLiteral("/tmp/orv-admin-env-globalfile"));
}

QString localScratch()
{
    return underRoot(QStringLiteral("/tmp/orv-admin-env-localfile"));
}

QString cshLogin()
{
    return underRoot(QStringLiteral("/etc/csh.login"));
}

QString profileDir()
{
    return underRoot(QStringLiteral("/etc/profile.d"));
}

QString etcEnvironment()
{
    return underRoot(QStringLiteral("/etc/environment"));
}

} // namespace SystemPaths
