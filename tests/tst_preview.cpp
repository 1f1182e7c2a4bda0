#include "changepreview.h"
#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "previewdialog.h"
#include "sandbox.h"
#include "saveplan.h"
#include "shellcheck.h"

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

// The edit of a case: a new value for a variable of the session, a new
// variable, or a deletion.
enum class Edit { Change, Add, Delete };

} // namespace

Q_DECLARE_METATYPE(Edit)

namespace {

// The rows of the case table, each set up in the sandbox's ~/.bashrc.
void addCases()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("originUnopenable");
    QTest::addColumn<QStringList>("otherNames");
    QTest::addColumn<QList<int>>("commentedLines");
    QTest::addColumn<QStringList>("lostTexts");
    QTest::addColumn<QStringList>("homelessNames");
    QTest::addColumn<int>("notices");
    QTest::addColumn<bool>("parses");

    const QByteArray plain = "# ~/.bashrc\nexport EDITOR=vi\nalias ll='ls -l'\n";
    QTest::addRow("a plain one-line change") << plain << Edit::Change << "EDITOR"
                                             << "vim" << false << QStringList() << QList<int>()
                                             << QStringList() << QStringList() << 0 << true;
    QTest::addRow("saving PATH rewrites MANPATH, GOPATH and LD_LIBRARY_PATH")
        << QByteArray("export MANPATH=/usr/share/man\nexport GOPATH=$HOME/go\n"
                      "export LD_LIBRARY_PATH=/opt/lib\nexport PATH=/usr/bin:/bin\n")
        << Edit::Change << "PATH"
        << "/usr/bin:/bin:/opt/bin" << false << QStringList{"MANPATH", "GOPATH", "LD_LIBRARY_PATH"}
        << QList<int>() << QStringList() << QStringList() << 0 << true;
    QTest::addRow("a new name that ends an existing one goes into its line")
        << QByteArray("export PATH=/usr/local/bin:/usr/bin:/bin\n") << Edit::Add << "TH"
        << "1" << false << QStringList{"PATH"} << QList<int>() << QStringList() << QStringList{"TH"}
        << 0 << true;
    QTest::addRow("a commented-out export changes too")
        << QByteArray("# export EDITOR=nano\nexport EDITOR=vi\n") << Edit::Change << "EDITOR"
        << "vim" << false << QStringList() << QList<int>{1} << QStringList() << QStringList() << 0
        << true;
    QTest::addRow("a comment after the value is lost")
        << QByteArray("export AWS_PROFILE=dev # work account\n") << Edit::Change << "AWS_PROFILE"
        << "prod" << false << QStringList() << QList<int>() << QStringList{"# work account"}
        << QStringList() << 0 << true;
    QTest::addRow("deleting PATH blanks the MANPATH line")
        << QByteArray("export MANPATH=/usr/share/man\nexport PATH=/usr/bin:/bin\n") << Edit::Delete
        << "PATH" << QString() << false << QStringList{"MANPATH"} << QList<int>() << QStringList()
        << QStringList() << 0 << true;
    QTest::addRow("a value with a quote breaks the rest of the file")
        << plain << Edit::Change << "EDITOR"
        << "it's" << false << QStringList() << QList<int>() << QStringList() << QStringList() << 0
        << false;
    QTest::addRow("a file without a final line end")
        << QByteArray("export EDITOR=vi") << Edit::Change << "EDITOR"
        << "vim" << false << QStringList() << QList<int>() << QStringList() << QStringList() << 0
        << true;
    QTest::addRow("a row whose file cannot be opened goes to the user's file")
        << plain << Edit::Change << "EDITOR"
        << "vim" << true << QStringList() << QList<int>() << QStringList() << QStringList() << 1
        << true;
}

void setValue(EveModel &model, const QString &name, const QString &value)
{
    const int row = rowOf(model, name);
    const auto field = [&](int column) {
        return model.index(row, column).data().toString();
    };
    model.setData(model.index(row, 0), name, value, field(EveModel::DescriptionColumn),
                  field(EveModel::ScopeColumn), field(EveModel::VipColumn), value, Qt::EditRole);
}

void applyEdit(EveModel &model)
{
    QFETCH(Edit, edit);
    QFETCH(QString, name);
    QFETCH(QString, value);
    QFETCH(bool, originUnopenable);
    if (originUnopenable)
        model.setData(model.index(rowOf(model, name), EveModel::OriginColumn),
                      Sandbox::system("/etc/missing/profile"));
    if (edit == Edit::Add)
        model.insertRows(model.rowCount(), 1, {name, value, QString(), "local"});
    else if (edit == Edit::Delete)
        model.removeRows(rowOf(model, name), 1);
    else // as the editor dialog does, which asks nothing
        setValue(model, name, value);
}

} // namespace

