#include "core/save/saveplan.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"

#include <sys/stat.h>

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

// Which start-up files are read and written, reading them and writing back.
class TestConfigFiles : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc", profile = Sandbox::system("/etc/profile");

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
        row("bash in capitals", "/bin/BASH", {}, 1, "~/.bashrc", "/etc/bash.bashrc");
        row("tcsh in capitals", "/bin/TCSH", {}, 2, "~/.cshrc", "/etc/csh.cshrc");
        row("zsh is another shell", "/bin/zsh", {}, 0, "~/.profile", "/etc/profile");
        row("bash takes ~/.bash_profile next", "/bin/bash", {"~/.bashrc"}, 1, "~/.bash_profile",
            "/etc/bash.bashrc");
        row("csh takes ~/.tcshrc next", "/bin/csh", {"~/.cshrc"}, 2, "~/.tcshrc", "/etc/csh.cshrc");
        row("no user file at all", "/bin/csh", {"~/.cshrc", "~/.tcshrc", "~/.profile"}, 2,
            "/tmp/orv-admin-env-localfile", "/etc/csh.cshrc");
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

    // /etc/profile comes first, for root the shell's system file next, and the
    // user's file first; a file already listed is not added again.
    void fileListsComeFromTheSettings_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QStringList>("storedSystemFiles");
        QTest::addColumn<QStringList>("systemFiles");
        QTest::addColumn<QStringList>("userFiles");
        QTest::addRow("a user of bash")
            << "tester"
            << "bash" << QStringList{"a.sh"} << QStringList{"/etc/profile", "a.sh"}
            << QStringList{"~/.bashrc", "b.sh"};
        QTest::addRow("root, in any letter case, of tcsh")
            << "Root"
            << "tcsh" << QStringList{"a.sh", "/etc/profile"}
            << QStringList{"/etc/csh.cshrc", "a.sh", "/etc/profile"}
            << QStringList{"~/.cshrc", "c.sh"};
        QTest::addRow("a user of another shell reads no user list")
            << "tester"
            << "sh" << QStringList{"a.sh"} << QStringList{"/etc/profile", "a.sh"}
            << QStringList{"~/.profile"};
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
        settings.setValue("configFiles/bash", QStringList{"b.sh"});
        settings.setValue("configFiles/tcsh", QStringList{"c.sh"});
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "SHELL=/bin/" + shell});
        EveModel model;
        QCOMPARE(model.systemFiles, place(systemFiles));
        QCOMPARE(model.userFiles, place(userFiles));
    }

    void storedDescriptionAndMarkWinOverTheCatalogue()
    {
        QSettings settings;
        settings.setValue("variables/PATH/description", "");
        settings.setValue("variables/LOGNAME/vip", "");
        settings.setValue("variables/EDITOR/description", "mine");
        settings.setValue("variables/EDITOR/vip", "true");
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        EveModel model;
        QCOMPARE(recordOf(model, "PATH").mid(3, 3), QStringList({"", "local", "true"}));
        QCOMPARE(recordOf(model, "LOGNAME").mid(3, 3), QStringList({"Your logname", "local", ""}));
        QCOMPARE(recordOf(model, "EDITOR").mid(3, 3), QStringList({"mine", "local", "true"}));
    }

    // The origin is the last file that exports the variable: system files come
    // before user files. A file that cannot be read is reported and skipped.
    void originIsTheLastReadableFileThatExports()
    {
        const QString directory = Sandbox::system("/etc/directory");
        const QString fifo = Sandbox::system("/etc/fifo"), next = Sandbox::system("/etc/next");
        Sandbox::writeFile(profile, "export PATH=/a\nexport SYS=1\nexport EDITOR=vi\n");
        Sandbox::blockPath(directory);
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        Sandbox::writeFile(next, "export EDITOR=vi\n");
        Sandbox::writeFile(bashrc, "export PATH=/b\nexport ONLY_IN_A_FILE=1\n");
        QSettings().setValue("configFiles/system", QStringList{directory, fifo, "missing", next});
        Sandbox::setUserEnvironment({"EDITOR=vim", "SYS=1"});
        answerer->addAnswer("OK");
        answerer->addAnswer("OK");
        EveModel model;
        QCOMPARE(answerer->seen.size(), 2);
        QCOMPARE(answerer->seen.at(0).text, "Couldn't open file: " + directory + " !");
        QCOMPARE(answerer->seen.at(1).text, "Couldn't open file: " + fifo + " !");
        QCOMPARE(cellOf(model, "PATH", EveModel::OriginColumn), bashrc);
        QCOMPARE(cellOf(model, "SYS", EveModel::OriginColumn), profile);
        QCOMPARE(cellOf(model, "EDITOR", EveModel::OriginColumn), next);
        QCOMPARE(rowOf(model, "ONLY_IN_A_FILE"), -1);
    }

    void reloadForgetsEditsAndDeletions()
    {
        Sandbox::writeFile(bashrc, "export EDITOR=vi\n");
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        EveModel model;
        model.insertRows(model.rowCount(), 1, {"NEW", "1"});
        model.removeRows(rowOf(model, "EDITOR"), 1);
        QSignalSpy resets(&model, &EveModel::modelReset);
        QVERIFY(model.reload());
        QCOMPARE(resets.count(), 1);
        QVERIFY(model.deletedRows.isEmpty());
        QCOMPARE(rowOf(model, "NEW"), -1);
        QCOMPARE(recordOf(model, "EDITOR").mid(1, 2), QStringList({"vim", bashrc}));
    }

    void writesTheAssignmentOfANewVariable_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, const char *before, const char *value,
                            const char *after) {
            QTest::newRow(name) << QByteArray(before) << QString(value) << QByteArray(after);
        };
        row("a new variable in an empty file", "", "1", "export FOO=1\n");
        row("a new variable becomes the first line", "x=1", "1", "export FOO=1\nx=1\n");
        row("an assignment is replaced to the end of its line", "export FOO=0 # old\n", "1",
            "export FOO=1\n");
        row("an empty new value counts as unchanged", "x=1", "", "x=1");
        row("the value is trimmed", "", "  x  ", "export FOO=x\n");
        row("a space calls for quotes", "", "a b", "export FOO=\"a b\"\n");
        row("a tab calls for quotes, so that the value stays one word", "", "a\tb",
            "export FOO=\"a\tb\"\n");
        row("double quotes get backslashes", "", "\"x y\"", "export FOO=\"\\\"x y\\\"\"\n");
    }
    void writesTheAssignmentOfANewVariable()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, value);
        Sandbox::writeFile(bashrc, before);
        EveModel model;
        model.insertRows(model.rowCount(), 1, {"FOO", value, "", "local"});
        QVERIFY(model.save());
        QTEST(Sandbox::readFile(bashrc), "after");
        QCOMPARE(cellOf(model, "FOO", EveModel::ValueColumn), value);
    }

    // A changed variable goes back to the file that exports it, else to the
    // user's file or, for root, to the global file when its scope is global;
    // an origin that cannot be opened falls back.
    void choosesTheFile()
    {
        const auto filesFor = [](bool root) {
            const QList<QStringList> rows{{"NEW", "1", "System", "", "global", "", "1"},
                                          {"OLD", "1", "/etc/x", "", "global", "", "0"},
                                          {"LOST", "1", "/etc/unopenable", "", "global", "", "0"}};
            const auto read = [](const QString &path) -> Result<SafeFile::Contents> {
                if (path == "/etc/unopenable")
                    return Failure{path, Failure::Step::Open, "cannot be opened"};
                return SafeFile::Contents();
            };
            QStringList files; // "path: the names saved there"
            for (const SavePlan::File &file :
                 planSave({rows, {}, root, "local", "global", "System"}, read).files)
                files << file.path + ": " + file.savedNames.join(' ');
            return files;
        };
        QCOMPARE(filesFor(false), QStringList({"local: NEW LOST", "/etc/x: OLD"}));
        QCOMPARE(filesFor(true), QStringList({"global: NEW LOST", "/etc/x: OLD"}));
    }

    // A variable that only the environment has is deleted without touching a file.
    void clearsChangeMarksAndPendingDeletions()
    {
        Sandbox::writeFile(bashrc, "export GONE=1\n");
        Sandbox::setUserEnvironment({"EDITOR=vim", "GONE=1", "ONLY=1"});
        EveModel model;
        model.setData(model.index(rowOf(model, "EDITOR"), EveModel::ValueColumn), "nano");
        model.insertRows(model.rowCount(), 1, {"FOO", "1"});
        model.removeRows(rowOf(model, "GONE"), 1);
        model.removeRows(rowOf(model, "ONLY"), 1);
        QVERIFY(model.save());
        QCOMPARE(Sandbox::readFile(bashrc), "export FOO=1\nexport EDITOR=nano\n \n");
        for (int row = 0; row < model.rowCount(); ++row)
            QCOMPARE(model.index(row, EveModel::PreviousColumn).data().toString(), "");
        QVERIFY(model.deletedRows.isEmpty());
    }

    void blanksTheExportOfADeletedVariable_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addRow("the only line becomes a space")
            << QByteArray("export FOO=1") << QByteArray(" \n");
        QTest::addRow("text before export and assignments without export stay")
            << QByteArray("cd; export FOO=1 # note\nFOO=2\n") << QByteArray("cd;  \nFOO=2\n");
        QTest::addRow("text between export and the name is blanked too")
            << QByteArray("export FOO=1\nexport A=1 FOO=2\n") << QByteArray(" \n \n");
    }
    void blanksTheExportOfADeletedVariable()
    {
        QFETCH(QByteArray, before);
        Sandbox::writeFile(bashrc, before);
        Sandbox::setUserEnvironment({"FOO=1"});
        EveModel model;
        model.removeRows(rowOf(model, "FOO"), 1);
        QVERIFY(model.save());
        QTEST(Sandbox::readFile(bashrc), "after");
    }

    void deletionFromAnUnopenableFileIsSkipped()
    {
        Sandbox::writeFile(profile, "export FOO=1\n");
        Sandbox::setUserEnvironment({"FOO=1"});
        EveModel model;
        model.removeRows(rowOf(model, "FOO"), 1);
        Sandbox::blockPath(profile);
        answerer->addAnswer("OK");
        QVERIFY(model.save());
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + profile + " for deleting variable FOO");
    }

    // The description of a changed row is stored before its file is opened;
    // the change marks and deletions stay for the next try.
    void unopenableFileStopsTheSave()
    {
        Sandbox::setUserEnvironment({"FOO=1"});
        EveModel model;
        model.removeRows(rowOf(model, "SHELL"), 1);
        model.setData(model.index(rowOf(model, "FOO"), 0), "FOO", "2", "stored first", "local", "",
                      "2", Qt::EditRole);
        Sandbox::blockPath(bashrc);
        answerer->addAnswer("OK");
        QVERIFY(!model.save());
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + bashrc + " for saving variable FOO");
        QCOMPARE(cellOf(model, "FOO", EveModel::PreviousColumn), "1");
        QCOMPARE(model.deletedRows.size(), 1);
        QCOMPARE(QSettings().value("variables/FOO/description").toString(), "stored first");
    }

    // Nothing of the save happens, not even the rows before the refused one.
    void aValueThatCannotBeOneWordSavesNothing()
    {
        const QByteArray before = "export FOO=1\n";
        Sandbox::writeFile(bashrc, before);
        Sandbox::setUserEnvironment({"FOO=1", "BAR=1"});
        EveModel model;
        model.setData(model.index(rowOf(model, "FOO"), 0), "FOO", "2", "not stored", "local", "",
                      "2", Qt::EditRole);
        model.setData(model.index(rowOf(model, "BAR"), 0), "BAR", "a\nb", "", "local", "", "",
                      Qt::EditRole);
        answerer->addAnswer("OK");

        QVERIFY(!model.save());

        QCOMPARE(answerer->seen.value(0).text,
                 "The value of BAR cannot be written into a start-up file: it holds a line break "
                 "or another control character. Nothing was saved.");
        QCOMPARE(Sandbox::readFile(bashrc), before);
        QVERIFY(!QSettings().contains("variables/FOO/description"));
        QCOMPARE(cellOf(model, "FOO", EveModel::PreviousColumn), "1");
    }
};

ORV_SANDBOX_TEST_MAIN(TestConfigFiles)
#include "tst_configfiles.moc"
