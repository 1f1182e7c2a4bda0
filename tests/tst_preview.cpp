#include "changepreview.h"
#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "previewdialog.h"
#include "sandbox.h"

#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

namespace {

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

// A new value as the editor dialog sets it, which asks nothing.
void setValue(EveModel &model, int row, const QString &value)
{
    const auto field = [&](int column) {
        return model.index(row, column).data().toString();
    };
    model.setData(model.index(row, 0), field(0), value, field(EveModel::DescriptionColumn),
                  field(EveModel::ScopeColumn), field(EveModel::VipColumn), value, Qt::EditRole);
}

enum class Edit { Change, ChangeOfARowWhoseFileCannotBeOpened, Add, Delete };

} // namespace

Q_DECLARE_METATYPE(Edit)

class TestPreview : public QObject
{
    Q_OBJECT

    QScopedPointer<Sandbox> sandbox;

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment(
            {"EDITOR=vi", "AWS_PROFILE=dev", "MANPATH=/usr/share/man", "LANG=en_US"});
    }
    void cleanup() { sandbox.reset(); }

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
        Sandbox::writeFile(bashrc(), "# export EDITOR=nano\nexport EDITOR=vi\n"
                                     "export MANPATH=/usr/share/man\nexport GOPATH=$HOME/go\n"
                                     "export LD_LIBRARY_PATH=/opt/lib\nexport PATH=/usr/bin:/bin\n"
                                     "export AWS_PROFILE=dev # work account\nexport LANG=en_US");
        EveModel model;
        const int row = rowOf(model, name);
        if (edit == Edit::ChangeOfARowWhoseFileCannotBeOpened)
            model.setData(model.index(row, EveModel::OriginColumn),
                          Sandbox::system("/etc/missing/profile"));
        if (edit == Edit::Add)
            model.insertRows(model.rowCount(), 1, {name, value, QString(), "local"});
        else if (edit == Edit::Delete)
            model.removeRows(row, 1);
        else
            setValue(model, row, value);

        const ChangePreview preview =
            ChangePreview::of(model.saveInput(), model.ShellKind, model.homeDir);

        QCOMPARE(preview.notices + preview.files.value(0).surprises.sentences(), warnings);
        QCOMPARE(preview.files.value(0).check.outcome,
                 parses ? ShellCheck::Parses : ShellCheck::Fails);
        QCOMPARE(preview.files.size(), 1);
        QCOMPARE(preview.files.first().path, bashrc());
        QVERIFY(model.save());
        QCOMPARE(Sandbox::readFile(bashrc()), preview.files.first().after);
    }

    void shellThatChecksAFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("shell");
        QTest::addRow("bash's own file") << "/home/a/.bashrc"
                                         << "bash";
        QTest::addRow("a file every Bourne shell reads") << "/home/a/.profile"
                                                         << "sh";
        QTest::addRow("a csh file is not checked") << "/home/a/.cshrc"
                                                   << "";
        QTest::addRow("another file is read by the login shell") << "/home/a/.aliases"
                                                                 << "bash";
    }
    void shellThatChecksAFile()
    {
        QFETCH(QString, path);
        QFETCH(QString, shell);
        QCOMPARE(ShellCheck::shellFor(path, EveModel::Bash), shell);
    }

    void missingShellIsNotChecked()
    {
        const ShellCheck check = ShellCheck::run("no-such-shell", "export A=1\n");
        QCOMPARE(check.outcome, ShellCheck::NotChecked);
        QCOMPARE(check.sentence(),
                 "Not checked whether the file still parses: no-such-shell is not installed.");
    }

    // Enabled exactly when Save is; its Save is the window's, with its messages.
    void previewCommandSavesAsTheWindowDoes()
    {
        Eve window;
        QAction *action = window.findChild<QAction *>("actionPreviewChanges");
        QCOMPARE(action->shortcut(), QKeySequence("Ctrl+Shift+S"));
        QVERIFY(!action->isEnabled());
        setValue(*window.eveModel(), rowOf(*window.eveModel(), "EDITOR"), "vim");
        QVERIFY(action->isEnabled());
        QString shownFile;
        ModalAnswerer answerer;
        answerer.addAction([&shownFile](QWidget *widget) {
            auto *dialog = qobject_cast<PreviewDialog *>(widget);
            shownFile = dialog->fileTabs->tabText(0);
            dialog->saveButton->click();
        });
        answerer.addAnswer("OK");

        action->trigger();

        QCOMPARE(shownFile, "~/.bashrc");
        QCOMPARE(Sandbox::readFile(bashrc()), QByteArray("export EDITOR=vim\n"));
        QCOMPARE(answerer.seen.value(1).text,
                 "Changes were saved and will be applied after restarting a session!");
        QCOMPARE(window.statusBar()->currentMessage(), "Changes were saved successfully!");
        QVERIFY(!action->isEnabled());
        QCOMPARE(answerer.pending(), 0);
    }
};

ORV_SANDBOX_TEST_MAIN(TestPreview)
#include "tst_preview.moc"
