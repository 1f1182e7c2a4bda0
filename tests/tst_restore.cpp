#include "backups.h"
#include "eve.h"
#include "evemodel.h"
#include "restore.h"
#include "restoredialog.h"
#include "sandboxtest.h"

#include <QLabel>
#include <QPushButton>

#include <sys/stat.h>

namespace {

// ~/.bashrc holds the second version; its one copy, of an earlier day, the first.
const QByteArray firstVersion = "# ~/.bashrc\nexport FOO=1\nalias ll='ls -l'\n";
const QByteArray secondVersion = "# ~/.bashrc\nexport FOO=2\nalias ll='ls -l'\n";
const QDateTime copyTime(QDate(2024, 5, 6), QTime(7, 8, 9), Qt::UTC);

struct stat statOf(const QString &path)
{
    struct stat info = {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info;
}

} // namespace

class TestRestore : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";
    QString copyPath;
    QProcess program; // orv-admin-env-backups, in this test's sandbox

    void runProgram(const QStringList &arguments)
    {
        program.start(ORV_BACKUPS_PROGRAM, arguments);
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    }

private slots:
    void initTestCase()
    {
        // The editor's names, which place the copies where the program looks.
        QCoreApplication::setOrganizationName("Orv");
        QCoreApplication::setApplicationName("orv-admin-env");
        copyPath = Backups::directory() + '/' + Backups::fileName(bashrc, copyTime);
    }
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"FOO=2"});
        Sandbox::writeFile(bashrc, secondVersion);
        Sandbox::writeFile(copyPath, firstVersion);
    }

    void restoreFromTheWindowReloadsTheTable()
    {
        Eve window;
        emit window.eveModel()->dataChanged({}, {}); // an unsaved edit
        answerer->addAction([](QWidget *widget) {
            auto *dialog = qobject_cast<RestoreDialog *>(widget); // never left open
            dialog->restoreButton->isEnabled() ? dialog->restoreButton->click() : dialog->reject();
        });
        answerer->addAnswer("Yes"); // to losing the unsaved change

        window.findChild<QAction *>("actionRestore")->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), firstVersion);
        QVERIFY(!window.isModified());
        QCOMPARE(window.statusBar()->currentMessage(),
                 "~/.bashrc was restored from its copy of " + Restore::timeText(copyTime) +
                     "; what it held before is kept as a copy.");
    }

    void dialogSaysWhenTheFolderOfCopiesCannotBeRead()
    {
        QDir(Backups::directory()).removeRecursively();
        Sandbox::writeFile(Backups::directory(), ""); // a file in its place
        RestoreDialog dialog({bashrc}, Sandbox::home(), nullptr);
        QCOMPARE(dialog.folderLabel->text(), "The earlier copies cannot be listed: the folder " +
                                                 Backups::directory() +
                                                 " cannot be read: Not a directory.");
        QCOMPARE(dialog.statusLabel->text(), "No earlier copies of ~/.bashrc are kept. A copy is "
                                             "made each time a save or a restore rewrites the "
                                             "file.");
        QVERIFY(!dialog.restoreButton->isEnabled());
    }

    // The copy's bytes in the same inode and mode; what it replaced is kept.
    void programRestoresTheExactBytesInPlace()
    {
        QVERIFY(::chmod(QFile::encodeName(bashrc).constData(), 0640) == 0);
        const ino_t inode = statOf(bashrc).st_ino;

        runProgram({"restore", copyPath});

        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(Sandbox::readFile(bashrc), firstVersion);
        QCOMPARE(statOf(bashrc).st_ino, inode);
        QCOMPARE(statOf(bashrc).st_mode & 07777, mode_t(0640));
        const QString kept = Backups::list(bashrc).first().path;
        QCOMPARE(Sandbox::readFile(kept), secondVersion);
    }

    void programCommands_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("output"); // on the error stream unless the exit code is 0

        const QString name = Backups::fileName(bashrc, copyTime);
        const QString gone = Backups::fileName(bashrc, copyTime.addDays(1));
        QTest::addRow("list") << QStringList{"list"} << 0
                              << Restore::timeText(copyTime).toUtf8() + '\t' +
                                     QByteArray::number(firstVersion.size()) + '\t' +
                                     bashrc.toUtf8() + '\t' + name.toUtf8() + '\n';
        QTest::addRow("diff") << QStringList{"diff", name} << 0
                              << "--- " + bashrc.toUtf8() + "\n+++ " + copyPath.toUtf8() +
                                     "\n@@ -1,3 +1,3 @@\n # ~/.bashrc\n-export FOO=2\n"
                                     "+export FOO=1\n alias ll='ls -l'\n";
        QTest::addRow("an unknown command")
            << QStringList{"show"} << 2
            << QByteArray("Unknown command: show\nTry \"orv-admin-env-backups --help\".\n");
        QTest::addRow("a copy that is gone")
            << QStringList{"diff", gone} << 1
            << "The copy " + Backups::directory().toUtf8() + '/' + gone.toUtf8() +
                   " cannot be read: No such file or directory\n";
    }
    void programCommands()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, output);
        runProgram(arguments);
        QCOMPARE(program.exitCode(), exitCode);
        QCOMPARE(exitCode == 0 ? program.readAllStandardOutput() : program.readAllStandardError(),
                 output);
    }
};

ORV_SANDBOX_TEST_MAIN(TestRestore)
#include "tst_restore.moc"
