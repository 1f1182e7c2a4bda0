#include "core/preview/shellcheck.h"

#include "core/files/configfiles.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

QString ShellCheck::shellFor(const QString &path, int shellKind)
{
    const QString name = QFileInfo(path).fileName();
    static const QStringList bashFiles = {
        QStringLiteral(".bashrc"), QStringLiteral(".bash_profile"), QStringLiteral(".bash_login"),
        QStringLiteral(".bash_logout"), QStringLiteral("bash.bashrc")};
    static const QStringList cshFiles = {QStringLiteral(".cshrc"),    QStringLiteral(".tcshrc"),
                                         QStringLiteral(".login"),    QStringLiteral(".logout"),
                                         QStringLiteral("csh.cshrc"), QStringLiteral("csh.login"),
                                         QStringLiteral("csh.logout")};
    static const QStringList shFiles = {QStringLiteral(".profile"), QStringLiteral("profile")};
    if (bashFiles.contains(name) || name.endsWith(QLatin1String(".bash")))
        return QStringLiteral("bash");
    if (cshFiles.contains(name) || name.endsWith(QLatin1String(".csh")))
        return QString();
    if (shFiles.contains(name) || name.endsWith(QLatin1String(".sh")))
        return QStringLiteral("sh");
    switch (shellKind) {
    case ConfigFiles::Bash:
        return QStringLiteral("bash");
    case ConfigFiles::Csh:
        return QString();
    default:
        return QStringLiteral("sh");
    }
}

ShellCheck ShellCheck::run(const QString &shell, const QByteArray &script, int timeoutMs)
{
    ShellCheck check;
    check.shell = shell;
    if (shell.isEmpty()) {
        check.message = tr("csh files are not checked");
        return check;
    }
    const QString program = QStandardPaths::findExecutable(shell);
    if (program.isEmpty()) {
        check.message = tr("%1 is not installed").arg(shell);
        return check;
    }

    QProcess process;
    // Non-interactive shells run the file these name, -n or not.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("BASH_ENV"));
    environment.remove(QStringLiteral("ENV"));
    process.setProcessEnvironment(environment);
    process.start(program, {QStringLiteral("-n")});
    if (!process.waitForStarted(timeoutMs)) {
        check.message = tr("%1 could not be started").arg(shell);
        return check;
    }
    process.write(script);
    process.closeWriteChannel();
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished(1000);
        check.message = tr("%1 did not finish within %2 seconds")
                            .arg(shell)
                            .arg(double(timeoutMs) / 1000, 0, 'g', 2);
        return check;
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) {
        check.outcome = Parses;
        return check;
    }
    check.outcome = Fails;
    check.message = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    // The shell names itself by the path it was started from: say "bash: line 3: ...".
    check.message.replace(program + QLatin1Char(':'), shell + QLatin1Char(':'));
    return check;
}

QString ShellCheck::sentence() const
{
    switch (outcome) {
    case Parses:
        return tr("%1 -n: the file still parses.").arg(shell);
    case Fails:
        if (failsNow)
            return tr("%1 -n: the file would not parse, and does not parse now either: %2")
                .arg(shell, message);
        return tr("%1 -n: the file would no longer parse: %2").arg(shell, message);
    case NotChecked:
        break;
    }
    return tr("Not checked whether the file still parses: %1.").arg(message);
}
