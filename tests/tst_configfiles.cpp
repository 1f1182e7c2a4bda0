#include "evemodel.h"
#include "sandboxtest.h"

// "~/" stands for the sandbox home and "/" for the sandbox root; other names
// stand for themselves.
static QString place(const QString &path)
{
    if (path.startsWith("~/"))
        return Sandbox::home() + path.mid(1);
    return path.startsWith('/') ? Sandbox::system(path) : path;
}

static QStringList place(QStringList paths)
{
    for (QString &path : paths)
        path = place(path);
    return paths;
}

class TestConfigFiles : public SandboxTest
{
    Q_OBJECT

private slots:
    void shellAndOpenableFilesDecideTheFiles_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QStringList>("unopenable");
        QTest::addColumn<int>("kind"); // 0 other, 1 bash, 2 csh
        QTest::addColumn<QString>("localFile");
        QTest::addColumn<QString>("globalFile");
        const auto row = [](const char *name, const char *shell, const QStringList &unopenable,
                            int kind, const char *local, const char *global) {
            QTest::newRow(name) << shell << unopenable << kind << local << global;
        };
        const char *localScratch = "/tmp/orv-admin-env-localfile";
        row("bash in capitals", "/bin/BASH", {}, 1, "~/.bashrc", "/etc/bash.bashrc");
        row("tcsh in capitals", "/bin/TCSH", {}, 2, "~/.cshrc", "/etc/csh.cshrc");
        row("zsh is another shell", "/bin/zsh", {}, 0, "~/.profile", "/etc/profile");
        row("bash takes ~/.bash_profile next", "/bin/bash", {"~/.bashrc"}, 1, "~/.bash_profile",
            "/etc/bash.bashrc");
        row("bash takes ~/.profile last", "/bin/bash", {"~/.bashrc", "~/.bash_profile"}, 1,
            "~/.profile", "/etc/bash.bashrc");
        row("csh takes ~/.tcshrc next", "/bin/csh", {"~/.cshrc"}, 2, "~/.tcshrc", "/etc/csh.cshrc");
        row("no user file at all", "/bin/csh", {"~/.cshrc", "~/.tcshrc", "~/.profile"}, 2,
            localScratch, "/etc/csh.cshrc");
        row("no shell's system file", "/bin/bash", {"/etc/bash.bashrc"}, 1, "~/.bashrc",
            "/etc/profile");
        row("no system file at all", "/bin/bash", {"/etc/bash.bashrc", "/etc/profile"}, 1,
            "~/.bashrc", "/tmp/orv-admin-env-globalfile");
    }
    void shellAndOpenableFilesDecideTheFiles()
    {
        QFETCH(QString, shell);
        QFETCH(QStringList, unopenable);
        QFETCH(int, kind);
        QFETCH(QString, localFile);
        QFETCH(QString, globalFile);
        for (const QString &path : unopenable)
            Sandbox::blockPath(place(path));
        Sandbox::setEnvironment({"HOME=" + Sandbox::home(), "LOGNAME=tester", "SHELL=" + shell});
        if (unopenable.contains("/etc/profile")) // scanned as well, so reported
            answerer->addAnswer("OK");
        EveModel model;
        QCOMPARE(model.ShellKind, kind);
        QCOMPARE(model.bashShell, kind == 1);
        QCOMPARE(model.localFile, place(localFile));
        QCOMPARE(model.globalFile, place(globalFile));
        QVERIFY2(QFileInfo(model.localFile).isFile() || localFile.startsWith("/tmp"),
                 "the chosen user file is created");
    }

    void fileListsComeFromTheSettings_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QStringList>("storedSystemFiles");
        QTest::addColumn<QStringList>("systemFiles");
        QTest::addColumn<QStringList>("userFiles");
        const auto row = [](const char *name, const char *login, const char *shell,
                            const QStringList &stored, const QStringList &system,
                            const QStringList &user) {
            QTest::newRow(name) << login << shell << stored << system << user;
        };
        const QStringList bashFiles{"b.sh", "~/.bashrc"};
        row("a user scans /etc/profile first", "tester", "bash", {"a.sh"}, {"/etc/profile", "a.sh"},
            bashFiles);
        row("root, in any letter case, scans the shell's system file next", "Root", "bash",
            {"a.sh"}, {"/etc/profile", "/etc/bash.bashrc", "a.sh"}, bashFiles);
        row("files listed already are not added again", "root", "bash",
            {"/etc/bash.bashrc", "/etc/profile"}, {"/etc/bash.bashrc", "/etc/profile"}, bashFiles);
        row("csh reads its own list, the user file first", "tester", "tcsh", {"a.sh"},
            {"/etc/profile", "a.sh"}, {"~/.cshrc", "c.sh"});
        row("another shell reads no user list", "tester", "sh", {"a.sh"}, {"/etc/profile", "a.sh"},
            {"~/.profile"});
    }
    void fileListsComeFromTheSettings()
    {
        QFETCH(QString, login);
        QFETCH(QString, shell);
        QFETCH(QStringList, storedSystemFiles);
        QFETCH(QStringList, systemFiles);
        QFETCH(QStringList, userFiles);
        QSettings settings;
        settings.setValue("configFiles/system", place(storedSystemFiles));
        settings.setValue("configFiles/bash", place(QStringList{"b.sh", "~/.bashrc"}));
        settings.setValue("configFiles/tcsh", QStringList{"c.sh"});
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "SHELL=/bin/" + shell});
        EveModel model;
        QCOMPARE(model.systemFiles, place(systemFiles));
        QCOMPARE(model.userFiles, place(userFiles));
    }
};

ORV_SANDBOX_TEST_MAIN(TestConfigFiles)
#include "tst_configfiles.moc"
