#include "core/reach/generatorprobe.h"

#include "core/reach/reachprocess.h"
#include "core/reach/sysrootcommand.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

#include <cstring>

namespace {

QString generatorName()
{
    return GeneratorProbe::tr("the systemd environment generator");
}

QString signalName(int signal)
{
    const char *name = sigabbrev_np(signal);
    return name ? QStringLiteral("SIG") + QString::fromLatin1(name) : QString::number(signal);
}

bool validName(const QByteArray &name)
{
    if (name.isEmpty() || std::isdigit(uchar(name.at(0))))
        return false;
    for (const char c : name) {
        if (!std::isalnum(uchar(c)) && c != '_')
            return false;
    }
    return true;
}

} // namespace

QString GeneratorProbe::defaultPath()
{
    return QStringLiteral("/usr/lib/systemd/user-environment-generators/") + fileName();
}

QString GeneratorProbe::fileName()
{
    return QStringLiteral("30-systemd-environment-d-generator");
}

GeneratorProbe::GeneratorProbe(QObject *parent)
    : QObject(parent)
{}

GeneratorProbe::~GeneratorProbe()
{
    cancel();
}

void GeneratorProbe::start(const ReachEnvironment &environment, const QString &name)
{
    Q_ASSERT(!started);
    started = true;
    this->environment = environment;
    this->name = name;
    if (!generator.isEmpty())
        run(generator);
    else if (QFileInfo::exists(defaultPath()))
        run(defaultPath());
    else
        askPkgConfig();
}

void GeneratorProbe::cancel()
{
    cancelled = true;
    if (process)
        process->cancel();
}

bool GeneratorProbe::isRunning() const
{
    return started && !cancelled && outcome.state == ReachResult::State::Pending;
}

void GeneratorProbe::askPkgConfig()
{
    const QString pkgConfig = QStandardPaths::findExecutable(
        QStringLiteral("pkg-config"), {QStringLiteral("/usr/bin"), QStringLiteral("/bin")});
    if (pkgConfig.isEmpty()) {
        run(defaultPath()); // says that it is not there
        return;
    }
    process = new ReachProcess(this);
    connect(process, &ReachProcess::done, this, [this] {
        const QString folder = QString::fromUtf8(process->output()).trimmed();
        process->deleteLater();
        process = nullptr;
        run(folder.isEmpty() ? defaultPath() : folder + QLatin1Char('/') + fileName());
    });
    process->start({pkgConfig, QStringLiteral("--variable=systemduserenvgeneratordir"),
                    QStringLiteral("systemd")},
                   environment.cleanEnvironment(), environment.startDirectory());
}

void GeneratorProbe::run(const QString &program)
{
    const QFileInfo file(program);
    if (!file.isFile() || !file.isExecutable()) {
        // From the event loop, as every other result.
        const ReachResult missing = ReachResult::failed(
            tr("the systemd environment generator is not installed: %1 was not found")
                .arg(program));
        QTimer::singleShot(0, this, [this, missing] { conclude(missing); });
        return;
    }
    sysroot = std::make_unique<SysrootCommand>(environment, SysrootCommand::generatorFolders(),
                                               generatorName());
    if (!sysroot->failure().isEmpty()) {
        const ReachResult failed = ReachResult::failed(sysroot->failure());
        QTimer::singleShot(0, this, [this, failed] { conclude(failed); });
        return;
    }
    QProcessEnvironment processEnvironment = environment.cleanEnvironment();
    if (!environment.xdgConfigHome.isEmpty())
        processEnvironment.insert(QStringLiteral("XDG_CONFIG_HOME"), environment.xdgConfigHome);
    // Its debug log names the file of each assignment.
    processEnvironment.insert(QStringLiteral("SYSTEMD_LOG_LEVEL"), QStringLiteral("debug"));
    processEnvironment.insert(QStringLiteral("SYSTEMD_LOG_TARGET"), QStringLiteral("console"));
    process = new ReachProcess(this);
    process->setTimeout(timeoutMs);
    connect(process, &ReachProcess::errorLine, this, &GeneratorProbe::logLine);
    connect(process, &ReachProcess::done, this, &GeneratorProbe::finishRun);
    process->start(sysroot->wrap({program}), processEnvironment, environment.startDirectory());
}

