#include "support/sandbox.h"

#include "core/files/systempaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

static QTemporaryDir *processDir = nullptr;

void Sandbox::prepareProcess()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LANG", "C");
    qputenv("LC_ALL", "C");
    processDir = new QTemporaryDir(QDir::tempPath() + "/orv-test-XXXXXX");
    std::atexit([] { delete processDir; });
    root = processDir->path();
    for (const char *dir : {"home", "config", "runtime", "tmp", "root/etc", "root/tmp"})
        QDir(root).mkpath(dir);
    const auto in = [](const char *dir) {
        return root + '/' + dir;
    };
    QFile::setPermissions(in("runtime"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", QFile::encodeName(in("home")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(in("config")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(data()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(in("runtime")));
    qputenv("TMPDIR", QFile::encodeName(in("tmp")));
    qputenv("ORV_ADMIN_ENV_SYSROOT", QFile::encodeName(in("root")));
    SystemPaths::reloadRoot();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, in("config"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, in("xdg"));
}

Sandbox::Sandbox()
{
    for (const QString &dir : {home(), system("/etc"), system("/tmp")}) {
        QDir(dir).removeRecursively();
        QDir().mkpath(dir);
    }
    QSettings().clear(); // written back when the QSettings goes
    setUserEnvironment();
}

Sandbox::~Sandbox()
{
    QSettings().clear();
}

// putenv() keeps the pointers it is given: the strings of the current
// environment live here, reachable until the process ends.
static QList<QByteArray> *environmentStrings = new QList<QByteArray>;

void Sandbox::setEnvironment(const QStringList &entries)
{
    clearenv();
    environmentStrings->clear(); // no longer in the environment
    for (const QString &entry : entries) {
        environmentStrings->append(entry.toLocal8Bit());
        putenv(environmentStrings->last().data());
    }
}

void Sandbox::setUserEnvironment(const QStringList &extra)
{
    setEnvironment(
        QStringList{"HOME=" + home(), "LOGNAME=tester", "SHELL=/bin/bash", "PATH=/usr/bin:/bin"} +
        extra);
}

void Sandbox::writeFile(const QString &path, const QByteArray &contents)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (QFile file(path); file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(contents);
}

QByteArray Sandbox::readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void Sandbox::blockPath(const QString &path)
{
    QFile::remove(path);
    QDir().mkpath(path);
}

struct stat Sandbox::statusOf(const QString &path)
{
    struct stat info = {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info;
}