class TestPreview : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"EDITOR=vi", "AWS_PROFILE=dev", "MANPATH=/usr/share/man"});
    }
    void cleanup() { sandbox.reset(); }

    void afterIsWhatTheSaveWrites_data() { addCases(); }
    void afterIsWhatTheSaveWrites()
    {
        QFETCH(QByteArray, file);
        Sandbox::writeFile(bashrc(), file);
        EveModel model;
        applyEdit(model);

        const ChangePreview preview =
            ChangePreview::of(model.saveInput(), model.ShellKind, model.homeDir, false);
        QVERIFY(model.save());

        QCOMPARE(preview.files.size(), 1);
        QCOMPARE(preview.files.first().path, bashrc());
        QCOMPARE(preview.files.first().before, file);
        QCOMPARE(Sandbox::readFile(bashrc()), preview.files.first().after);
    }

    void surprisesOfEachCase_data() { addCases(); }
    void surprisesOfEachCase()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, otherNames);
        QFETCH(QList<int>, commentedLines);
        QFETCH(QStringList, lostTexts);
        QFETCH(QStringList, homelessNames);
        QFETCH(int, notices);
        QFETCH(bool, parses);
        Sandbox::writeFile(bashrc(), file);
        EveModel model;
        applyEdit(model);

        const ChangePreview preview =
            ChangePreview::of(model.saveInput(), model.ShellKind, model.homeDir);

        const Surprises &found = preview.files.value(0).surprises;
        QCOMPARE(found.otherNames, otherNames);
        QCOMPARE(found.commentedLines, commentedLines);
        QStringList lost;
        for (const Surprises::LostText &text : found.lostTexts)
            lost.append(text.text);
        QCOMPARE(lost, lostTexts);
        QCOMPARE(found.homelessNames, homelessNames);
        QCOMPARE(found.sentences().isEmpty(), found.isEmpty());
        QCOMPARE(preview.notices.size(), notices);
        QCOMPARE(preview.files.value(0).check.outcome,
                 parses ? ShellCheck::Parses : ShellCheck::Fails);
    }

    void shellOfAFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("shellKind");
        QTest::addColumn<QString>("shell");
        QTest::addRow("bash's own file") << "/home/a/.bashrc" << int(EveModel::Other) << "bash";
        QTest::addRow("a file every Bourne shell reads")
            << "/home/a/.profile" << int(EveModel::Bash) << "sh";
        QTest::addRow("a csh file is not checked") << "/home/a/.cshrc" << int(EveModel::Bash) << "";
        QTest::addRow("a file of the user's choice follows the login shell")
            << "/home/a/.aliases" << int(EveModel::Bash) << "bash";
    }
    void shellOfAFile()
    {
        QFETCH(QString, path);
        QFETCH(int, shellKind);
        QFETCH(QString, shell);
        QCOMPARE(ShellCheck::shellFor(path, shellKind), shell);
    }

    void missingShellIsNotChecked()
    {
        const ShellCheck check = ShellCheck::run("no-such-shell", "export A=1\n");
        QCOMPARE(check.outcome, ShellCheck::NotChecked);
        QCOMPARE(check.sentence(),
                 "Not checked whether the file still parses: no-such-shell is not installed.");
    }

    void previewIsEnabledExactlyWhenSaveIs()
    {
        Sandbox::writeFile(bashrc(), "export EDITOR=vi\n");
        Eve window;
        QAction *preview = window.findChild<QAction *>("actionPreviewChanges");
        QVERIFY(preview);
        QCOMPARE(preview->shortcut(), QKeySequence("Ctrl+Shift+S"));
        QVERIFY(!preview->isEnabled());

        EveModel *model = window.eveModel();
        setValue(*model, "EDITOR", "vim");
        QVERIFY(preview->isEnabled());

        ModalAnswerer answerer({"OK"});
        window.actionSave->trigger();
        QVERIFY(!preview->isEnabled());
        QCOMPARE(answerer.pending(), 0);
    }

    void saveInThePreviewIsTheWindowsSave()
    {
        Sandbox::writeFile(bashrc(), "export EDITOR=vi\n");
        Eve window;
        EveModel *model = window.eveModel();
        setValue(*model, "EDITOR", "vim");
        QString shownFile;
        ModalAnswerer answerer;
        answerer.addAction([&shownFile](QWidget *widget) {
            auto *dialog = qobject_cast<PreviewDialog *>(widget);
            shownFile = dialog->fileTabs->tabText(0);
            dialog->saveButton->click();
        });
        answerer.addAnswer("OK");

        window.findChild<QAction *>("actionPreviewChanges")->trigger();

        QCOMPARE(shownFile, "~/.bashrc");
        QCOMPARE(Sandbox::readFile(bashrc()), QByteArray("export EDITOR=vim\n"));
        QCOMPARE(answerer.seen.value(1).text,
                 "Changes were saved and will be applied after restarting a session!");
        QCOMPARE(window.statusBar()->currentMessage(), "Changes were saved successfully!");
        QVERIFY(!window.isModified());
        QCOMPARE(answerer.pending(), 0);
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestPreview)
#include "tst_preview.moc"