// "FILE:LINE: setting NAME=VALUE". The line numbers it gives are not
// always the line's own, so only the file is kept.
void GeneratorProbe::logLine(const QByteArray &line)
{
    const QByteArray setting = ": setting " + name.toUtf8() + '=';
    const int at = line.indexOf(setting);
    if (at <= 0)
        return;
    const int colon = line.lastIndexOf(':', at - 1);
    if (colon > 0)
        originFile = QString::fromUtf8(line.left(colon));
}

void GeneratorProbe::finishRun()
{
    const ReachProcess::End end = process->end();
    const int code = process->exitCode();
    switch (end) {
    case ReachProcess::End::TimedOut:
        return conclude(
            ReachResult::failed(tr("the systemd environment generator did not finish in %1 seconds")
                                    .arg(timeoutMs / 1000)));
    case ReachProcess::End::TooMuchOutput:
        return conclude(ReachResult::failed(
            tr("the systemd environment generator printed more than 1 MiB, so it was stopped")));
    case ReachProcess::End::FailedToStart:
        return conclude(
            ReachResult::failed(tr("the systemd environment generator could not be started: %1")
                                    .arg(process->startError())));
    case ReachProcess::End::Running:
    case ReachProcess::End::Cancelled:
        return;
    case ReachProcess::End::Crashed:
    case ReachProcess::End::Finished:
        break;
    }
    if (const QString failure = sysroot->runFailure(process->output(), process->lastErrorLine());
        !failure.isEmpty())
        return conclude(ReachResult::failed(failure));
    if (end == ReachProcess::End::Crashed)
        return conclude(ReachResult::failed(
            tr("the systemd environment generator was killed by signal %1").arg(signalName(code))));
    if (code != 0)
        return conclude(ReachResult::failed(
            tr("the systemd environment generator exited with status %1").arg(code)));
    QByteArray badLine;
    const auto variables = parseOutput(sysroot->programOutput(process->output()), &badLine);
    if (!variables)
        return conclude(ReachResult::failed(
            tr("the systemd environment generator printed a line this program cannot read: %1")
                .arg(QString::fromUtf8(badLine.left(200)))));
    printed = *variables;
    const auto found = printed.constFind(name);
    if (found == printed.constEnd())
        return conclude(ReachResult::notSet());
    conclude(ReachResult::set(*found,
                              originFile.isEmpty() ? QString() : sysroot->outsidePath(originFile)));
}

void GeneratorProbe::conclude(const ReachResult &result)
{
    if (cancelled)
        return;
    outcome = result;
    emit finished();
}

std::optional<QMap<QString, QString>> GeneratorProbe::parseOutput(const QByteArray &output,
                                                                  QByteArray *badLine)
{
    QMap<QString, QString> variables;
    const QList<QByteArray> lines = output.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        const QByteArray &line = lines.at(i);
        if (line.isEmpty() && i == lines.size() - 1)
            break;
        const int equals = line.indexOf('=');
        const QByteArray key = line.left(equals);
        QByteArray value = line.mid(equals + 1);
        bool readable = equals > 0 && validName(key);
        if (readable && value.startsWith('"')) {
            QByteArray plain;
            int at = 1;
            for (; at < value.size() && value.at(at) != '"'; ++at) {
                if (value.at(at) == '\\' && at + 1 < value.size()) {
                    ++at;
                    if (!std::strchr("\"\\`$", value.at(at)))
                        plain += '\\';
                }
                plain += value.at(at);
            }
            readable = at == value.size() - 1;
            value = plain;
        }
        if (!readable) {
            if (badLine)
                *badLine = line;
            return std::nullopt;
        }
        variables.insert(QString::fromUtf8(key), QString::fromUtf8(value));
    }
    return variables;
}
