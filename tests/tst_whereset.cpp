#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"
#include "whereset.h"
#include "wheresetcommand.h"
#include "wheresetdialog.h"

#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

using Line = WhereSet::Line;

Q_DECLARE_METATYPE(QList<WhereSet::Line>)

class TestWhereSet : public QObject
{
    Q_OBJECT

    static QString home(const QString &path) { return Sandbox::home() + path; }
    static QString etc(const QString &path) { return Sandbox::system(path); }
    // A path as a user reads it: "~/..." for the home, "/etc/..." for the system root.
    static QString shown(const QString &path)
    {
        return WhereSet::displayPath(path, Sandbox::home()).replace(Sandbox::sysroot(), "");
    }
    // "file:number: text", as grep prints a match, and why the line does not count.
    static QStringList shown(const QList<Line> &lines)
    {
        QStringList texts;
        for (const Line &line : lines) {
            QString text = shown(line.path) + ":" +
                           (line.readable ? QString::number(line.number) + ":" : QString()) + " " +
                           line.text;
            if (line.commented)
                text += " (commented out)";
            texts << text;
        }
        return texts;
    }
    static QList<Line> scanAll(int shellKind, const QString &name,
                               const QStringList &systemFiles = {},
                               const QStringList &userFiles = {})
    {
        QList<Line> lines;
        const auto files =
            WhereSet::startupFiles(shellKind, Sandbox::home(), systemFiles, userFiles);
        for (const WhereSet::File &file : files)
            lines += WhereSet::scanFile(file, name);
        return lines;
    }
    static Line lineOf(const QString &path, const QString &value, bool commented = false)
    {
        Line line;
        line.path = path;
        line.number = 1;
        line.commented = commented;
        line.hasValue = true;
        line.value = value;
        return line;
    }

private slots:
    void init() { sandbox.reset(new Sandbox); }
    void cleanup() { sandbox.reset(); }

    void filesComeInLoginOrderEachOnce_data()
    {
        QTest::addColumn<int>("shellKind");
        QTest::addColumn<QStringList>("files");
        const QStringList environment{"/etc/environment", "~/.pam_environment",
                                      "~/.config/environment.d/10-a.conf",
                                      "~/.config/environment.d/20-b.conf"};
        QTest::addRow("bash") << int(EveModel::Bash)
                              << environment +
                                     QStringList{"/etc/profile",        "/etc/bash.bashrc",
                                                 "/etc/profile.d/a.sh", "/etc/profile.d/b.sh",
                                                 "/etc/extra",          "~/.bash_profile",
                                                 "~/.bash_login",       "~/.profile",
                                                 "~/.bashrc",           "~/.extra"};
        QTest::addRow("a shell of the sh family")
            << int(EveModel::Other)
            << environment +
                   QStringList{"/etc/profile", "/etc/profile.d/a.sh", "/etc/profile.d/b.sh",
                               "/etc/extra",   "~/.profile",          "~/.bashrc",
                               "~/.extra"};
        QTest::addRow("csh") << int(EveModel::Csh)
                             << environment +
                                    QStringList{"/etc/csh.cshrc", "/etc/csh.login", "/etc/profile",
                                                "/etc/extra",     "~/.tcshrc",      "~/.cshrc",
                                                "~/.login",       "~/.bashrc",      "~/.extra"};
    }
    void filesComeInLoginOrderEachOnce()
    {
        QFETCH(int, shellKind);
        for (const char *path :
             {"/etc/environment", "/etc/profile", "/etc/bash.bashrc", "/etc/profile.d/b.sh",
              "/etc/profile.d/a.sh", "/etc/profile.d/c.txt", "/etc/csh.cshrc", "/etc/csh.login",
              "/etc/extra"})
            Sandbox::writeFile(etc(path), "");
        for (const char *path :
             {"/.pam_environment", "/.config/environment.d/20-b.conf",
              "/.config/environment.d/10-a.conf", "/.bash_profile", "/.bash_login", "/.profile",
              "/.bashrc", "/.tcshrc", "/.cshrc", "/.login", "/.extra"})
            Sandbox::writeFile(home(path), "");
        // The editor's lists repeat known files and name a missing one.
        const QStringList systemFiles{etc("/etc/profile"), etc("/etc/extra")};
        const QStringList userFiles{home("/.bashrc"), home("/.extra"), home("/.missing")};

        QStringList files;
        for (const WhereSet::File &file :
             WhereSet::startupFiles(shellKind, Sandbox::home(), systemFiles, userFiles))
            files << shown(file.path);
        QTEST(files, "files");
    }

