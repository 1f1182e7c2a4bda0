#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"

static QString bashrc()
{
    return Sandbox::home() + "/.bashrc";
}

static QString profile()
{
    return Sandbox::system("/etc/profile");
}

// Sets a variable as the editor dialog does: a known one through the record
// update, a new one as a new row.
static void change(EveModel &model, const QString &name, const QString &value,
                   const QString &scope = "local", const QString &description = QString())
{
    const int row = rowOf(model, name);
    if (row < 0)
        model.insertRows(model.rowCount(), 1, {name, value, description, scope});
    else
        model.setData(model.index(row, 0), name, value, description, scope, "", value, 2);
}

class TestSaving : public SandboxTest
{
    Q_OBJECT

private slots:
    void writesTheAssignment_data()
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
        row("every line holding the assignment is rewritten", "FOO=0\nexport FOO=0\n", "1",
            "FOO=1\nexport FOO=1\n");
        row("a longer name ending alike is rewritten too", "export MYFOO=0\n", "1",
            "export MYFOO=1\n");
        row("other lines keep their bytes", "# \xe9\r\nexport FOO=0\r\n", "1",
            "# \xe9\nexport FOO=1\n");
        row("the value is trimmed", "", "  x  ", "export FOO=x\n");
        row("an empty new value counts as unchanged", "x=1", "", "x=1");
        row("a space calls for quotes", "", "a b", "export FOO=\"a b\"\n");
        row("a tab calls for no quotes", "", "a\tb", "export FOO=a\tb\n");
        row("double quotes get backslashes", "", "\"x y\"", "export FOO=\"\\\"x y\\\"\"\n");
    }
    void writesTheAssignment()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, value);
        Sandbox::writeFile(bashrc(), before);
        EveModel model;
        change(model, "FOO", value);
        QVERIFY(model.save());
        QTEST(Sandbox::readFile(bashrc()), "after");
        QCOMPARE(cellOf(model, "FOO", EveModel::ValueColumn), value);
    }

    void choosesTheFile_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QString>("scope");
        QTest::addColumn<bool>("inProfile"); // /etc/profile exports the variable
        QTest::addColumn<bool>("profileBlocked");
        QTest::addColumn<QString>("written");
        const auto row = [](const char *name, const char *login, const char *scope, bool inProfile,
                            bool profileBlocked, const QString &written) {
            QTest::newRow(name) << login << scope << inProfile << profileBlocked << written;
        };
        const QString user = bashrc(), system = Sandbox::system("/etc/bash.bashrc");
        row("a user's new variable goes to the user's file", "tester", "local", false, false, user);
        row("a user's global variable goes to the user's file", "tester", "global", false, false,
            user);
        row("root's global variable goes to the shell's system file", "root", "global", false,
            false, system);
        row("an exported variable goes back to its file", "tester", "local", true, false,
            profile());
        row("root's exported global variable goes back to its file", "root", "global", true, false,
            profile());
        row("a variable whose file cannot be opened goes to the user's file", "tester", "local",
            true, true, user);
    }
    void choosesTheFile()
    {
        QFETCH(QString, login);
        QFETCH(QString, scope);
        QFETCH(bool, inProfile);
        QFETCH(bool, profileBlocked);
        QFETCH(QString, written);
        Sandbox::writeFile(profile(), inProfile ? "export FOO=0\n" : "");
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "FOO=0"});
        EveModel model;
        if (profileBlocked)
            Sandbox::blockPath(profile());
        const QStringList files{bashrc(), profile(), Sandbox::system("/etc/bash.bashrc")};
        QByteArrayList before;
        for (const QString &file : files)
            before << Sandbox::readFile(file);
        change(model, "FOO", "1", scope);
        QVERIFY(model.save());
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(Sandbox::readFile(files[i]),
                     files[i] == written ? QByteArray("export FOO=1\n") : before[i]);
    }

    void storesDescriptionAndMarkOfChangedRowsOnly()
    {
        EveModel model;
        change(model, "FOO", "1", "local", "mine");
        QVERIFY(model.save());
        QSettings settings;
        QCOMPARE(settings.allKeys(),
                 QStringList({"variables/FOO/description", "variables/FOO/vip"}));
        QCOMPARE(settings.value("variables/FOO/description").toString(), "mine");
    }

    void clearsChangeMarksAndPendingDeletions()
    {
        Sandbox::writeFile(bashrc(), "export GONE=1\n");
        Sandbox::setUserEnvironment({"EDITOR=vim", "GONE=1"});
        EveModel model;
        change(model, "EDITOR", "nano");
        change(model, "FOO", "1");
        model.removeRows(rowOf(model, "GONE"), 1);
        QVERIFY(model.save());
        for (int row = 0; row < model.rowCount(); ++row)
            QCOMPARE(model.index(row, EveModel::PreviousColumn).data().toString(), "");
        QVERIFY(model.deletedRows.isEmpty());

        Sandbox::writeFile(bashrc(), "export GONE=2\nexport FOO=2\n");
        QVERIFY(model.save());
        QCOMPARE(Sandbox::readFile(bashrc()), "export GONE=2\nexport FOO=2\n");
    }

    void blanksTheExportOfADeletedVariable_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char *name, const char *before, const char *after) {
            QTest::newRow(name) << QByteArray(before) << QByteArray(after);
        };
        row("the only line becomes a space", "export FOO=1", " \n");
        row("text before export stays", "cd; export FOO=1 # note\n", "cd;  \n");
        row("text between export and the name is blanked too", "export FOO=1\nexport A=1 FOO=2\n",
            " \n \n");
        row("a longer name ending alike is blanked too", "export FOO=1\nexport MYFOO=2\n",
            " \n \n");
        row("an assignment without export stays", "export FOO=1\nFOO=2\n", " \nFOO=2\n");
        row("other lines keep their bytes", "# \xe9\nexport FOO=1\n", "# \xe9\n \n");
    }
    void blanksTheExportOfADeletedVariable()
    {
        QFETCH(QByteArray, before);
        Sandbox::writeFile(bashrc(), before);
        Sandbox::setUserEnvironment({"FOO=1"});
        EveModel model;
        model.removeRows(rowOf(model, "FOO"), 1);
        QVERIFY(model.save());
        QTEST(Sandbox::readFile(bashrc()), "after");
    }

    void deletingAnEnvironmentOnlyVariableTouchesNoFile()
    {
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        EveModel model;
        model.removeRows(rowOf(model, "EDITOR"), 1);
        Sandbox::blockPath(bashrc());               // any write there would fail with a message
        const QString before = QDir::currentPath(); // where a file named after the origin would go
        QDir::setCurrent(Sandbox::home());
        QVERIFY(model.save());
        QDir::setCurrent(before);
        QVERIFY(!QFileInfo::exists(Sandbox::home() + "/System"));
    }

    void deletionFromAnUnopenableFileIsSkipped()
    {
        Sandbox::writeFile(profile(), "export FOO=1\n");
        Sandbox::setUserEnvironment({"FOO=1"});
        EveModel model;
        model.removeRows(rowOf(model, "FOO"), 1);
        Sandbox::blockPath(profile());
        answerer->addAnswer("OK");
        QVERIFY(model.save());
        QCOMPARE(answerer->seen.value(0).title, "Warning!");
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + profile() + " for deleting variable FOO");
    }

    void unopenableFileStopsTheSave()
    {
        Sandbox::writeFile(profile(), "export FOO=1\n");
        Sandbox::setUserEnvironment({"FOO=1"});
        EveModel model;
        model.removeRows(rowOf(model, "SHELL"), 1);
        change(model, "FOO", "2", "local", "stored first");
        Sandbox::blockPath(profile());
        Sandbox::blockPath(bashrc());
        answerer->addAnswer("OK");
        QVERIFY(!model.save());
        QCOMPARE(answerer->seen.value(0).title, "Warning!");
        QCOMPARE(answerer->seen.value(0).text,
                 "Couldn't open file " + bashrc() + " for saving variable FOO");
        QCOMPARE(cellOf(model, "FOO", EveModel::PreviousColumn), "1");
        QCOMPARE(model.deletedRows.size(), 1);
        QCOMPARE(QSettings().value("variables/FOO/description").toString(), "stored first");
    }
};

ORV_SANDBOX_TEST_MAIN(TestSaving)
#include "tst_saving.moc"
