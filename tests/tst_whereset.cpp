#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"
#include "whereset.h"
#include "wheresetdialog.h"

#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

using Line = WhereSet::Line;
using Session = std::optional<QString>;

Q_DECLARE_METATYPE(QList<WhereSet::Line>)
Q_DECLARE_METATYPE(std::optional<QString>)

class TestWhereSet : public QObject
{
    Q_OBJECT

    static QString home(const QString &path) { return Sandbox::home() + path; }
    static QString etc(const QString &path) { return Sandbox::system(path); }
    // The lines a bash login reads for `name`, as "file:number: text" the way grep prints them,
    // with "~/..." for the home and "/etc/..." for the system root; the lists are the editor's.
    static QStringList linesOf(const QString &name, const QStringList &systemFiles,
                               const QStringList &userFiles)
    {
        QStringList texts;
        for (const WhereSet::File &file :
             WhereSet::startupFiles(EveModel::Bash, Sandbox::home(), systemFiles, userFiles)) {
            for (const Line &line : WhereSet::scanFile(file, name)) {
                const QString path = WhereSet::displayPath(line.path, Sandbox::home())
                                         .replace(Sandbox::sysroot(), "");
                const QString number = line.readable ? QString::number(line.number) + ":" : "";
                texts << path + ":" + number + " " + line.text +
                             (line.commented ? " (commented out)" : "");
            }
        }
        return texts;
    }
    static Line lineOf(const QString &path, const QString &value, bool commented = false)
    {
        return Line{path, 1, "", true, commented, true, value};
    }

private slots:
    void init() { sandbox.reset(new Sandbox); }
    void cleanup() { sandbox.reset(); }

    void findsEveryLineInLoginOrderAndSaysWhichFileCannotBeRead()
    {
        Sandbox::writeFile(etc("/etc/environment"), "LANG=C\nPAGER=more\n");
        Sandbox::writeFile(home("/.pam_environment"), "PAGER DEFAULT=less\n");
        Sandbox::writeFile(home("/.config/environment.d/20-b.conf"), "PAGER=${HOME}/bin/pg\n");
        Sandbox::writeFile(home("/.config/environment.d/10-a.conf"), "# PAGER=pg\n");
        Sandbox::writeFile(etc("/etc/profile"), "PATH=/usr/bin\r\nexport PAGER\r\n");
        Sandbox::writeFile(etc("/etc/bash.bashrc"), "PAGER=less\n");
        Sandbox::writeFile(etc("/etc/profile.d/b.sh"), "export PAGER=b\n");
        Sandbox::writeFile(etc("/etc/profile.d/a.sh"), "export PAGER=a\n");
        Sandbox::writeFile(etc("/etc/profile.d/c.txt"), "export PAGER=c\n");
        Sandbox::writeFile(etc("/etc/extra"), "export PAGER=extra\n");
        Sandbox::writeFile(home("/.bash_profile"), "export PAGER=most # the best\n");
        Sandbox::blockPath(home("/.bash_login"));
        Sandbox::writeFile(home("/.profile"),
                           "umask 022\n# export PAGER=less\nif [ -x /usr/bin/most ]; then\n"
                           "    PAGER=most\nfi\nexport MYPAGER=x");
        Sandbox::writeFile(home("/.bashrc"), "echo $PAGER\nexport PAGER=most\n");
        Sandbox::writeFile(home("/.extra"), "PAGER=extra\n");
        // The editor's lists repeat known files and name a missing one.
        const QStringList systemFiles{etc("/etc/profile"), etc("/etc/extra")};
        const QStringList userFiles{home("/.bashrc"), home("/.extra"), home("/.missing")};

        QCOMPARE(linesOf("PAGER", systemFiles, userFiles),
                 QStringList({
                     "/etc/environment:2: PAGER=more",
                     "~/.pam_environment:1: PAGER DEFAULT=less",
                     "~/.config/environment.d/10-a.conf:1: # PAGER=pg (commented out)",
                     "~/.config/environment.d/20-b.conf:1: PAGER=${HOME}/bin/pg",
                     "/etc/profile:2: export PAGER",
                     "/etc/bash.bashrc:1: PAGER=less",
                     "/etc/profile.d/a.sh:1: export PAGER=a",
                     "/etc/profile.d/b.sh:1: export PAGER=b",
                     "/etc/extra:1: export PAGER=extra",
                     "~/.bash_profile:1: export PAGER=most # the best",
                     "~/.bash_login: cannot be read: it is not a regular file",
                     "~/.profile:2: # export PAGER=less (commented out)",
                     "~/.profile:4:     PAGER=most",
                     "~/.bashrc:2: export PAGER=most",
                     "~/.extra:1: PAGER=extra",
                 }));
    }

