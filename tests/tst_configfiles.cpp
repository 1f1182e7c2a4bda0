#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"

#include <QApplication>
#include <QSettings>
#include <QtTest>

using L = QStringList;

class TestConfigFiles : public QObject
{
    Q_OBJECT

    // Paths in the tables: "~/" is the sandbox home, "/" the sandbox root.
    static L place(L paths)
    {
        return paths.replaceInStrings(QRegExp("^/"), Sandbox::sysroot() + "/")
            .replaceInStrings(QRegExp("~"), Sandbox::home());
    }

private slots:
    void chosenFiles_data()
    {
        QTest::addColumn<L>("env"); // added to an ordinary session without SHELL
        QTest::addColumn<int>("kind");
        QTest::addColumn<L>("blocked");
        QTest::addColumn<L>("files"); // local and global file
        const L bash{"SHELL=/bin/bash"}, tcsh{"SHELL=/bin/tcsh"}, sh;
        const QString bashrc = "~/.bashrc", bashGlobal = "/etc/bash.bashrc";
        const QString localScratch = "/tmp/orv-admin-env-localfile";
        const QString globalScratch = "/tmp/orv-admin-env-globalfile";
        QTest::addRow("bash") << bash << 1 << L() << L{bashrc, bashGlobal};
        QTest::addRow("BASH") << L{"SHELL=/bin/BASH"} << 1 << L() << L{bashrc, bashGlobal};
        QTest::addRow("tcsh") << tcsh << 2 << L() << L{"~/.cshrc", "/etc/csh.cshrc"};
        QTest::addRow("csh") << L{"SHELL=/bin/csh"} << 2 << L() << L{"~/.cshrc", "/etc/csh.cshrc"};
        QTest::addRow("zsh") << L{"SHELL=/usr/bin/zsh"} << 0 << L()
                             << L{"~/.profile", "/etc/profile"};
        QTest::addRow("no shell") << sh << 0 << L() << L{"~/.profile", "/etc/profile"};
        QTest::addRow("bashrc blocked")
            << bash << 1 << L{bashrc} << L{"~/.bash_profile", bashGlobal};
        QTest::addRow("bash_profile blocked")
            << bash << 1 << L{bashrc, "~/.bash_profile"} << L{"~/.profile", bashGlobal};
        QTest::addRow("home blocked") << bash << 1 << L{bashrc, "~/.bash_profile", "~/.profile"}
                                      << L{localScratch, bashGlobal};
        QTest::addRow("home missing")
            << L{"SHELL=/bin/bash", "HOME=~/no/dir"} << 1 << L() << L{localScratch, bashGlobal};
        QTest::addRow("cshrc blocked")
            << tcsh << 2 << L{"~/.cshrc"} << L{"~/.tcshrc", "/etc/csh.cshrc"};
        QTest::addRow("tcshrc blocked")
            << tcsh << 2 << L{"~/.cshrc", "~/.tcshrc"} << L{"~/.profile", "/etc/csh.cshrc"};
        QTest::addRow("bash.bashrc blocked")
            << bash << 1 << L{bashGlobal} << L{bashrc, "/etc/profile"};
        QTest::addRow("etc blocked")
            << bash << 1 << L{bashGlobal, "/etc/profile"} << L{bashrc, globalScratch};
        QTest::addRow("etc/profile blocked")
            << sh << 0 << L{"/etc/profile"} << L{"~/.profile", globalScratch};
    }
    void chosenFiles()
    {
        Sandbox sandbox;
        QFETCH(L, env);
        QFETCH(L, blocked);
        QFETCH(L, files);
        for (const QString &path : place(blocked))
            Sandbox::blockPath(path);
        Sandbox::setEnvironment(place(L{"HOME=~", "LOGNAME=tester"} + env));
        // /etc/profile is always scanned, so blocking it brings a message.
        const L answers = blocked.contains("/etc/profile") ? L{"OK"} : L();
        ModalAnswerer answerer(answers);
        EveModel model;
        QCOMPARE(answerer.seen.size(), answers.size());
        QCOMPARE(answerer.pending(), 0);
        QTEST(model.ShellKind, "kind");
        QCOMPARE(model.bashShell, model.ShellKind == EveModel::Bash);
        QCOMPARE(L({model.localFile, model.globalFile}), place(files));
        // The chosen user file now exists, empty; the scratch files are never made.
        const bool scratch = model.localFile.endsWith("-localfile");
        QCOMPARE(Sandbox::readFile(model.localFile), QByteArray(scratch ? "<unreadable>" : ""));
        QVERIFY(!QFileInfo::exists(Sandbox::system("/tmp/orv-admin-env-globalfile")));
    }

    void fileLists_data()
    {
        QTest::addColumn<QString>("logname");
        QTest::addColumn<L>("system"); // as stored in the settings
        QTest::addColumn<L>("bash");
        QTest::addColumn<QString>("shell");
        QTest::addColumn<bool>("root");
        QTest::addColumn<L>("systemFiles");
        QTest::addColumn<L>("userFiles");
        const QString profile = "/etc/profile", global = "/etc/bash.bashrc", bashrc = "~/.bashrc";
        const QString a = "/opt/a", b = "/opt/b";
        const QString bash = "/bin/bash";
        QTest::addRow("ordinary") << "tester" << L{a} << L{b} << bash << false << L{profile, a}
                                  << L{bashrc, b};
        QTest::addRow("root") << "root" << L{a} << L{b} << bash << true << L{profile, global, a}
                              << L{bashrc, b};
        QTest::addRow("Root, profile listed")
            << "Root" << L{a, profile} << L() << bash << true << L{global, a, profile} << L{bashrc};
        QTest::addRow("ROOT, all listed") << "ROOT" << L{a, global, profile} << L{b, bashrc} << bash
                                          << true << L{a, global, profile} << L{b, bashrc};
        QTest::addRow("rooter, tcsh")
            << "rooter" << L() << L{b} << "/bin/tcsh" << false << L{profile} << L{"~/.cshrc", a};
        QTest::addRow("other") << "tester" << L() << L{b} << "/bin/sh" << false << L{profile}
                               << L{"~/.profile"};
        QTest::addRow("root, other")
            << "root" << L{a} << L() << "/bin/sh" << true << L{profile, a} << L{"~/.profile"};
    }
    void fileLists()
    {
        Sandbox sandbox;
        QFETCH(QString, logname);
        QFETCH(QString, shell);
        QFETCH(QStringList, system);
        QFETCH(QStringList, bash);
        QSettings settings;
        settings.setValue("configFiles/system", place(system));
        settings.setValue("configFiles/bash", place(bash));
        settings.setValue("configFiles/tcsh", place({"/opt/a"}));
        Sandbox::setEnvironment(
            {"HOME=" + Sandbox::home(), "LOGNAME=" + logname, "SHELL=" + shell});
        EveModel model;
        QTEST(model.rootSession, "root");
        QFETCH(QStringList, systemFiles);
        QFETCH(QStringList, userFiles);
        QCOMPARE(model.systemFiles, place(systemFiles));
        QCOMPARE(model.userFiles, place(userFiles));
    }
};

ORV_SANDBOX_TEST_MAIN(TestConfigFiles)
#include "tst_configfiles.moc"
