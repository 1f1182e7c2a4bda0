#include "sandbox.h"

#include "systempaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

namespace {

QTemporaryDir *processDir = nullptr;

QString settingsDir()
{
    return processDir->path() + QStringLiteral("/config");
}

void resetDirectory(const QString &path)
{
    QDir(path).removeRecursively();
    QDir().mkpath(path);
}

} // namespace

void Sandbox::prepareProcess()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANG", "C");
    qputenv("LC_ALL", "C");
    processDir = new QTemporaryDir(QDir::tempPath() + QStringLiteral("/orv-test-XXXXXX"));
    std::atexit([] { delete processDir; });
    const QString base = processDir->path();
    for (const char *dir : {"home", "config", "runtime", "tmp", "root/etc", "root/tmp"})
        QDir().mkpath(base + QLatin1Char('/') + QLatin1String(dir));
    QFile::setPermissions(base + QStringLiteral("/runtime"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("HOME", QFile::encodeName(home()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settingsDir()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(base + QStringLiteral("/runtime")));
    qputenv("TMPDIR", QFile::encodeName(base + QStringLiteral("/tmp")));
    qputenv("ORV_ADMIN_ENV_SYSROOT", QFile::encodeName(sysroot()));
    SystemPaths::reloadRoot();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       base + QStringLiteral("/xdg"));
}

Sandbox::Sandbox()
{
    resetDirectory(home());
    resetDirectory(system(QStringLiteral("/etc")));
    resetDirectory(system(QStringLiteral("/tmp")));
    QSettings settings;
    settings.clear();
    settings.sync();
    setUserEnvironment();
}

Sandbox::~Sandbox()
{
    QSettings settings;
    settings.clear();
    settings.sync();
}

QString Sandbox::home()
{
    return processDir->path() + QStringLiteral("/home");
}

QString Sandbox::sysroot()
{
    return processDir->path() + QStringLiteral("/root");
}

QString Sandbox::system(const QString &path)
{
    return sysroot() + path;
}

void Sandbox::setEnvironment(const QStringList &entries)
{
    clearenv();
    for (const QString &entry : entries)
        putenv(strdup(entry.toLocal8Bit().constData())); // putenv keeps the pointer
}

void Sandbox::setUserEnvironment(const QStringList &extra)
{
    setEnvironment(QStringList{QStringLiteral("HOME=") + home(), QStringLiteral("LOGNAME=tester"),
                               QStringLiteral("SHELL=/bin/bash"),
                               QStringLiteral("PATH=/usr/bin:/bin")} +
                   extra);
}

void Sandbox::writeFile(const QString &path, const QByteArray &contents)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(contents);
}

QByteArray Sandbox::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray("<unreadable>");
    return file.readAll();
}

void Sandbox::blockPath(const QString &path)
{
    QFile::remove(path);
    QDir().mkpath(path);
}
