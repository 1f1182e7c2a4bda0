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

    // Space-separated paths: a leading "/" is the sandbox root, "~" the sandbox home.
    static L place(const QString &paths)
    {
        return paths.split(' ', Qt::SkipEmptyParts)
            .replaceInStrings(QRegExp("^/"), Sandbox::sysroot() + "/")
            .replaceInStrings("~", Sandbox::home());
    }

private slots:
    void chosenFiles_data()
    {
        QTest::addColumn<L>("row"); // tag, environment, blocked paths, kind, local and global file
        const QList<L> rows{
            {"bash", "SHELL=/bin/bash", "", "1 ~/.bashrc /etc/bash.bashrc"},
            {"BASH", "SHELL=/bin/BASH", "", "1 ~/.bashrc /etc/bash.bashrc"},
            {"tcsh", "SHELL=/bin/tcsh", "", "2 ~/.cshrc /etc/csh.cshrc"},
            {"csh", "SHELL=/bin/csh", "", "2 ~/.cshrc /etc/csh.cshrc"},
            {"zsh", "SHELL=/bin/zsh", "", "0 ~/.profile /etc/profile"},
            {"none", "", "", "0 ~/.profile /etc/profile"},
            {"first blocked", "SHELL=bash", "~/.bashrc", "1 ~/.bash_profile /etc/bash.bashrc"},
            {"both", "SHELL=bash", "~/.bashrc ~/.bash_profile", "1 ~/.profile /etc/bash.bashrc"},
            {"home missing", "HOME=~/x", "", "0 /tmp/orv-admin-env-localfile /etc/profile"},
            {"global blocked", "SHELL=bash", "/etc/bash.bashrc", "1 ~/.bashrc /etc/profile"},
            {"etc blocked", "", "/etc/profile", "0 ~/.profile /tmp/orv-admin-env-globalfile"}};
        for (const L &row : rows)
            QTest::newRow(qPrintable(row[0])) << row;
    }
    void chosenFiles()
    {
        Sandbox sandbox;
        QFETCH(L, row);
        for (const QString &path : place(row[2]))
            Sandbox::blockPath(path);
        Sandbox::setEnvironment(place("HOME=~ LOGNAME=tester " + row[1]));
        ModalAnswerer answerer({"OK", "OK"}); // a spare: only a blocked /etc/profile brings a box
        EveModel model;
        QCOMPARE(answerer.pending(), row[2].contains("/etc/profile") ? 1 : 2);
        QCOMPARE(model.bashShell, model.ShellKind == EveModel::Bash);
        // The chosen user file now exists, empty; the scratch files are never made.
        QCOMPARE(L({QString::number(model.ShellKind), model.localFile, model.globalFile,
                    Sandbox::readFile(model.localFile)}),
                 place(row[3]) << (row[0] == "home missing" ? "<unreadable>" : ""));
        QVERIFY(!QFileInfo::exists(Sandbox::system("/tmp/orv-admin-env-globalfile")));
    }

    void fileLists_data()
    {
        // LOGNAME and shell, stored system | bash | tcsh lists, then root and system | user files
        QTest::addColumn<L>("row");
        const QList<L> rows{
            {"tester bash", "/a | /b | /a", "0 /etc/profile /a | ~/.bashrc /b"},
            {"root bash", "/a | /b", "1 /etc/profile /etc/bash.bashrc /a | ~/.bashrc /b"},
            {"Root bash", "/etc/profile | ~/.bashrc",
             "1 /etc/bash.bashrc /etc/profile | ~/.bashrc"},
            {"ROOT bash", "/etc/bash.bashrc |", "1 /etc/profile /etc/bash.bashrc | ~/.bashrc"},
            {"rooter tcsh", "| /b | /a", "0 /etc/profile | ~/.cshrc /a"},
            {"tester sh", "| /b | /a", "0 /etc/profile | ~/.profile"}};
        for (const L &row : rows)
            QTest::newRow(qPrintable(row[0])) << row;
    }
    void fileLists()
    {
        Sandbox sandbox;
        QFETCH(L, row);
        for (int i = 0; i < 3; ++i)
            QSettings().setValue("configFiles/" + L{"system", "bash", "tcsh"}[i],
                                 place(row[1].section('|', i, i)));
        Sandbox::setEnvironment(place("HOME=~ LOGNAME=" + row[0].replace(" ", " SHELL=/bin/")));
        EveModel model;
        const L files = model.systemFiles + L{"|"} + model.userFiles;
        QCOMPARE(L{QString::number(model.rootSession)} + files, place(row[2]));
    }
};

ORV_SANDBOX_TEST_MAIN(TestConfigFiles)
#include "tst_configfiles.moc"
