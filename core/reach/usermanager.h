#pragma once

#include "core/result.h"

#include <QCoreApplication>
#include <QObject>
#include <QString>

class ReachProcess;

// The session's systemd user manager, through systemctl: whether it
// answers, and giving a variable to the programs it starts from now on.
// Programs already running and open terminals keep what they have.
class UserManager : public QObject
{
    Q_OBJECT

public:
    // The programs asked, found on PATH unless set (tests point them at
    // stand-ins, so that no test changes the real user manager).
    struct Programs
    {
        QString systemctl = QStringLiteral("systemctl");
        QString updateActivationEnvironment = QStringLiteral("dbus-update-activation-environment");
    };
    static Programs &programs();

    explicit UserManager(QObject *parent = nullptr);

    // Asks `systemctl --user show-environment`, within 3 seconds; answered()
    // tells the outcome, a Failure saying why there is no user manager.
    void ask();
    const Status &answer() const { return outcome; }

    // `systemctl --user set-environment NAME=VALUE`, then, where installed,
    // `dbus-update-activation-environment --systemd NAME=VALUE`, each within
    // 3 seconds. Blocks until both are done.
    static Status apply(const QString &name, const QString &value);

signals:
    void answered();

private:
    ReachProcess *process = nullptr;
    Status outcome;
};
