#include "backups.h"
#include "diffview.h"
#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "restore.h"
#include "restoredialog.h"
#include "sandbox.h"

#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QByteArray firstVersion = "# ~/.bashrc\nexport FOO=1\nalias ll='ls -l'\n";
const QByteArray secondVersion = "# ~/.bashrc\nexport FOO=2\nalias ll='ls -l'\n";

QString bashrc()
{
    return Sandbox::home() + "/.bashrc";
}

int rowOf(const EveModel &model, const QString &name)
{
    return model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly)
        .value(0)
        .row();
}

struct stat statOf(const QString &path)
{
    struct stat info = {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return info;
}

// ~/.bashrc saved once by the editor: the file holds the second version,
// and the one copy kept the first.
Backups::Copy saveOnce()
{
    Sandbox::writeFile(bashrc(), firstVersion);
    EveModel model;
    model.setData(model.index(rowOf(model, "FOO"), EveModel::ValueColumn), "2");
    model.save();
    return Backups::list(bashrc()).value(0);
}

struct Run
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

// The built command-line program, in this test's sandbox.
Run backupsProgram(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment;
    for (const char *name :
         {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "ORV_ADMIN_ENV_SYSROOT", "LANG", "LC_ALL"})
        environment.insert(name, qEnvironmentVariable(name));
    environment.insert("TZ", "UTC");
    process.setProcessEnvironment(environment);
    process.start(ORV_BACKUPS_PROGRAM, arguments);
    process.waitForFinished(20000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TestRestore : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The editor's names, which place the copies where the program looks.
        QCoreApplication::setOrganizationName("Orv");
        QCoreApplication::setApplicationName("orv-admin-env");
        qputenv("TZ", "UTC");
    }
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"FOO=1"});
        QDir(Backups::directory()).removeRecursively();
    }
    void cleanup()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(Sandbox::data()));
        sandbox.reset();
    }

    void restorePutsBackTheExactBytesInPlace()
    {
        const Backups::Copy copy = saveOnce();
        QVERIFY(::chmod(QFile::encodeName(bashrc()).constData(), 0640) == 0);
        const struct stat before = statOf(bashrc());

        const Restore restore = Restore::copy(copy.path, copy.original);

        QVERIFY2(restore.restored, qPrintable(restore.error));
        QCOMPARE(Sandbox::readFile(bashrc()), firstVersion);
        QCOMPARE(statOf(bashrc()).st_ino, before.st_ino);
        QCOMPARE(statOf(bashrc()).st_mode & 07777, mode_t(0640));
        // What the restore replaced is the newest copy, so it can be undone.
        QCOMPARE(Backups::list(bashrc()).first().path, restore.keptCopy);
        QCOMPARE(Sandbox::readFile(restore.keptCopy), secondVersion);
    }

    void restoreFromTheWindowReloadsTheTable()
    {
        saveOnce();
        Eve window;
        EveModel *model = window.eveModel();
        model->setData(model->index(rowOf(*model, "FOO"), EveModel::ValueColumn), "edited");
        bool diffShown = false;
        ModalAnswerer answerer;
        answerer.addAction([&diffShown](QWidget *widget) {
            auto *dialog = qobject_cast<RestoreDialog *>(widget);
            diffShown = dialog->diffView->toPlainText().contains("-export FOO=2\n+export FOO=1");
            dialog->restoreButton->click();
        });
        answerer.addAnswer("Yes"); // unsaved changes are lost

        window.findChild<QAction *>("actionRestore")->trigger();

        QVERIFY(diffShown);
        QCOMPARE(answerer.seen.value(1).text,
                 "Restoring reloads the table, so your unsaved changes are lost. Restore anyway?");
        QCOMPARE(Sandbox::readFile(bashrc()), firstVersion);
        QVERIFY(!window.isModified());
        QVERIFY(!window.actionSave->isEnabled());
        QVERIFY(window.statusBar()->currentMessage().startsWith("~/.bashrc was restored"));
        QCOMPARE(answerer.pending(), 0);
    }

    void dialogExplainsWhatItCannotShow_data()
    {
        QTest::addColumn<bool>("folderUnreadable");
        QTest::addColumn<bool>("copyGone");
        QTest::addColumn<QString>("message");
        QTest::addRow("a data folder that cannot be read") << true << false << "folder";
        QTest::addRow("a file whose copies are all gone") << false << false << "status";
        QTest::addRow("a copy that went after it was listed") << false << true << "status";
    }
    void dialogExplainsWhatItCannotShow()
    {
        QFETCH(bool, folderUnreadable);
        QFETCH(bool, copyGone);
        QFETCH(QString, message);
        const Backups::Copy copy = saveOnce();
        if (!copyGone)
            QFile::remove(copy.path);
        if (folderUnreadable) // under a file, where no folder can be
            qputenv("XDG_DATA_HOME", QFile::encodeName(bashrc() + "/data"));

        RestoreDialog dialog({bashrc()}, Sandbox::home(), nullptr);
        if (copyGone) {
            QFile::remove(copy.path);
            dialog.copyTree->setCurrentItem(dialog.copyTree->topLevelItem(0));
            dialog.copyTree->setCurrentItem(dialog.copyTree->topLevelItem(0)->child(0));
        }

        const QMap<QString, QString> expected = {
            {"folder", "The earlier copies cannot be listed: the folder " + bashrc() +
                           "/data/Orv/orv-admin-env/backups cannot be read: Not a directory."},
            {"status", copyGone ? "The copy of ~/.bashrc from " + Restore::timeText(copy.time) +
                                      " cannot be read: No such file or directory."
                                : "No earlier copies of ~/.bashrc are kept. A copy is made "
                                  "each time a save or a restore rewrites the file."}};
        QCOMPARE(dialog.folderLabel->isVisibleTo(&dialog), folderUnreadable);
        QCOMPARE(message == "folder" ? dialog.folderLabel->text() : dialog.statusLabel->text(),
                 expected.value(message));
        QVERIFY(!dialog.restoreButton->isEnabled());
    }

    void programListsTheEditorsCopies()
    {
        const Backups::Copy copy = saveOnce();

        const Run run = backupsProgram({"list"});

        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, (copy.time.toString("yyyy-MM-dd HH:mm:ss") + '\t' +
                           QString::number(firstVersion.size()) + '\t' + bashrc() + '\t' +
                           QFileInfo(copy.path).fileName() + '\n')
                              .toUtf8());
    }

    void programDiffsTheFileAgainstACopy()
    {
        const Backups::Copy copy = saveOnce();

        const Run run = backupsProgram({"diff", QFileInfo(copy.path).fileName()});

        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, ("--- " + bashrc() + "\n+++ " + copy.path +
                           "\n@@ -1,3 +1,3 @@\n # ~/.bashrc\n-export FOO=2\n+export FOO=1\n"
                           " alias ll='ls -l'\n")
                              .toUtf8());
    }

    void programRestoresACopy()
    {
        const Backups::Copy copy = saveOnce();

        const Run run = backupsProgram({"restore", copy.path});

        QCOMPARE(run.exitCode, 0);
        QCOMPARE(Sandbox::readFile(bashrc()), firstVersion);
        const QList<Backups::Copy> copies = Backups::list(bashrc());
        QCOMPARE(copies.size(), 2);
        QCOMPARE(Sandbox::readFile(copies.first().path), secondVersion);
        QCOMPARE(run.out, "Restored " + bashrc().toUtf8() + " from its copy of " +
                              Restore::timeText(copy.time).toUtf8() +
                              ".\nWhat it held before is kept in " + copies.first().path.toUtf8() +
                              ".\n");
    }

    void programExitStatus_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addRow("help") << QStringList{"--help"} << 0;
        QTest::addRow("no command") << QStringList() << 2;
        QTest::addRow("an unknown command") << QStringList{"show"} << 2;
        QTest::addRow("diff without a copy") << QStringList{"diff"} << 2;
        QTest::addRow("list with two files") << QStringList{"list", "a", "b"} << 2;
        QTest::addRow("restore of a name that is no copy's")
            << QStringList{"restore", ".bashrc"} << 2;
        QTest::addRow("diff of a copy that is gone")
            << QStringList{"diff", "%2Fhome%2F.bashrc@2026-01-01T00:00:00.000Z"} << 1;
    }
    void programExitStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        const Run run = backupsProgram(arguments);
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(run.err.isEmpty(), exitCode == 0);
    }

    void programReportsAFailedRestore()
    {
        const Backups::Copy copy = saveOnce();
        Sandbox::blockPath(bashrc());

        const Run run = backupsProgram({"restore", copy.path});

        QCOMPARE(run.exitCode, 3);
        QCOMPARE(run.err,
                 bashrc().toUtf8() + " cannot be opened for writing: it is not a regular file\n");
        QVERIFY(QFileInfo(bashrc()).isDir());
    }

    void programSaysWhenTheFolderCannotBeRead()
    {
        Sandbox::writeFile(Sandbox::home() + "/data", "");
        qputenv("XDG_DATA_HOME", QFile::encodeName(Sandbox::home() + "/data"));

        const Run run = backupsProgram({"list"});

        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.err, "Cannot read the folder of copies " + Sandbox::home().toUtf8() +
                              "/data/Orv/orv-admin-env/backups: Not a directory\n");
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestRestore)
#include "tst_restore.moc"
