#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"

#include <sys/stat.h>

class TestLoading : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";

private slots:
    void exportLineGivesTheOrigin_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("exported");
        QTest::addRow("an export line") << QByteArray("export FOO=bar") << true;
        QTest::addRow("a commented-out export line") << QByteArray("# export FOO=bar") << true;
        QTest::addRow("a line ending in CR LF") << QByteArray("export FOO=bar\r") << true;
        QTest::addRow("reexport is not export") << QByteArray("reexport FOO=bar") << false;
        QTest::addRow("the name in small letters") << QByteArray("export foo=bar") << false;
        QTest::addRow("a value without word characters") << QByteArray("export FOO=/") << false;
    }
    void exportLineGivesTheOrigin()
    {
        QFETCH(QByteArray, line);
        QFETCH(bool, exported);
        Sandbox::writeFile(bashrc, "# first line\n" + line + "\nlast line\n");
        Sandbox::setUserEnvironment({"FOO=from the environment"});
        EveModel model;
        QCOMPARE(cellOf(model, "FOO", EveModel::OriginColumn), exported ? bashrc : "System");
        QCOMPARE(cellOf(model, "FOO", EveModel::ValueColumn), "from the environment");
    }

    void lastFileThatExportsWins()
    {
        const QString profile = Sandbox::system("/etc/profile");
        Sandbox::writeFile(profile, "export PATH=/a\nexport SYS=1\n");
        Sandbox::writeFile(bashrc, "export PATH=/b\nexport ONLY_IN_A_FILE=1\n");
        Sandbox::setUserEnvironment({"SYS=1"});
        EveModel model;
        QCOMPARE(cellOf(model, "PATH", EveModel::OriginColumn), bashrc);
        QCOMPARE(cellOf(model, "SYS", EveModel::OriginColumn), profile);
        QCOMPARE(rowOf(model, "ONLY_IN_A_FILE"), -1);
    }

    // A name is the run of name characters before the first "=" that follows
    // one; an entry without a name gives no row.
    void environmentEntriesBecomeRows()
    {
        Sandbox::setUserEnvironment({"EMPTY=", "A-B=x= y", "=nameless"});
        EveModel model;
        QCOMPARE(namesOf(model), QStringList({"HOME", "LOGNAME", "SHELL", "PATH", "EMPTY", "B"}));
        QCOMPARE(recordOf(model, "B"), QStringList({"B", "x= y", "System", "", "local", "", ""}));
        QCOMPARE(cellOf(model, "EMPTY", EveModel::ValueColumn), "");
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

    void unreadableFilesAreReportedAndSkipped()
    {
        const QString directory = Sandbox::system("/etc/directory");
        const QString fifo = Sandbox::system("/etc/fifo"), next = Sandbox::system("/etc/next");
        Sandbox::blockPath(directory);
        QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        Sandbox::writeFile(next, "export EDITOR=vi\n");
        QSettings().setValue("configFiles/system", QStringList{directory, fifo, "missing", next});
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        answerer->addAnswer("OK");
        answerer->addAnswer("OK");
        EveModel model;
        QCOMPARE(answerer->seen.size(), 2);
        QCOMPARE(answerer->seen.at(0).text, "Couldn't open file: " + directory + " !");
        QCOMPARE(answerer->seen.at(1).text, "Couldn't open file: " + fifo + " !");
        QCOMPARE(cellOf(model, "EDITOR", EveModel::OriginColumn), next);
    }

    void reloadForgetsEditsAndDeletions()
    {
        Sandbox::writeFile(bashrc, "export EDITOR=vi\n");
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        EveModel model;
        QSignalSpy resets(&model, &EveModel::modelReset);
        model.setData(model.index(rowOf(model, "EDITOR"), EveModel::ValueColumn), "nano");
        model.insertRows(model.rowCount(), 1, {"NEW", "1"});
        model.removeRows(rowOf(model, "EDITOR"), 1);
        QVERIFY(model.reload());
        QCOMPARE(resets.count(), 1);
        QVERIFY(model.deletedRows.isEmpty());
        QCOMPARE(rowOf(model, "NEW"), -1);
        QCOMPARE(recordOf(model, "EDITOR").mid(1, 2), QStringList({"vim", bashrc}));
    }
};

ORV_SANDBOX_TEST_MAIN(TestLoading)
#include "tst_loading.moc"
