#include "core/reach/environmentdformat.h"
#include "core/reach/etcenvironment.h"
#include "core/reach/fishformat.h"
#include "core/reach/generatorprobe.h"
#include "core/reach/ownedfile.h"
#include "core/reach/shellprobe.h"
#include "support/coresandboxtest.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QStandardPaths>

#include <optional>
#include <unistd.h>

using State = ReachResult::State;
using Context = ShellProbe::Context;
using Bytes = std::optional<QByteArray>;

Q_DECLARE_METATYPE(ReachResult)
Q_DECLARE_METATYPE(std::optional<QByteArray>)
Q_DECLARE_METATYPE(OwnedFile::Kind)

char *toString(const ReachResult &result)
{
    static const char *const states[] = {"pending", "set", "not set", "failed"};
    const QString text =
        QStringLiteral("%1 \"%2\" %3 %4:%5")
            .arg(QLatin1String(states[int(result.state)]),
                 result.state == State::Failed ? result.failure : result.value.left(120),
                 result.state == State::Set ? QString::number(result.value.size()) : QString(),
                 result.originFile)
            .arg(result.originLine);
    return qstrdup(text.toUtf8().constData());
}

namespace {

QString program(const QString &name)
{
    return QStandardPaths::findExecutable(name, {"/usr/bin", "/bin"});
}

// A fresh login of "tester" in the sandbox home, its system folders in the sandbox too.
ReachEnvironment loginOf(const QString &shell)
{
    ReachEnvironment environment;
    environment.home = Sandbox::home();
    environment.user = "tester";
    environment.shell = shell;
    environment.path = "/usr/bin:/bin";
    environment.sysroot = Sandbox::sysroot();
    return environment;
}

// Which file set it is checked on its own.
ReachResult withoutOrigin(ReachResult result)
{
    result.originFile.clear();
    result.originLine = 0;
    return result;
}

struct Answers
{
    ReachResult login;
    ReachResult interactive;
    qint64 milliseconds = -1; // -1: no answer came
    int contextSignals = 0;
    int finishedSignals = 0;
};

Answers askShell(const QString &shell, const QString &name)
{
    ShellProbe probe;
    QSignalSpy contexts(&probe, &ShellProbe::contextFinished);
    QSignalSpy finished(&probe, &ShellProbe::finished);
    QElapsedTimer clock;
    clock.start();
    probe.start(loginOf(shell), name);
    if (!finished.wait(10000))
        return {};
    const qint64 milliseconds = clock.elapsed();
    QCoreApplication::processEvents(); // a signal too many would come now
    return {probe.result(Context::Login), probe.result(Context::Interactive), milliseconds,
            int(contexts.count()), int(finished.count())};
}

ReachResult askGenerator(const QString &name, QMap<QString, QString> *variables = nullptr,
                         const QString &generator = QString())
{
    GeneratorProbe probe;
    probe.setGenerator(generator);
    QSignalSpy finished(&probe, &GeneratorProbe::finished);
    probe.start(loginOf(program("bash")), name);
    if (!finished.wait(10000))
        return ReachResult::failed("no answer in 10 seconds");
    if (variables)
        *variables = probe.variables();
    return probe.result();
}

// The processes whose command line holds `word`: what a probe must not leave behind.
QStringList processesWith(const QByteArray &word)
{
    QStringList found;
    for (QDirIterator it("/proc"); it.hasNext();) {
        QFile cmdline(it.next() + "/cmdline");
        if (cmdline.open(QIODevice::ReadOnly) && cmdline.readAll().contains(word))
            found << it.filePath();
    }
    return found;
}

bool gone(const QByteArray &word)
{
    QElapsedTimer clock;
    clock.start();
    while (!processesWith(word).isEmpty() && clock.elapsed() < 2000)
        QTest::qWait(20);
    return processesWith(word).isEmpty();
}

} // namespace

