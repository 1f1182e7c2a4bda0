#include "backups.h"
#include "backupstool.h"
#include "diffview.h"
#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "restore.h"
#include "restoredialog.h"
#include "sandbox.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <sys/stat.h>

namespace {

// ~/.bashrc holds the second version; its one copy, of an earlier day, the first.
const QByteArray firstVersion = "# ~/.bashrc\nexport FOO=1\nalias ll='ls -l'\n";
const QByteArray secondVersion = "# ~/.bashrc\nexport FOO=2\nalias ll='ls -l'\n";
const QDateTime copyTime(QDate(2024, 5, 6), QTime(7, 8, 9), Qt::UTC);

QString bashrc()
{
    return Sandbox::home() + "/.bashrc";
}

QString copyPath()
{
    return Backups::directory() + '/' + Backups::fileName(bashrc(), copyTime);
}

struct stat statOf(const QString &path)
{
    struct stat info = {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info;
}

} // namespace

class TestRestore : public QObject
{
    Q_OBJECT

    QScopedPointer<Sandbox> sandbox;
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
    }
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"FOO=2"});
        Sandbox::writeFile(bashrc(), secondVersion);
        Sandbox::writeFile(copyPath(), firstVersion);
    }
    void cleanup() { sandbox.reset(); }

    void restoreFromTheWindowReloadsTheTable()
    {
        Eve window;
        EveModel *model = window.eveModel();
        const QModelIndex foo =
            model->match(model->index(0, 0), Qt::DisplayRole, "FOO", 1, Qt::MatchExactly).value(0);
        model->setData(foo.siblingAtColumn(EveModel::ValueColumn), "edited");
        QString diff;
        ModalAnswerer answerer;
        answerer.addAction([&diff](QWidget *widget) {
            auto *dialog = qobject_cast<RestoreDialog *>(widget);
            diff = dialog->diffView->toPlainText();
            dialog->restoreButton->click();
        });
        answerer.addAnswer("Yes"); // to losing the unsaved change

        window.findChild<QAction *>("actionRestore")->trigger();

        QVERIFY(diff.contains("-export FOO=2\n+export FOO=1\n"));
        QCOMPARE(answerer.seen.value(1).text,
                 "Restoring reloads the table, so your unsaved changes are lost. Restore anyway?");
        QCOMPARE(Sandbox::readFile(bashrc()), firstVersion);
        QVERIFY(!window.isModified());
        QCOMPARE(window.statusBar()->currentMessage(),
                 "~/.bashrc was restored from its copy of " + Restore::timeText(copyTime) +
                     "; what it held before is kept as a copy.");
        QCOMPARE(answerer.pending(), 0);
    }

    void dialogSaysWhenTheFolderOfCopiesCannotBeRead()
    {
        QDir(Backups::directory()).removeRecursively();
        Sandbox::writeFile(Backups::directory(), ""); // a file in its place
        RestoreDialog dialog({bashrc()}, Sandbox::home(), nullptr);
        QVERIFY(dialog.folderLabel->isVisibleTo(&dialog));
        QCOMPARE(dialog.folderLabel->text(), "The earlier copies cannot be listed: the folder " +
                                                 Backups::directory() +
                                                 " cannot be read: Not a directory.");
        QCOMPARE(dialog.statusLabel->text(), "No earlier copies of ~/.bashrc are kept. A copy is "
                                             "made each time a save or a restore rewrites the "
                                             "file.");
        QVERIFY(!dialog.restoreButton->isEnabled());
    }

    // Through the program: the copy's exact bytes, in the same inode with the
    // same mode, and a copy of what it replaced, so the restore can be undone.
    void programRestoresTheExactBytesInPlace()
    {
        QVERIFY(::chmod(QFile::encodeName(bashrc()).constData(), 0640) == 0);
        const ino_t inode = statOf(bashrc()).st_ino;

        runProgram({"restore", copyPath()});

        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(Sandbox::readFile(bashrc()), firstVersion);
        QCOMPARE(statOf(bashrc()).st_ino, inode);
        QCOMPARE(statOf(bashrc()).st_mode & 07777, mode_t(0640));
        const QString kept = Backups::list(bashrc()).first().path;
        QCOMPARE(Sandbox::readFile(kept), secondVersion);
        QCOMPARE(program.readAllStandardOutput(),
                 "Restored " + bashrc().toUtf8() + " from its copy of " +
                     Restore::timeText(copyTime).toUtf8() + ".\nWhat it held before is kept in " +
                     kept.toUtf8() + ".\n");
    }

    void programCommands_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("err");

        const QString name = Backups::fileName(bashrc(), copyTime);
        const QString gone = Backups::fileName(bashrc(), copyTime.addDays(1));
        const QByteArray tryHelp = "Try \"orv-admin-env-backups --help\".\n";
        QTest::addRow("list") << QStringList{"list"} << 0
                              << Restore::timeText(copyTime).toUtf8() + '\t' +
                                     QByteArray::number(firstVersion.size()) + '\t' +
                                     bashrc().toUtf8() + '\t' + name.toUtf8() + '\n'
                              << QByteArray();
        QTest::addRow("diff") << QStringList{"diff", name} << 0
                              << "--- " + bashrc().toUtf8() + "\n+++ " + copyPath().toUtf8() +
                                     "\n@@ -1,3 +1,3 @@\n # ~/.bashrc\n-export FOO=2\n"
                                     "+export FOO=1\n alias ll='ls -l'\n"
                              << QByteArray();
        QTest::addRow("help, which names the folder of copies")
            << QStringList{"--help"} << 0 << BackupsTool::usage().toUtf8() << QByteArray();
        QTest::addRow("an unknown command")
            << QStringList{"show"} << 2 << QByteArray() << "Unknown command: show\n" + tryHelp;
        QTest::addRow("list of two files")
            << QStringList{"list", "a", "b"} << 2 << QByteArray() << "Wrong arguments.\n" + tryHelp;
        QTest::addRow("a name that is no copy's")
            << QStringList{"diff", ".bashrc"} << 2 << QByteArray()
            << QByteArray(".bashrc is not the name of a copy; \"list\" shows them.\n");
        QTest::addRow("a copy that is gone")
            << QStringList{"diff", gone} << 1 << QByteArray()
            << "The copy " + Backups::directory().toUtf8() + '/' + gone.toUtf8() +
                   " cannot be read: No such file or directory\n";
    }
    void programCommands()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, err);
        runProgram(arguments);
        QCOMPARE(program.exitCode(), exitCode);
        QCOMPARE(program.readAllStandardOutput(), out);
        QCOMPARE(program.readAllStandardError(), err);
    }
};

ORV_SANDBOX_TEST_MAIN(TestRestore)
#include "tst_restore.moc"
