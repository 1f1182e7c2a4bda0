#include "core/reach/usermanager.h"

#include "core/reach/reachprocess.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace {

constexpr int timeoutMs = 3000;

// One run of a program in the session's own environment (the user manager
// is found through XDG_RUNTIME_DIR and the session bus).
Status run(const QString &program, const QStringList &arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return Failure{program, Failure::Step::Open,
                       UserManager::tr("%1 is not installed").arg(program)};
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(path, arguments);
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished(1000);
        return Failure{
            program, Failure::Step::Write,
            UserManager::tr("%1 did not finish in %2 seconds").arg(program).arg(timeoutMs / 1000)};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
        return Failure{
            program, Failure::Step::Write,
            said.isEmpty()
                ? UserManager::tr("%1 failed with status %2").arg(program).arg(process.exitCode())
                : said};
    }
    return Status();
}

} // namespace

UserManager::Programs &UserManager::programs()
{
    static Programs programs;
    return programs;
}

UserManager::UserManager(QObject *parent)
    : QObject(parent)
    , outcome(Failure{QString(), Failure::Step::Open, tr("not asked yet")})
{}

void UserManager::ask()
{
    const QString systemctl = QStandardPaths::findExecutable(programs().systemctl);
    if (systemctl.isEmpty()) {
        outcome = Failure{programs().systemctl, Failure::Step::Open,
                          tr("%1 is not installed").arg(programs().systemctl)};
        emit answered();
        return;
    }
    process = new ReachProcess(this);
    connect(process, &ReachProcess::done, this, [this] {
        if (process->end() == ReachProcess::End::Finished && process->exitCode() == 0)
            outcome = Status();
        else
            outcome =
                Failure{programs().systemctl, Failure::Step::Open,
                        tr("no systemd user manager answers: %1")
                            .arg(process->lastErrorLine().isEmpty() ? tr("systemctl --user failed")
                                                                    : process->lastErrorLine())};
        emit answered();
    });
    process->start({systemctl, QStringLiteral("--user"), QStringLiteral("show-environment")},
                   QProcessEnvironment::systemEnvironment(), QDir::homePath());
}

Status UserManager::apply(const QString &name, const QString &value)
{
    const QString assignment = name + QLatin1Char('=') + value;
    const Status set = run(programs().systemctl, {QStringLiteral("--user"),
                                                  QStringLiteral("set-environment"), assignment});
    if (!set)
        return set;
    if (QStandardPaths::findExecutable(programs().updateActivationEnvironment).isEmpty())
        return Status();
    return run(programs().updateActivationEnvironment, {QStringLiteral("--systemd"), assignment});
}