class TestReach : public CoreSandboxTest
{
    Q_OBJECT

private slots:
    void startupFileReachesItsContexts_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<ReachResult>("login");
        QTest::addColumn<ReachResult>("interactive");
        const ReachResult unset = ReachResult::notSet();
        QTest::addRow("a value in ~/.profile reaches a bash login shell, not a terminal")
            << "bash"
            << ".profile" << QByteArray("export FOO=profile\n") << ReachResult::set("profile")
            << unset;
        QTest::addRow("a value in ~/.bashrc reaches a bash terminal, not a login")
            << "bash"
            << ".bashrc" << QByteArray("export FOO=rc\n") << unset << ReachResult::set("rc");
        QTest::addRow("a value in ~/.profile reaches no zsh")
            << "zsh"
            << ".profile" << QByteArray("export FOO=profile\n") << unset << unset;
        QTest::addRow("a value in ~/.zshenv reaches every zsh")
            << "zsh"
            << ".zshenv" << QByteArray("export FOO=zshenv\n") << ReachResult::set("zshenv")
            << ReachResult::set("zshenv");
        QTest::addRow("a value in ~/.profile reaches a dash login shell")
            << "dash"
            << ".profile" << QByteArray("export FOO=dash\n") << ReachResult::set("dash") << unset;
        QTest::addRow("a value in ~/.profile reaches no fish")
            << "fish"
            << ".profile" << QByteArray("export FOO=profile\n") << unset << unset;
        QTest::addRow("a value in fish's conf.d reaches every fish")
            << "fish"
            << ".config/fish/conf.d/a.fish" << QByteArray("set -gx FOO fish\n")
            << ReachResult::set("fish") << ReachResult::set("fish");
        QTest::addRow("a value fish sets for logins only misses a fish terminal")
            << "fish"
            << ".config/fish/config.fish"
            << QByteArray("if status is-login\n    set -gx FOO login\nend\n")
            << ReachResult::set("login") << unset;
        QTest::addRow("a value in ~/.login reaches a tcsh login shell, not a terminal")
            << "tcsh"
            << ".login" << QByteArray("setenv FOO login\n") << ReachResult::set("login") << unset;
        QTest::addRow("a value in the sysroot's /etc/profile reaches a bash login shell")
            << "bash"
            << "/etc/profile" << QByteArray("export FOO=system\n") << ReachResult::set("system")
            << unset;
    }
    void startupFileReachesItsContexts()
    {
        QFETCH(QString, shell);
        QFETCH(QString, file);
        QFETCH(QByteArray, contents);
        QFETCH(ReachResult, login);
        QFETCH(ReachResult, interactive);
        if (program(shell).isEmpty())
            QSKIP("the shell is not installed; tools/setup.sh test installs it");
        Sandbox::writeFile(
            file.startsWith('/') ? Sandbox::system(file) : Sandbox::home() + '/' + file, contents);

        const Answers answers = askShell(program(shell), "FOO");

        QCOMPARE(withoutOrigin(answers.login), login);
        QCOMPARE(withoutOrigin(answers.interactive), interactive);
    }

    void shellNamesTheLineThatAssigned_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("line");
        QTest::addRow("zsh names the export in ~/.zshenv")
            << "zsh"
            << ".zshenv" << QByteArray("# mine\n\nexport FOO=1\n") << "FOO" << 3;
        QTest::addRow("zsh names the later of two assignments")
            << "zsh"
            << ".zshenv" << QByteArray("FOO=1\nexport FOO\nFOO=2\n") << "FOO" << 3;
        QTest::addRow("zsh names a line that adds to the path array for PATH")
            << "zsh"
            << ".zshenv" << QByteArray("true\npath+=(/opt/bin)\n") << "PATH" << 2;
        QTest::addRow("zsh names the sysroot's system file")
            << "zsh"
            << "/etc/zsh/zshenv" << QByteArray("export FOO=system\n") << "FOO" << 1;
        QTest::addRow("bash names the line in ~/.profile")
            << "bash"
            << ".profile" << QByteArray("\nFOO=a\nexport FOO\n") << "FOO" << 2;
    }
    void shellNamesTheLineThatAssigned()
    {
        QFETCH(QString, shell);
        QFETCH(QString, file);
        QFETCH(QByteArray, contents);
        QFETCH(QString, name);
        QFETCH(int, line);
        if (shell == "bash" && ::geteuid() == 0)
            QSKIP("bash takes no PS4 from the environment when run as root");
        const QString path =
            file.startsWith('/') ? Sandbox::system(file) : Sandbox::home() + '/' + file;
        Sandbox::writeFile(path, contents);

        const Answers answers = askShell(program(shell), name);

        QCOMPARE(answers.login.state, State::Set);
        QCOMPARE(answers.login.originFile, path);
        QCOMPARE(answers.login.originLine, line);
    }

    void valueFromTheStartHasNoOrigin()
    {
        const Answers answers = askShell(program("zsh"), "HOME");
        QCOMPARE(answers.login, ReachResult::set(Sandbox::home()));
    }

    void misbehavingStartupFileGivesARow_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<ReachResult>("login");
        QTest::addRow("what a start-up file prints is ignored")
            << "bash"
            << ".profile" << QByteArray("echo noise; printf '<<'\nexport FOO=quiet\n")
            << ReachResult::set("quiet");
        QTest::addRow("a start-up file that reads gets the end of the input")
            << "bash"
            << ".profile" << QByteArray("read line\nexport FOO=\"read:$line\"\n")
            << ReachResult::set("read:");
        QTest::addRow("a start-up file that execs another program")
            << "bash"
            << ".profile" << QByteArray("exec /bin/true\n")
            << ReachResult::failed("bash ended without printing the variable: a start-up file "
                                   "may end it with exec or exit");
        QTest::addRow("a start-up file that exits with a status")
            << "bash"
            << ".profile" << QByteArray("exit 7\n")
            << ReachResult::failed("bash exited with status 7 before it printed the variable");
        QTest::addRow("a shell killed by a signal")
            << "bash"
            << ".profile" << QByteArray("kill -TERM $$\n")
            << ReachResult::failed("bash was killed by signal SIGTERM before it printed the "
                                   "variable");
        QTest::addRow("a start-up file that prints more than 1 MiB")
            << "bash"
            << ".profile" << QByteArray("head -c 1200000 /dev/zero\n")
            << ReachResult::failed("bash printed more than 1 MiB while starting, so it was "
                                   "stopped");
        QTest::addRow("a failing last command does not matter")
            << "bash"
            << ".profile" << QByteArray("export FOO=x\nfalse\n") << ReachResult::set("x");
        QTest::addRow("a job left in the background does not hold the answer")
            << "bash"
            << ".profile" << QByteArray("sleep 30 &\nexport FOO=bg\n") << ReachResult::set("bg");
        QTest::addRow("a logout file that fails after the answer does not matter")
            << "zsh"
            << ".zlogout" << QByteArray("exit 3\n") << ReachResult::notSet();
    }
    void misbehavingStartupFileGivesARow()
    {
        QFETCH(QString, shell);
        QFETCH(QString, file);
        QFETCH(QByteArray, contents);
        QFETCH(ReachResult, login);
        Sandbox::writeFile(Sandbox::home() + '/' + file, contents);

        const Answers answers = askShell(program(shell), "FOO");

        QCOMPARE(withoutOrigin(answers.login), login);
        QVERIFY2(answers.milliseconds < 2000, "only a start-up file that hangs takes long");
    }

    void startupFileThatSleepsTimesOut()
    {
        Sandbox::writeFile(Sandbox::home() + "/.zshenv", "sleep 987654\n");

        const Answers answers = askShell(program("zsh"), "FOO");

        const ReachResult timedOut = ReachResult::failed(
            "zsh did not finish in 3 seconds: a start-up file may wait for input");
        QCOMPARE(answers.login, timedOut);
        QCOMPARE(answers.interactive, timedOut);
        QCOMPARE(answers.contextSignals, 2);
        QCOMPARE(answers.finishedSignals, 1);
        QVERIFY2(answers.milliseconds >= 0 && answers.milliseconds < 4000, "a bound, not a goal");
        QVERIFY2(gone("987654"), "the sleep the start-up file started was killed with zsh");
    }

    void cancellingKillsTheShellsAtOnce()
    {
        Sandbox::writeFile(Sandbox::home() + "/.profile", "sleep 876543\n");
        Sandbox::writeFile(Sandbox::home() + "/.bashrc", "sleep 876543\n");
        auto *probe = new ShellProbe;
        QSignalSpy contexts(probe, &ShellProbe::contextFinished);
        QSignalSpy finished(probe, &ShellProbe::finished);
        probe->start(loginOf(program("bash")), "FOO");
        QTRY_COMPARE(processesWith("876543").size(), 2);

        probe->cancel();

        QVERIFY2(gone("876543"), "both shells and their sleeps were killed");
        QVERIFY(!probe->isRunning());
        QTest::qWait(50);
        QCOMPARE(contexts.count() + finished.count(), 0);
        delete probe;
    }

    void destroyingTheProbeKillsTheShells()
    {
        Sandbox::writeFile(Sandbox::home() + "/.zshenv", "sleep 765432\n");
        auto *probe = new ShellProbe;
        probe->start(loginOf(program("zsh")), "FOO");
        QTRY_COMPARE(processesWith("765432").size(), 2);

        delete probe;

        QVERIFY2(gone("765432"), "both shells and their sleeps were killed");
    }

    void valueComesBackExactly_data()
    {
        QTest::addColumn<QByteArray>("assignment");
        QTest::addColumn<QString>("value");
        QTest::addRow("line breaks") << QByteArray("'one\ntwo\n'") << "one\ntwo\n";
        QTest::addRow("dollars") << QByteArray("'$HOME a$b $'") << "$HOME a$b $";
        QTest::addRow("both quotes") << QByteArray("\"it's \\\"so\\\"\"") << "it's \"so\"";
        QTest::addRow("backslashes") << QByteArray("'a\\b\\\\c\\'") << "a\\b\\\\c\\";
        QTest::addRow("an empty value") << QByteArray("") << "";
        QTest::addRow("letters beyond ASCII") << QByteArray("'Grüße, мир'") << "Grüße, мир";
        QTest::addRow("a value of 100 KB")
            << QByteArray(102400, 'v') << QString(102400, QLatin1Char('v'));
    }
    void valueComesBackExactly()
    {
        QFETCH(QByteArray, assignment);
        QFETCH(QString, value);
        Sandbox::writeFile(Sandbox::home() + "/.profile", "export FOO=" + assignment + "\n");

        const Answers answers = askShell(program("bash"), "FOO");

        QCOMPARE(answers.login.state, State::Set);
        QCOMPARE(answers.login.value, value);
    }

    void shellThatCannotBeAskedSaysWhy_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("failure");
        const QString missing = Sandbox::home() + "/missing/zsh";
        QTest::addRow("a shell that is not installed")
            << missing << "FOO"
            << "zsh is not installed: " + missing + " was not found";
        QTest::addRow("a program that is no shell this program knows")
            << "/usr/bin/env"
            << "FOO"
            << "/usr/bin/env is not a shell this program knows how to ask (bash, sh, dash, zsh, "
               "fish, csh and tcsh are)";
        QTest::addRow("a name no shell accepts") << "/bin/bash"
                                                 << "1FOO"
                                                 << "1FOO is not a valid variable name";
    }
    void shellThatCannotBeAskedSaysWhy()
    {
        QFETCH(QString, shell);
        QFETCH(QString, name);
        QFETCH(QString, failure);
        const Answers answers = askShell(shell, name);
        QCOMPARE(answers.login, ReachResult::failed(failure));
        QCOMPARE(answers.interactive, ReachResult::failed(failure));
        QCOMPARE(answers.contextSignals, 2);
        QCOMPARE(answers.finishedSignals, 1);
    }

    void environmentDFileReachesTheGenerator()
    {
        const QString user = Sandbox::home() + "/.config/environment.d/50-user.conf";
        const QString system = Sandbox::system("/etc/environment.d/40-system.conf");
        Sandbox::writeFile(user, "# mine\nFOO=user\n");
        Sandbox::writeFile(system, "BAR=system\n");
        QMap<QString, QString> variables;

        QCOMPARE(askGenerator("FOO", &variables), ReachResult::set("user", user));
        QCOMPARE(askGenerator("BAR"), ReachResult::set("system", system));
        QCOMPARE(askGenerator("BAZ"), ReachResult::notSet());
        QCOMPARE(variables.keys(), QStringList({"BAR", "FOO"})); // nothing of the real /etc
    }

    void missingGeneratorSaysSo()
    {
        const QString missing = Sandbox::home() + "/missing/" + GeneratorProbe::fileName();
        QCOMPARE(askGenerator("FOO", nullptr, missing),
                 ReachResult::failed("the systemd environment generator is not installed: " +
                                     missing + " was not found"));
    }

    void sysrootFolderThisSystemLacksIsRefused()
    {
        if (QFileInfo::exists("/run/environment.d"))
            QSKIP("this system has /run/environment.d");
        QDir().mkpath(Sandbox::system("/run/environment.d"));
        const auto removeRun =
            qScopeGuard([] { QDir(Sandbox::system("/run")).removeRecursively(); });
        QCOMPARE(askGenerator("FOO"),
                 ReachResult::failed(
                     "the systemd environment generator cannot run with the system folders of " +
                     Sandbox::sysroot() + ": this system has no folder /run/environment.d to put " +
                     Sandbox::system("/run/environment.d") + " over"));
    }

    void generatorOutputIsReadAsTheManagerReadsIt_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("value");
        QTest::addRow("a bare value") << QByteArray("FOO=a:b\n") << "a:b";
        QTest::addRow("a quoted value with escapes")
            << QByteArray("FOO=\"a \\\"b\\\" \\$c \\\\d \\`e\"\n") << "a \"b\" $c \\d `e";
        QTest::addRow("a tab's escape stays as it is") << QByteArray("FOO=\"a\\tb\"\n") << "a\\tb";
        QTest::addRow("the last of two lines counts") << QByteArray("FOO=1\nFOO=2\n") << "2";
        QTest::addRow("a line no manager could read") << QByteArray("FOO=\"open\n") << QString();
    }
    void generatorOutputIsReadAsTheManagerReadsIt()
    {
        QFETCH(QByteArray, output);
        QFETCH(QString, value);
        QByteArray badLine;
        const auto variables = GeneratorProbe::parseOutput(output, &badLine);
        QCOMPARE(variables.has_value(), !value.isNull());
        if (variables)
            QCOMPARE(variables->value("FOO"), value);
        else
            QCOMPARE(badLine, output.trimmed());
    }

    void environmentDLineComesBackFromTheGenerator_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("references");
        QTest::addColumn<QString>("expected");
        const QString home = Sandbox::home();
        QTest::addRow("a plain value") << "plain" << QStringList() << "plain";
        QTest::addRow("a dollar not meant as a reference")
            << "a$b ${c} $" << QStringList() << "a$b ${c} $";
        QTest::addRow("references to HOME and PATH")
            << "$HOME/bin:$PATH" << QStringList({"HOME", "PATH"}) << home + "/bin:/usr/bin:/bin";
        QTest::addRow("a braced reference next to letters, a reference not named")
            << "${HOME}x and $PATH" << QStringList({"HOME"}) << home + "x and $PATH";
        QTest::addRow("double and single quotes")
            << "\"a\" it's \"" << QStringList() << "\"a\" it's \"";
        QTest::addRow("a leading single quote") << "'x'" << QStringList() << "'x'";
        QTest::addRow("backslashes, one at the end")
            << "a\\b\\\\c\\" << QStringList() << "a\\b\\\\c\\";
        QTest::addRow("blanks around the value") << "  a b  " << QStringList() << "  a b  ";
        QTest::addRow("a hash and a backquote") << "#x `y`" << QStringList() << "#x `y`";
        QTest::addRow("letters beyond ASCII") << "Grüße, мир" << QStringList() << "Grüße, мир";
        QTest::addRow("a value of 100 KB")
            << QString(102400, 'v') << QStringList() << QString(102400, 'v');
    }
    void environmentDLineComesBackFromTheGenerator()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, references);
        QFETCH(QString, expected);
        const FormattedLine line = EnvironmentDFormat::line("FOO", value, references);
        QVERIFY2(line.ok(), qPrintable(line.refusal));
        const QString path =
            OwnedFile::path(OwnedFile::Kind::EnvironmentD, Sandbox::home() + "/.config");
        Sandbox::writeFile(
            path, OwnedFile::withLine(OwnedFile::Kind::EnvironmentD, {}, "FOO", line.text).bytes);

        QCOMPARE(askGenerator("FOO"), ReachResult::set(expected, path));
    }

    void environmentDLineText_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("references");
        QTest::addColumn<QString>("line");
        QTest::addRow("a literal dollar is doubled") << "a$b" << QStringList() << "FOO=a$$b";
        QTest::addRow("named references stay")
            << "$HOME/bin:$PATH" << QStringList({"HOME", "PATH"}) << "FOO=$HOME/bin:$PATH";
        QTest::addRow("a backslash puts the value in double quotes")
            << "a\\\"" << QStringList() << "FOO=\"a\\\\\\\"\"";
    }
    void environmentDLineText()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, references);
        QFETCH(QString, line);
        QCOMPARE(EnvironmentDFormat::line("FOO", value, references).text, line);
        QCOMPARE(EnvironmentDFormat::referencesIn("$HOME/bin:${PATH}:$HOME:$$:$1"),
                 QStringList({"HOME", "PATH"}));
    }

    void environmentDRefusesWhatItCannotHold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("refusal");
        QTest::addRow("a line break") << "FOO"
                                      << "a\nb"
                                      << "environment.d cannot hold a value with a line break";
        QTest::addRow("a tab") << "FOO"
                               << "a\tb"
                               << "environment.d cannot pass on a value with a tab or another "
                                  "control character as it is";
        QTest::addRow("the empty value") << "FOO"
                                         << ""
                                         << "environment.d cannot set a variable to an empty value";
        QTest::addRow("a name with a dash")
            << "FOO-BAR"
            << "x"
            << "FOO-BAR is not a variable name environment.d accepts";
    }
    void environmentDRefusesWhatItCannotHold()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QString, refusal);
        const FormattedLine line = EnvironmentDFormat::line(name, value);
        QCOMPARE(line.refusal, refusal);
        QCOMPARE(line.text, QString());
    }

    void fishLineComesBackFromFish_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("references");
        QTest::addColumn<QString>("expected");
        const QString home = Sandbox::home();
        QTest::addRow("a plain value") << "FOO"
                                       << "plain" << QStringList() << "plain";
        QTest::addRow("blanks, quotes and backslashes")
            << "FOO"
            << " it's \"a\\b\" \\" << QStringList() << " it's \"a\\b\" \\";
        QTest::addRow("dollars, braces and stars")
            << "FOO"
            << "$HOME ${x} {a,b} *" << QStringList() << "$HOME ${x} {a,b} *";
        QTest::addRow("line breaks") << "FOO"
                                     << "\none\n\ntwo\n"
                                     << QStringList() << "\none\n\ntwo\n";
        QTest::addRow("a leading dash and tilde") << "FOO"
                                                  << "--help ~" << QStringList() << "--help ~";
        QTest::addRow("an empty value") << "FOO"
                                        << "" << QStringList() << "";
        QTest::addRow("a reference to HOME")
            << "FOO"
            << "$HOME/bin" << QStringList({"HOME"}) << home + "/bin";
        QTest::addRow("a PATH-like list with an empty part")
            << "MANPATH"
            << "/a:/b c::" << QStringList() << "/a:/b c::";
        QTest::addRow("a value of 100 KB")
            << "FOO" << QString(102400, 'v') << QStringList() << QString(102400, 'v');
    }
    void fishLineComesBackFromFish()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QStringList, references);
        QFETCH(QString, expected);
        const FormattedLine line = FishFormat::line(name, value, references);
        QVERIFY2(line.ok(), qPrintable(line.refusal));
        const QString path = OwnedFile::path(OwnedFile::Kind::Fish, Sandbox::home() + "/.config");
        Sandbox::writeFile(path,
                           OwnedFile::withLine(OwnedFile::Kind::Fish, {}, name, line.text).bytes);

        const Answers answers = askShell(program("fish"), name);

        QCOMPARE(answers.login, ReachResult::set(expected));
        QCOMPARE(answers.interactive, ReachResult::set(expected));
    }

    void fishPathKeepsFishsOwnPathAfterANewElement()
    {
        const QString before = askShell(program("fish"), "PATH").login.value;
        const QString path = OwnedFile::path(OwnedFile::Kind::Fish, Sandbox::home() + "/.config");
        const FormattedLine line = FishFormat::line("PATH", "$HOME/bin:$PATH", {"HOME", "PATH"});
        QCOMPARE(line.text, "set -gx PATH \"$HOME\"/bin $PATH");
        Sandbox::writeFile(path, line.text.toUtf8() + '\n');

        QCOMPARE(askShell(program("fish"), "PATH").login.value, Sandbox::home() + "/bin:" + before);
    }

    void fishLineText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("line");
        QTest::addRow("a PATH-like value becomes a list") << "PATH"
                                                          << "/a:/b"
                                                          << "set -gx PATH /a /b";
        QTest::addRow("a value with a blank is quoted") << "FOO"
                                                        << "a b"
                                                        << "set -gx FOO 'a b'";
        QTest::addRow("a quote and a line break") << "FOO"
                                                  << "it's\nx"
                                                  << "set -gx FOO 'it\\'s'\\n'x'";
    }
    void fishLineText()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QString, line);
        QCOMPARE(FishFormat::line(name, value).text, line);
    }

    void ownedFileGetsTheLine_data()
    {
        QTest::addColumn<OwnedFile::Kind>("kind");
        QTest::addColumn<Bytes>("current");
        QTest::addColumn<QByteArray>("expected");
        const auto envD = OwnedFile::Kind::EnvironmentD;
        const QByteArray header = OwnedFile::header() + '\n';
        QTest::addRow("a new file starts with the comment that it is ours")
            << envD << Bytes() << header + "FOO=new\n";
        QTest::addRow("an empty file gets the comment too")
            << envD << Bytes("") << header + "FOO=new\n";
        QTest::addRow("the name's line is replaced, comments and blank lines kept")
            << envD << Bytes("# x\n\nA=1\nFOO=old\n\n# y\n")
            << QByteArray("# x\n\nA=1\nFOO=new\n\n# y\n");
        QTest::addRow("a repeated name replaces its last line")
            << envD << Bytes("FOO=1\nB=2\n  FOO=3\n") << QByteArray("FOO=1\nB=2\nFOO=new\n");
        QTest::addRow("a longer name with the same start is another variable")
            << envD << Bytes("FOOBAR=1\n") << QByteArray("FOOBAR=1\nFOO=new\n");
        QTest::addRow("a file without a last line end gets one before the new line")
            << envD << Bytes("A=1") << QByteArray("A=1\nFOO=new\n");
        QTest::addRow("a replaced line keeps its CRLF and the last line its missing end")
            << envD << Bytes("FOO=1\r\nB=2") << QByteArray("FOO=new\r\nB=2");
        QTest::addRow("fish's set line of the name is replaced")
            << OwnedFile::Kind::Fish << Bytes("set -x FOO old\nset -gx FOOD 1\n")
            << QByteArray("set -gx FOO new\nset -gx FOOD 1\n");
    }
    void ownedFileGetsTheLine()
    {
        QFETCH(OwnedFile::Kind, kind);
        QFETCH(Bytes, current);
        QFETCH(QByteArray, expected);
        const QString line = kind == OwnedFile::Kind::Fish ? "set -gx FOO new" : "FOO=new";
        const OwnedFile::Edit edit = OwnedFile::withLine(kind, current, "FOO", line);
        QVERIFY2(edit.ok(), qPrintable(edit.refusal));
        QCOMPARE(edit.bytes, expected);
    }

    void ownedFileLeavesContinuedLinesAlone_data()
    {
        QTest::addColumn<QByteArray>("current");
        QTest::addColumn<QString>("refusal");
        QTest::addRow("the name's line goes on in the next")
            << QByteArray("FOO=a\\\nb\n")
            << "line 1 of 60-orv-admin-env.conf continues on the next line, so it is left for "
               "you to change";
        QTest::addRow("the last line would swallow the new one")
            << QByteArray("A=1\n# note \\\n")
            << "the last line of 60-orv-admin-env.conf ends in a backslash, which would join "
               "the new line to it";
    }
    void ownedFileLeavesContinuedLinesAlone()
    {
        QFETCH(QByteArray, current);
        QFETCH(QString, refusal);
        const OwnedFile::Edit edit =
            OwnedFile::withLine(OwnedFile::Kind::EnvironmentD, current, "FOO", "FOO=new");
        QCOMPARE(edit.refusal, refusal);
        QCOMPARE(edit.bytes, QByteArray());
    }

    void etcEnvironmentIsReadAsPamReadsIt_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<ReachResult>("result");
        const QString path = Sandbox::system("/etc/environment");
        QTest::addRow("a plain entry")
            << QByteArray("# c\nFOO=a b\n") << ReachResult::set("a b", path, 2);
        QTest::addRow("quotes around the value come off, export is allowed")
            << QByteArray("export FOO=\"x y\"\n") << ReachResult::set("x y", path, 1);
        QTest::addRow("a hash ends the value")
            << QByteArray("FOO=a#b\n") << ReachResult::set("a", path, 1);
        QTest::addRow("a backslash joins the next line")
            << QByteArray("\nFOO=a\\\nb\n") << ReachResult::set("a b", path, 2);
        QTest::addRow("the last entry counts, nothing expands")
            << QByteArray("FOO=1\nFOO=$HOME\n") << ReachResult::set("$HOME", path, 2);
        QTest::addRow("a file without the name") << QByteArray("BAR=1\n") << ReachResult::notSet();
    }
    void etcEnvironmentIsReadAsPamReadsIt()
    {
        QFETCH(QByteArray, contents);
        QFETCH(ReachResult, result);
        Sandbox::writeFile(Sandbox::system("/etc/environment"), contents);
        QCOMPARE(EtcEnvironment::lookup(Sandbox::system("/etc/environment"), "FOO"), result);
    }

    void etcEnvironmentThatCannotBeReadSaysWhy()
    {
        const QString path = Sandbox::system("/etc/environment");
        QCOMPARE(EtcEnvironment::lookup(path, "FOO"), ReachResult::notSet());
        Sandbox::blockPath(path);
        QCOMPARE(EtcEnvironment::lookup(path, "FOO"),
                 ReachResult::failed(path + " cannot be read: it is not a regular file"));
    }
};

ORV_SANDBOX_CORE_TEST_MAIN(TestReach)
#include "tst_reach.moc"
