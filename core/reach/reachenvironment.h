#pragma once

#include <QProcessEnvironment>
#include <QString>

// Who the probes ask for: the values a fresh login starts from, and the root
// of the system folders. The probes run every program in exactly this
// environment, never in the caller's own.
struct ReachEnvironment
{
    QString home;
    QString user; // also LOGNAME
    QString shell;
    QString path = QStringLiteral("/usr/local/bin:/usr/bin:/bin");
    QString lang = QStringLiteral("C.UTF-8");
    QString xdgConfigHome; // empty: HOME/.config
    // The system's "/" as the program sees it; empty for the real one. When
    // set, the programs run with its folders over the system's (SysrootCommand).
    QString sysroot;

    // HOME, USER, LOGNAME, SHELL, PATH and LANG, nothing else.
    QProcessEnvironment cleanEnvironment() const;
    // The environment.d folder of this user.
    QString configHome() const;
    // Where a login starts: HOME, or "/" when HOME is no folder.
    QString startDirectory() const;

    // The current process's HOME, USER (or LOGNAME), SHELL, LANG,
    // XDG_CONFIG_HOME and ORV_ADMIN_ENV_SYSROOT, with the minimal PATH.
    static ReachEnvironment fromProcess();
};