    void theSentenceComparesTheLastAssignmentWithTheSession_data()
    {
        QTest::addColumn<QList<Line>>("lines");
        QTest::addColumn<Session>("session");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("sentence");
        const QString profile = home("/.profile"), bashrc = home("/.bashrc");
        const Session less("less");
        QTest::addRow("no file sets it") << QList<Line>() << less << "less"
                                         << "No start-up file that a login reads sets PAGER";
        QTest::addRow("the last line not commented out differs from the session")
            << QList<Line>{lineOf(profile, "less"), lineOf(bashrc, "most"),
                           lineOf(bashrc, "pg", true)}
            << less << "less"
            << "~/.bashrc sets `most`; this session has `less`: log in again to use the file's "
               "value";
        QTest::addRow("the home folder is expanded before comparing")
            << QList<Line>{lineOf(profile, "$HOME/bin/pg")} << Session(home("/bin/pg")) << "less"
            << "~/.profile sets `$HOME/bin/pg`, the value this session has";
        QTest::addRow("the session lacks the variable")
            << QList<Line>{lineOf(profile, "most")} << Session() << "less"
            << "~/.profile sets `most`; this session does not have PAGER: log in again to use "
               "the file's value";
        QTest::addRow("a value built from other variables")
            << QList<Line>{lineOf(profile, "$HOME/bin:$PATH")} << Session("/usr/bin") << "less"
            << "~/.profile sets `$HOME/bin:$PATH`, which the shell works out at login; this "
               "session has `/usr/bin`";
    }
    void theSentenceComparesTheLastAssignmentWithTheSession()
    {
        QFETCH(QList<Line>, lines);
        QFETCH(Session, session);
        QFETCH(QString, table);
        QTEST(WhereSet::explain(lines, "PAGER", session, table, Sandbox::home()), "sentence");
    }

    void ctrlIShowsTheLinesAndLeavesTheFilesAlone()
    {
        Sandbox::setUserEnvironment({"PAGER=less"});
        const QByteArray profile = "# export PAGER=less\nexport PAGER=most\n";
        Sandbox::writeFile(home("/.profile"), profile);
        Eve window;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        EveModel *model = window.eveModel();
        const QPersistentModelIndex pager =
            model->match(model->index(0, 0), Qt::DisplayRole, "PAGER").value(0);
        model->setData(pager.sibling(pager.row(), EveModel::ValueColumn),
                       "most"); // as after a save
        window.tableView->setCurrentIndex(pager);
        QStringList texts; // what the dialog shows, top to bottom
        ModalAnswerer answerer;
        answerer.addAction([&texts](QWidget *widget) {
            auto *dialog = qobject_cast<WhereSetDialog *>(widget);
            texts << dialog->sessionLabel->text();
            for (int i = 0; i < dialog->lineList->topLevelItemCount(); ++i) {
                const QTreeWidgetItem *item = dialog->lineList->topLevelItem(i);
                texts << QStringList({item->text(0), item->text(1), item->text(2), item->text(3)})
                             .join(" | ");
            }
            texts << dialog->explanationLabel->text();
            ModalAnswerer::clickButton(dialog, "Close");
        });

        QTest::keyClick(window.tableView, Qt::Key_I, Qt::ControlModifier);

        QCOMPARE(texts, QStringList({"In this session: PAGER=less",
                                     "~/.profile | 1 | # export PAGER=less | commented out",
                                     "~/.profile | 2 | export PAGER=most | ",
                                     "~/.profile sets `most`; this session has `less`: the saved "
                                     "value takes effect at the next login"}));
        QCOMPARE(Sandbox::readFile(home("/.profile")), profile);
        QCOMPARE(answerer.pending(), 0);
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestWhereSet)
#include "tst_whereset.moc"
