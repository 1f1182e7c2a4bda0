#include "core/preview/linediff.h"
#include "core/save/restore.h"
#include "gui/app/eve.h"
#include "gui/history/previewdialog.h"
#include "gui/history/restoredialog.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <QPushButton>

#include <unistd.h>

// A new value as the editor dialog sets it, which asks nothing.
static void setValue(EveModel &model, const QString &name, const QString &value)
{
    const QStringList record = recordOf(model, name);
    model.setData(model.index(rowOf(model, name), 0), name, value,
                  record.at(EveModel::DescriptionColumn), record.at(EveModel::ScopeColumn),
                  record.at(EveModel::VipColumn), value, Qt::EditRole);
}

enum class Edit { Change, ChangeOfARowWhoseFileCannotBeOpened, Add, Delete };
Q_DECLARE_METATYPE(Edit)

// ~/.bashrc holds the second version; its one copy, of an earlier day, the first.
static const QByteArray firstVersion = "# ~/.bashrc\nexport FOO=1\nalias ll='ls -l'\n";
static const QByteArray secondVersion = "# ~/.bashrc\nexport FOO=2\nalias ll='ls -l'\n";
static const QDateTime copyTime(QDate(2024, 5, 6), QTime(7, 8, 9), Qt::UTC);

// What a save will do, and the copies that take it back.
class TestHistory : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";
    QString copyPath;
    QProcess program; // orv-admin-env-backups, in this test's sandbox

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
        Sandbox::setUserEnvironment({"EDITOR=vi", "AWS_PROFILE=dev", "MANPATH=/usr/share/man",
                                     "LANG=en_US", "FOO=2", "GOPATH=/home/go"});
        Sandbox::writeFile(bashrc, secondVersion);
        Sandbox::writeFile(copyPath, firstVersion);
    }

    void previewOfEachCase_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("warnings");
        QTest::addColumn<bool>("parses");

        const QString missing = Sandbox::system("/etc/missing/profile");
        QTest::addRow("a plain one-line change")
            << "LANG" << Edit::Change << "C" << QStringList() << true;
        QTest::addRow("saving PATH rewrites MANPATH, GOPATH and LD_LIBRARY_PATH")
            << "PATH" << Edit::Change << "/usr/bin:/bin:/opt/bin"
            << QStringList{"MANPATH, GOPATH and LD_LIBRARY_PATH also change."} << true;
        QTest::addRow("a new name that ends existing ones goes into their lines")
            << "TH" << Edit::Add << "1"
            << QStringList{"MANPATH, GOPATH, LD_LIBRARY_PATH and PATH also change.",
                           "TH is saved into no line of its own: this file will not set it."}
            << true;
        QTest::addRow("a commented-out export changes too")
            << "EDITOR" << Edit::Change << "vim"
            << QStringList{"A commented-out line changes: line 1."} << true;
        QTest::addRow("a comment after the value is lost")
            << "AWS_PROFILE" << Edit::Change << "prod"
            << QStringList{"Line 7 loses \"# work account\", which follows the value of "
                           "AWS_PROFILE."}
            << true;
        QTest::addRow("deleting PATH blanks the lines of the names that end in it")
            << "PATH" << Edit::Delete << QString()
            << QStringList{"MANPATH, GOPATH and LD_LIBRARY_PATH also change."} << true;
        QTest::addRow("a saved value replaces a reference to another variable")
            << "GOPATH" << Edit::Change << "/home/go"
            << QStringList{"~/.bashrc line 4 refers to $HOME; the save writes /home/go instead."}
            << true;
        QTest::addRow("a value with a quote is quoted, so the file still parses")
            << "LANG" << Edit::Change << "it's" << QStringList() << true;
        QTest::addRow("a row whose file cannot be opened goes to the user's file")
            << "LANG" << Edit::ChangeOfARowWhoseFileCannotBeOpened << "C"
            << QStringList{"LANG is saved into ~/.bashrc, because its file " + missing +
                           " cannot be opened: No such file or directory."}
            << true;
    }
    // The preview names what will surprise, and its "after" is what the save writes.
    void previewOfEachCase()
    {
        QFETCH(QString, name);
        QFETCH(Edit, edit);
        QFETCH(QString, value);
        QFETCH(QStringList, warnings);
        QFETCH(bool, parses);
        // Without a line end at the end, which the save adds.
        Sandbox::writeFile(bashrc, "# export EDITOR=nano\nexport EDITOR=vi\n"
                                   "export MANPATH=/usr/share/man\nexport GOPATH=$HOME/go\n"
                                   "export LD_LIBRARY_PATH=/opt/lib\nexport PATH=/usr/bin:/bin\n"
                                   "export AWS_PROFILE=dev # work account\nexport LANG=en_US");
        EveModel model;
        if (edit == Edit::ChangeOfARowWhoseFileCannotBeOpened)
            model.setData(model.index(rowOf(model, name), EveModel::OriginColumn),
                          Sandbox::system("/etc/missing/profile"));
        if (edit == Edit::Add)
            model.insertRows(model.rowCount(), 1, {name, value, QString(), "local"});
        else if (edit == Edit::Delete)
            model.removeRows(rowOf(model, name), 1);
        else
            setValue(model, name, value);

        const ChangePreview preview =
            ChangePreview::of(model.saveInput(), model.ShellKind, model.homeDir);

        QCOMPARE(preview.notices + preview.files.value(0).surprises.sentences(), warnings);
        QCOMPARE(preview.files.value(0).check.outcome,
                 parses ? ShellCheck::Parses : ShellCheck::Fails);
        QVERIFY(model.save());
        QCOMPARE(Sandbox::readFile(bashrc), preview.files.first().after);
    }

    void aMissingShellChecksNothing()
    {
        QCOMPARE(ShellCheck::run("no-such-shell", "export A=1\n").sentence(),
                 "Not checked whether the file still parses: no-such-shell is not installed.");
    }

    // Enabled exactly when Save is; its Save is the window's, with its messages.
    void previewCommandSavesAsTheWindowDoes()
    {
        Eve window;
        QAction *action = window.findChild<QAction *>("actionPreviewChanges");
        QVERIFY(!action->isEnabled());
        setValue(*modelOf(window), "EDITOR", "vim");
        QVERIFY(action->isEnabled());
        answerer->addAction(
            [](QWidget *dialog) { qobject_cast<PreviewDialog *>(dialog)->saveButton->click(); });
        answerer->addAnswer("OK");

        action->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), "export EDITOR=vim\n" + secondVersion);
        QCOMPARE(window.statusBar()->currentMessage(), "Changes were saved successfully!");
        QVERIFY(!action->isEnabled());
    }

    void restoreFromTheWindowReloadsTheTable()
    {
        Eve window;
        emit modelOf(window)->dataChanged({}, {}); // an unsaved edit
        answerer->addAction([](QWidget *widget) {
            auto *dialog = qobject_cast<RestoreDialog *>(widget); // never left open
            dialog->restoreButton->isEnabled() ? dialog->restoreButton->click() : dialog->reject();
        });
        answerer->addAnswer("Yes"); // to losing the unsaved change

        window.findChild<QAction *>("actionRestore")->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), firstVersion);
        QVERIFY(!isModified(window));
        QCOMPARE(window.statusBar()->currentMessage(),
                 "~/.bashrc was restored from its copy of " + Restore::timeText(copyTime) +
                     "; what it held before is kept as a copy.");
    }

    void programRestoresTheExactBytesInPlace()
    {
        QVERIFY(::chmod(QFile::encodeName(bashrc).constData(), 0640) == 0);
        const ino_t inode = Sandbox::statusOf(bashrc).st_ino;

        program.start(ORV_BACKUPS_PROGRAM, {"restore", copyPath});
        QVERIFY(program.waitForFinished(20000));

        QCOMPARE(program.exitCode(), 0);
        QCOMPARE(Sandbox::readFile(bashrc), firstVersion);
        QCOMPARE(Sandbox::statusOf(bashrc).st_ino, inode);
        QCOMPARE(Sandbox::statusOf(bashrc).st_mode & 07777, mode_t(0640));
        QCOMPARE(Sandbox::readFile(Backups::list(bashrc)->value(0).path), secondVersion);
    }

    void programCommands_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("output"); // on the error stream unless the exit code is 0

        const QString name = Backups::fileName(bashrc, copyTime);
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
    }
    void programCommands()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, output);
        program.start(ORV_BACKUPS_PROGRAM, arguments);
        QVERIFY(program.waitForFinished(20000));
        QCOMPARE(program.exitCode(), exitCode);
        QCOMPARE(exitCode == 0 ? program.readAllStandardOutput() : program.readAllStandardError(),
                 output);
    }

    // Someone else's file, placed where a copy would be or named like one,
    // is never written into a start-up file.
    void programRestoresOnlyTheUsersOwnCopies_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        QTest::addRow("a copy outside the folder of copies") << "outside"
                                                             << "it is not in the folder of copies";
        QTest::addRow("a symbolic link in the folder") << "link"
                                                       << "it is a symbolic link";
        QTest::addRow("a folder named like a copy") << "folder"
                                                    << "it is not a regular file";
        QTest::addRow("a copy of another user") << "foreign"
                                                << "it belongs to another user";
    }
    void programRestoresOnlyTheUsersOwnCopies()
    {
        QFETCH(QString, kind);
        QFETCH(QString, reason);
        const QString name = Backups::fileName(bashrc, copyTime.addDays(1));
        QString path = Backups::directory() + '/' + name;
        if (kind == "outside") {
            path = Sandbox::home() + '/' + name;
            Sandbox::writeFile(path, firstVersion);
        } else if (kind == "link") {
            QVERIFY(QFile::link(copyPath, path));
        } else if (kind == "folder") {
            QVERIFY(QDir().mkpath(path));
        } else {
            if (::geteuid() != 0)
                QSKIP("only root can give a file to another user");
            Sandbox::writeFile(path, firstVersion);
            QCOMPARE(::chown(QFile::encodeName(path).constData(), 65534, 65534), 0);
        }

        program.start(ORV_BACKUPS_PROGRAM, {"restore", path});
        QVERIFY(program.waitForFinished(20000));

        QCOMPARE(program.exitCode(), 2);
        QCOMPARE(QString::fromLocal8Bit(program.readAllStandardError()),
                 path + " is not a copy that can be used: " + reason + "\n");
        QCOMPARE(Sandbox::readFile(bashrc), secondVersion);
    }

    // The diffs of the preview, Restore and the "diff" command, which patch reads.
    void diffsHaveThreeLinesOfContextAndJoinCloseChanges_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("diff"); // without the "--- old\n+++ new\n" head

        QByteArray twenty;
        for (int i = 1; i <= 20; ++i)
            twenty += QByteArray::number(i) + '\n';
        const QByteArray ten = twenty.left(twenty.indexOf("11\n"));
        QTest::addRow("equal files give no diff") << ten << ten << QByteArray();
        QTest::addRow("one changed line has three lines of context")
            << ten << QByteArray(ten).replace("5\n", "five\n")
            << QByteArray("@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
        QTest::addRow("a new file") << QByteArray() << QByteArray("export X=1\n")
                                    << QByteArray("@@ -0,0 +1 @@\n+export X=1\n");
        QTest::addRow("a removed last line")
            << QByteArray("a\nb\n") << QByteArray("a\n") << QByteArray("@@ -1,2 +1 @@\n a\n-b\n");
        QTest::addRow("a file without a final line end gets one")
            << QByteArray("a\nb") << QByteArray("a\nb\n")
            << QByteArray("@@ -1,2 +1,2 @@\n a\n-b\n\\ No newline at end of file\n+b\n");
        QTest::addRow("changes seven lines apart make two hunks")
            << twenty << QByteArray(twenty).replace("1\n2\n", "x\n2\n").replace("\n9\n", "\ny\n")
            << QByteArray("@@ -1,4 +1,4 @@\n-1\n+x\n 2\n 3\n 4\n"
                          "@@ -6,7 +6,7 @@\n 6\n 7\n 8\n-9\n+y\n 10\n 11\n 12\n");
        QTest::addRow("changes six lines apart share a hunk")
            << ten << QByteArray(ten).replace("1\n2\n", "x\n2\n").replace("\n8\n", "\ny\n")
            << QByteArray("@@ -1,10 +1,10 @@\n-1\n+x\n 2\n 3\n 4\n 5\n 6\n 7\n-8\n+y\n 9\n 10\n");
    }
    void diffsHaveThreeLinesOfContextAndJoinCloseChanges()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, diff);
        QCOMPARE(LineDiff::unified(before, after, "old", "new"),
                 diff.isEmpty() ? diff : "--- old\n+++ new\n" + diff);
    }
};

ORV_SANDBOX_TEST_MAIN(TestHistory)
#include "tst_history.moc"
