#pragma once

#include <QStringList>

#include <sys/stat.h>

// Keeps a test away from the real home, settings, /etc and /tmp: prepareProcess(),
// before the QApplication exists, points HOME, XDG_CONFIG_HOME, XDG_DATA_HOME, XDG_RUNTIME_DIR,
// TMPDIR, the settings and ORV_ADMIN_ENV_SYSROOT into one temporary directory, which a Sandbox
// object per test case empties along with the settings.
class Sandbox
{
public:
    static void prepareProcess();

    Sandbox();
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    static QString home() { return root + QStringLiteral("/home"); }
    // The data folder, also where a test's own environment leaves it.
    static QString data() { return home() + QStringLiteral("/.local/share"); }
    static QString sysroot() { return root + QStringLiteral("/root"); } // the program's "/"
    // A system path such as "/etc/profile" as the program sees it.
    static QString system(const QString &path) { return sysroot() + path; }

    // Replaces the whole process environment by these NAME=VALUE entries.
    static void setEnvironment(const QStringList &entries);
    // An ordinary bash session of user "tester" in the sandbox home.
    static void setUserEnvironment(const QStringList &extra = {});

    static void writeFile(const QString &path, const QByteArray &contents);
    static QByteArray readFile(const QString &path);
    // A directory of that name: even root cannot open it as a file.
    static void blockPath(const QString &path);
    // What stat() tells of the file: its inode, mode and owner.
    static struct stat statusOf(const QString &path);

private:
    static inline QString root; // the temporary directory
};