    void linesOfEveryFormAreFoundInLoginOrder()
    {
        Sandbox::writeFile(etc("/etc/environment"), "LANG=C\nPAGER=more\n");
        Sandbox::writeFile(home("/.config/environment.d/50-pager.conf"),
                           "# the pager\nPAGER=${HOME}/bin/pg\n");
        Sandbox::writeFile(home("/.pam_environment"), "PAGER DEFAULT=less\n");
        Sandbox::writeFile(etc("/etc/profile"), "PATH=/usr/bin\r\nexport PAGER\r\n");
        Sandbox::writeFile(home("/.profile"), "# export PAGER=less\nif [ -x /usr/bin/most ]; "
                                              "then\n    PAGER=most\nfi\nexport MYPAGER=x");
        Sandbox::writeFile(home("/.bashrc"), "echo $PAGER\nexport PAGER=most # the best\n");

        QCOMPARE(shown(scanAll(EveModel::Bash, "PAGER")),
                 QStringList({"/etc/environment:2: PAGER=more",
                              "~/.pam_environment:1: PAGER DEFAULT=less",
                              "~/.config/environment.d/50-pager.conf:2: PAGER=${HOME}/bin/pg",
                              "/etc/profile:2: export PAGER",
                              "~/.profile:1: # export PAGER=less (commented out)",
                              "~/.profile:3:     PAGER=most",
                              "~/.bashrc:2: export PAGER=most # the best"}));
    }

    void aFileThatCannotBeReadGetsALineOfItsOwn()
    {
        Sandbox::writeFile(home("/.bashrc"), "export PAGER=most\n");
        Sandbox::blockPath(home("/.profile"));

        QCOMPARE(shown(scanAll(EveModel::Bash, "PAGER")),
                 QStringList({"~/.profile: cannot be read: it is not a regular file",
                              "~/.bashrc:1: export PAGER=most"}));
    }

    void theSentenceComparesTheLastAssignmentWithTheSession_data()
    {
        QTest::addColumn<QList<Line>>("lines");
        QTest::addColumn<bool>("inSession");
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("sentence");
        const QString profile = home("/.profile"), bashrc = home("/.bashrc");
        QTest::addRow("no file sets it") << QList<Line>() << true << "less"
                                         << "less"
                                         << "No start-up file that a login reads sets PAGER";
        QTest::addRow("a commented-out line sets nothing")
            << QList<Line>{lineOf(profile, "most", true)} << true << "less"
            << "less"
            << "No start-up file that a login reads sets PAGER";
        QTest::addRow("the file has the session's value")
            << QList<Line>{lineOf(profile, "less")} << true << "less"
            << "less"
            << "~/.profile sets `less`, the value this session has";
        QTest::addRow("the file differs from the session")
            << QList<Line>{lineOf(profile, "most")} << true << "less"
            << "less"
            << "~/.profile sets `most`; this session has `less`: log in again to use the file's "
               "value";
        QTest::addRow("the table holds the file's value, as after a save")
            << QList<Line>{lineOf(profile, "most")} << true << "less"
            << "most"
            << "~/.profile sets `most`; this session has `less`: the saved value takes effect "
               "at the next login";
        QTest::addRow("the last live line decides")
            << QList<Line>{lineOf(profile, "less"), lineOf(bashrc, "most"),
                           lineOf(bashrc, "pg", true)}
            << true << "less"
            << "less"
            << "~/.bashrc sets `most`; this session has `less`: log in again to use the file's "
               "value";
        QTest::addRow("the home folder is expanded before comparing")
            << QList<Line>{lineOf(profile, "$HOME/bin/pg")} << true << home("/bin/pg") << "less"
            << "~/.profile sets `$HOME/bin/pg`, the value this session has";
        QTest::addRow("a value built from other variables")
            << QList<Line>{lineOf(profile, "$HOME/bin:$PATH")} << true << "/usr/bin"
            << "/usr/bin"
            << "~/.profile sets `$HOME/bin:$PATH`, which the shell works out at login; this "
               "session has `/usr/bin`";
        QTest::addRow("the session lacks the variable")
            << QList<Line>{lineOf(profile, "most")} << false << ""
            << "less"
            << "~/.profile sets `most`; this session does not have PAGER: log in again to use "
               "the file's value";
        QTest::addRow("the session lacks a variable just saved")
            << QList<Line>{lineOf(profile, "most")} << false << ""
            << "most"
            << "~/.profile sets `most`; this session does not have PAGER: the saved value "
               "takes effect at the next login";
        QTest::addRow("a system file is named in full")
            << QList<Line>{lineOf("/etc/profile", "most")} << true << "less"
            << "less"
            << "/etc/profile sets `most`; this session has `less`: log in again to use the "
               "file's value";
    }
    void theSentenceComparesTheLastAssignmentWithTheSession()
    {
        QFETCH(QList<Line>, lines);
        QFETCH(bool, inSession);
        QFETCH(QString, session);
        QFETCH(QString, table);
        const std::optional<QString> sessionValue =
            inSession ? std::optional<QString>(session) : std::nullopt;
        QTEST(WhereSet::explain(lines, "PAGER", sessionValue, table, Sandbox::home()), "sentence");
    }

