#include "core/lookup/pathlist.h"
#include "gui/app/eve.h"
#include "gui/lookup/pathlistdialog.h"
#include "gui/lookup/wheresetdialog.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

using Line = WhereSet::Line;
using Session = std::optional<QString>;

Q_DECLARE_METATYPE(QList<WhereSet::Line>)
Q_DECLARE_METATYPE(std::optional<QString>)

// A window open with the row of `name` current, for a command on that row.
static void makeCurrent(Eve &window, const QString &name)
{
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.tableView->setCurrentIndex(
        modelOf(window)->index(rowOf(*modelOf(window), name), EveModel::ValueColumn));
}

class TestLookup : public SandboxTest
{
    Q_OBJECT

private slots:
    void splitAndJoinRoundTrip_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("entries");
        QTest::addRow("an empty value has no entries") << "" << QStringList();
        QTest::addRow("empty entries keep their places")
            << ":/a::/b:" << QStringList({"", "/a", "", "/b", ""});
    }
    void splitAndJoinRoundTrip()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, entries);
        QCOMPARE(PathList::split(value), entries);
        QCOMPARE(PathList::join(entries), value);
    }

    void entriesThatAreNoFoldersAndRepeatsAreMarked()
    {
        const QString bin = Sandbox::home() + "/bin", file = Sandbox::home() + "/file";
        QDir().mkpath(bin);
        Sandbox::writeFile(file, "");
        PathListDialog dialog(
            "P", PathList::join({bin, bin + "/missing", bin + "/", "", file, bin}), nullptr);

        QStringList tips;
        QList<qint64> icons;
        for (int row = 0; row < dialog.list->count(); ++row) {
            tips << dialog.list->item(row)->toolTip();
            icons << dialog.list->item(row)->icon().cacheKey();
        }
        QCOMPARE(tips, QStringList({"", "does not exist", "duplicate of entry 1",
                                    "empty: stands for the current folder", "is not a folder",
                                    "duplicate of entry 1"}));
        // A missing folder and a repeat are marked, each its own way.
        QVERIFY(icons[1] != icons[0] && icons[2] != icons[0] && icons[2] != icons[1]);
    }

    // OK hands the joined value to the record update, which asks first on a critical row.
    void theDialogUpdatesTheRecordAsEditDoes_data()
    {
        QTest::addColumn<QString>("confirmation");
        QTest::addColumn<QString>("value");
        QTest::addRow("a critical variable changes on yes") << "Yes" << QString("/a:/b");
        QTest::addRow("a critical variable stays on no") << "No" << QString("/a:/b:/a");
    }
    void theDialogUpdatesTheRecordAsEditDoes()
    {
        QFETCH(QString, confirmation);
        QFETCH(QString, value);
        Sandbox::setUserEnvironment({"PATH=/a:/b:/a"});
        Eve window;
        answerer->addAction([](QWidget *widget) {
            auto *dialog = qobject_cast<PathListDialog *>(widget);
            dialog->duplicatesButton->click();
            dialog->buttons->button(QDialogButtonBox::Ok)->click();
        });
        answerer->addAnswer(confirmation);
        makeCurrent(window, "PATH");

        QTest::keyClick(window.tableView, Qt::Key_L, Qt::ControlModifier);

        QCOMPARE(cellOf(*modelOf(window), "PATH", EveModel::ValueColumn), value);
        QCOMPARE(isModified(window), value == "/a:/b");
        QCOMPARE(answerer->seen.value(1).text, "Really change the value of system variable?");
    }

    void findsEveryLineInLoginOrderAndSaysWhichFileCannotBeRead()
    {
        const QString etc = Sandbox::system("/etc"), home = Sandbox::home();
        Sandbox::writeFile(etc + "/environment", "LANG=C\nPAGER=less -R\n");
        Sandbox::writeFile(home + "/.pam_environment", "PAGER DEFAULT=less OVERRIDE=\"most -s\"\n");
        Sandbox::writeFile(home + "/.config/environment.d/20-b.conf", "PAGER=${HOME}/pg -s\n");
        Sandbox::writeFile(home + "/.config/environment.d/10-a.conf", "# PAGER=\"pg\"\n");
        Sandbox::writeFile(etc + "/profile", "PATH=/usr/bin\r\nexport PAGER\r\n");
        Sandbox::writeFile(etc + "/bash.bashrc", "if true; then PAGER=less; fi\n");
        Sandbox::writeFile(etc + "/profile.d/b.sh", "export PAGER=b\n");
        Sandbox::writeFile(etc + "/profile.d/a.sh", "export PAGER=a\n");
        Sandbox::writeFile(etc + "/profile.d/c.txt", "export PAGER=c\n");
        Sandbox::writeFile(etc + "/extra", "export PAGER=extra\n");
        Sandbox::writeFile(home + "/.bash_profile", "export PAGER=most # the best\n");
        Sandbox::blockPath(home + "/.bash_login");
        Sandbox::writeFile(home + "/.profile",
                           "umask 022\n# export PAGER=less\nif [ -x /usr/bin/most ]; then\n"
                           "    PAGER=most\nfi\nexport MYPAGER=x");
        Sandbox::writeFile(home + "/.bashrc", "echo PAGER=x # PAGER=y\n"
                                              "export B=1 PAGER=less; PAGER=most\n"
                                              "PAGER=pg; export PAGER\n");
        Sandbox::writeFile(home + "/.extra", "PAGER=extra\n");
        // The editor's lists repeat known files and name a missing one.
        const QStringList systemFiles{etc + "/profile", etc + "/extra"};
        const QStringList userFiles{home + "/.bashrc", home + "/.extra", home + "/.missing"};

        // As "file:number: text [value]", "/etc" under the system root.
        QStringList found;
        for (const WhereSet::File &file :
             WhereSet::startupFiles(EveModel::Bash, home, systemFiles, userFiles)) {
            for (const Line &line : WhereSet::scanFile(file, "PAGER")) {
                const QString number = line.readable ? QString::number(line.number) + ":" : "";
                found << WhereSet::displayPath(line.path, home).remove(Sandbox::sysroot()) + ":" +
                             number + " " + line.text +
                             (line.hasValue ? " [" + line.value + "]" : "") +
                             (line.commented ? " (commented out)" : "");
            }
        }

        QCOMPARE(found,
                 QStringList({
                     "/etc/environment:2: PAGER=less -R [less -R]",
                     "~/.pam_environment:1: PAGER DEFAULT=less OVERRIDE=\"most -s\" [most -s]",
                     "~/.config/environment.d/10-a.conf:1: # PAGER=\"pg\" [pg] (commented out)",
                     "~/.config/environment.d/20-b.conf:1: PAGER=${HOME}/pg -s [${HOME}/pg -s]",
                     "/etc/profile:2: export PAGER",
                     "/etc/bash.bashrc:1: if true; then PAGER=less; fi [less]",
                     "/etc/profile.d/a.sh:1: export PAGER=a [a]",
                     "/etc/profile.d/b.sh:1: export PAGER=b [b]",
                     "/etc/extra:1: export PAGER=extra [extra]",
                     "~/.bash_profile:1: export PAGER=most # the best [most]",
                     "~/.bash_login: cannot be read: it is not a regular file",
                     "~/.profile:2: # export PAGER=less [less] (commented out)",
                     "~/.profile:4:     PAGER=most [most]",
                     "~/.bashrc:2: export B=1 PAGER=less; PAGER=most [most]",
                     "~/.bashrc:3: PAGER=pg; export PAGER [pg]",
                     "~/.extra:1: PAGER=extra [extra]",
                 }));
    }

    // The table holds "less" in every case.
    void theSentenceComparesTheLastAssignmentWithTheSession_data()
    {
        QTest::addColumn<QList<Line>>("lines");
        QTest::addColumn<Session>("session");
        QTest::addColumn<QString>("sentence");
        const auto set = [](const QString &path, const QString &value, bool commented = false) {
            return Line{Sandbox::home() + path, 1, "", true, commented, true, value};
        };
        QTest::addRow("no file sets it")
            << QList<Line>() << Session("less") << "No start-up file that a login reads sets PAGER";
        QTest::addRow("the last line not commented out differs from the session")
            << QList<Line>{set("/.profile", "less"), set("/.bashrc", "most"),
                           set("/.bashrc", "pg", true)}
            << Session("less")
            << "~/.bashrc sets `most`; this session has `less`: log in again to use the file's "
               "value";
        QTest::addRow("the home folder is expanded before comparing")
            << QList<Line>{set("/.profile", "$HOME/bin/pg")} << Session(Sandbox::home() + "/bin/pg")
            << "~/.profile sets `$HOME/bin/pg`, the value this session has";
        QTest::addRow("the session lacks the variable")
            << QList<Line>{set("/.profile", "most")} << Session()
            << "~/.profile sets `most`; this session does not have PAGER: log in again to use "
               "the file's value";
        QTest::addRow("a value built from other variables")
            << QList<Line>{set("/.profile", "$HOME/bin:$PATH")} << Session("/usr/bin")
            << "~/.profile sets `$HOME/bin:$PATH`, which the shell works out at login; this "
               "session has `/usr/bin`";
    }
    void theSentenceComparesTheLastAssignmentWithTheSession()
    {
        QFETCH(QList<Line>, lines);
        QFETCH(Session, session);
        QTEST(WhereSet::explain(lines, "PAGER", session, "less", Sandbox::home()), "sentence");
    }

    void ctrlIShowsTheLinesAndLeavesTheFilesAlone()
    {
        Sandbox::setUserEnvironment({"PAGER=less"});
        const QByteArray profile = "# export PAGER=less\nexport PAGER=most\n";
        Sandbox::writeFile(Sandbox::home() + "/.profile", profile);
        Eve window;
        makeCurrent(window, "PAGER");
        modelOf(window)->setData(window.tableView->currentIndex(), "most"); // as after a save
        QStringList texts;                                                  // what the dialog shows
        answerer->addAction([&texts](QWidget *widget) {
            auto *dialog = qobject_cast<WhereSetDialog *>(widget);
            texts << dialog->sessionLabel->text() << dialog->lineList->topLevelItem(0)->text(3)
                  << dialog->lineList->topLevelItem(1)->text(2) << dialog->explanationLabel->text();
            ModalAnswerer::clickButton(dialog, "Close");
        });

        QTest::keyClick(window.tableView, Qt::Key_I, Qt::ControlModifier);

        QCOMPARE(texts,
                 QStringList({"In this session: PAGER=less", "commented out", "export PAGER=most",
                              "~/.profile sets `most`; this session has `less`: the saved "
                              "value takes effect at the next login"}));
        QCOMPARE(Sandbox::readFile(Sandbox::home() + "/.profile"), profile);
    }
};

ORV_SANDBOX_TEST_MAIN(TestLookup)
#include "tst_lookup.moc"
