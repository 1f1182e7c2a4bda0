#include "evemodel.h"
#include "sandboxtest.h"
#include "saveplan.h"
#include "tablehelpers.h"

class TestSaving : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc", profile = Sandbox::system("/etc/profile");

private slots:
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
        row("a tab calls for no quotes", "", "a\tb", "export FOO=a\tb\n");
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
            const auto read = [](const QString &path) {
                SafeFile::Contents file;
                file.usable = path != "/etc/unopenable";
                return file;
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
        QCOMPARE(answerer->seen.value(0).title, "Warning!");
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
};

ORV_SANDBOX_TEST_MAIN(TestSaving)
#include "tst_saving.moc"