    void theCommandShowsTheLinesAndLeavesTheFilesAlone()
    {
        Sandbox::setUserEnvironment({"PAGER=less"});
        const QByteArray profile = "# export PAGER=less\nexport PAGER=most\n";
        Sandbox::writeFile(home("/.profile"), profile);
        Eve window;
        const EveModel *model = window.eveModel();
        window.tableView->setCurrentIndex(
            model->match(model->index(0, 0), Qt::DisplayRole, "PAGER").value(0));
        QStringList rows;
        QString session, sentence;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *widget) {
            auto *dialog = qobject_cast<WhereSetDialog *>(widget);
            session = dialog->sessionLabel->text();
            sentence = dialog->explanationLabel->text();
            for (int i = 0; i < dialog->lineList->topLevelItemCount(); ++i) {
                const QTreeWidgetItem *item = dialog->lineList->topLevelItem(i);
                QStringList cells;
                for (int column = 0; column < dialog->lineList->columnCount(); ++column)
                    cells << item->text(column);
                rows << cells.join(" | ");
            }
            ModalAnswerer::clickButton(dialog, "Close");
        });

        window.findChild<WhereSetCommand *>()->action()->trigger();

        QCOMPARE(answerer.seen.value(0).title, "Where is PAGER set?");
        QCOMPARE(session, "In this session: PAGER=less");
        QCOMPARE(rows, QStringList({"~/.profile | 1 | # export PAGER=less | commented out",
                                    "~/.profile | 2 | export PAGER=most | "}));
        QCOMPARE(sentence, "~/.profile sets `most`; this session has `less`: log in again to use "
                           "the file's value");
        QCOMPARE(Sandbox::readFile(home("/.profile")), profile);
        QCOMPARE(answerer.pending(), 0);
    }

    void ctrlIAsksAboutTheCurrentRow()
    {
        Sandbox::setUserEnvironment({"PAGER=less"});
        Eve window;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const EveModel *model = window.eveModel();
        window.tableView->setCurrentIndex(
            model->match(model->index(0, 0), Qt::DisplayRole, "PAGER").value(0));
        ModalAnswerer answerer({"Close"});

        QTest::keyClick(window.tableView, Qt::Key_I, Qt::ControlModifier);

        QCOMPARE(answerer.seen.value(0).title, "Where is PAGER set?");
        QCOMPARE(answerer.pending(), 0);
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestWhereSet)
#include "tst_whereset.moc"
