#include "changepreview.h"
#include "eve.h"
#include "evemodel.h"
#include "linediff.h"
#include "previewdialog.h"
#include "sandboxtest.h"
#include "tablehelpers.h"

#include <QPushButton>

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

class TestPreview : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment(
            {"EDITOR=vi", "AWS_PROFILE=dev", "MANPATH=/usr/share/man", "LANG=en_US"});
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
        QTest::addRow("a value with a quote breaks the rest of the file")
            << "LANG" << Edit::Change << "it's" << QStringList() << false;
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

    // bash -n for bash's own files, sh -n for those every Bourne shell reads and
    // none for csh; not checked without the shell.
    void shellThatChecksAFile()
    {
        QCOMPARE(ShellCheck::shellFor("/etc/bash.bashrc", EveModel::Other), "bash");
        QCOMPARE(ShellCheck::shellFor("/home/a/.profile", EveModel::Bash), "sh");
        QCOMPARE(ShellCheck::shellFor("/home/a/.cshrc", EveModel::Bash), "");
        QCOMPARE(ShellCheck::run("no-such-shell", "export A=1\n").sentence(),
                 "Not checked whether the file still parses: no-such-shell is not installed.");
    }

    // Enabled exactly when Save is; its Save is the window's, with its messages.
    void previewCommandSavesAsTheWindowDoes()
    {
        Eve window;
        QAction *action = window.findChild<QAction *>("actionPreviewChanges");
        QCOMPARE(action->shortcut(), QKeySequence("Ctrl+Shift+S"));
        QVERIFY(!action->isEnabled());
        setValue(*window.eveModel(), "EDITOR", "vim");
        QVERIFY(action->isEnabled());
        answerer->addAction(
            [](QWidget *dialog) { qobject_cast<PreviewDialog *>(dialog)->saveButton->click(); });
        answerer->addAnswer("OK");

        action->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), QByteArray("export EDITOR=vim\n"));
        QCOMPARE(window.statusBar()->currentMessage(), "Changes were saved successfully!");
        QVERIFY(!action->isEnabled());
    }

    void unifiedDiff_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("diff"); // without the "--- old\n+++ new\n" head

        QByteArray twenty;
        for (int i = 1; i <= 20; ++i)
            twenty += QByteArray::number(i) + '\n';
        const QByteArray ten = twenty.left(twenty.indexOf("11\n"));
        QTest::addRow("a new file") << QByteArray() << QByteArray("export X=1\n")
                                    << QByteArray("@@ -0,0 +1 @@\n+export X=1\n");
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
    void unifiedDiff()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, diff);
        QCOMPARE(LineDiff::unified(before, after, "old", "new"), "--- old\n+++ new\n" + diff);
    }
};

ORV_SANDBOX_TEST_MAIN(TestPreview)
#include "tst_preview.moc"
