#include "core/files/backups.h"
#include "core/reach/ownedfile.h"
#include "core/reach/usermanager.h"
#include "core/save/restore.h"
#include "gui/app/eve.h"
#include "gui/lookup/wheresetdialog.h"
#include "gui/reach/reachdialog.h"
#include "support/sandboxtest.h"
#include "support/windowhelpers.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTreeWidget>

// The dialog of "Reach...": its rows come from the real shells and the
// systemd generator, run in the sandbox; its writes go through the save's
// checked, copied-first rewrite.
class TestReachDialog : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<Eve> window;

    // A login of the sandbox's user with `shell`, the system folders of the sandbox.
    static ReachEnvironment loginWith(const QString &shell)
    {
        ReachEnvironment environment;
        environment.home = Sandbox::home();
        environment.user = "tester";
        environment.shell = QStandardPaths::findExecutable(shell);
        environment.sysroot = Sandbox::sysroot();
        return environment;
    }
    static QString envFile()
    {
        return OwnedFile::path(OwnedFile::Kind::EnvironmentD, Sandbox::home() + "/.config");
    }
    // The dialog once every row is worked out (at most 3 seconds each).
    ReachDialog *open(const QString &shell, const QString &tableValue)
    {
        auto *dialog = new ReachDialog(&portOf(*window), "EDITOR", tableValue, loginWith(shell),
                                       window.data());
        waitFor(dialog);
        return dialog;
    }
    static void waitFor(ReachDialog *dialog)
    {
        QTRY_VERIFY_WITH_TIMEOUT(!dialog->isWorkingOut(), 10000);
    }
    static QStringList column(ReachDialog *dialog, int column)
    {
        QStringList texts;
        for (int row = 0; row < ReachDialog::RowCount; ++row)
            texts << dialog->rowList->topLevelItem(row)->text(column);
        return texts;
    }

private slots:
    void init()
    {
        SandboxTest::init();
        window.reset(new Eve);
    }
    void cleanup()
    {
        window.reset();
        UserManager::programs() = UserManager::Programs();
        SandboxTest::cleanup();
    }

    void rowsStartAsWorkingOut()
    {
        ReachDialog dialog(&portOf(*window), "EDITOR", "vim", loginWith("bash"), window.data());
        QCOMPARE(
            column(&dialog, ReachDialog::ValueColumn),
            QStringList({"working out...", "working out...", "working out...", "working out..."}));
        QVERIFY(dialog.isWorkingOut());
    }

    // ~/.profile is read by bash logins (and so by ssh), not by terminals;
    // /etc/environment by graphical programs and ssh.
    void eachRowTellsWhatItsProgramsGet()
    {
        Sandbox::writeFile(Sandbox::home() + "/.profile", "export EDITOR=vim\n");
        Sandbox::writeFile(Sandbox::system("/etc/environment"), "EDITOR=nano\n");
        QScopedPointer<ReachDialog> dialog(open("bash", "vim"));

        QCOMPARE(column(dialog.data(), ReachDialog::ValueColumn),
                 QStringList({"nano", "vim", "not set", "vim"}));
        QCOMPARE(column(dialog.data(), ReachDialog::SameColumn),
                 QStringList({"no", "yes", "no", "yes"}));
        QCOMPARE(dialog->rowList->topLevelItem(ReachDialog::GraphicalRow)
                     ->text(ReachDialog::OriginColumn),
                 Sandbox::system("/etc/environment") + ":1");
        // bash's own files are written by Save: no button for them.
        QVERIFY(dialog->graphicalButton->isVisibleTo(dialog.data()));
        QVERIFY(!dialog->shellButton->isVisibleTo(dialog.data()));
    }

    // Shown first, written through the safe write, then worked out again.
    void makeItReachGraphicalProgramsWritesTheOwnedFile()
    {
        QScopedPointer<ReachDialog> dialog(open("bash", "vim"));
        dialog->graphicalButton->click();
        QVERIFY(dialog->pendingLines->toPlainText().contains("+EDITOR=vim\n"));
        QVERIFY(!QFileInfo::exists(envFile()));

        dialog->writeButton->click();
        waitFor(dialog.data());

        QCOMPARE(Sandbox::readFile(envFile()), OwnedFile::header() + "\nEDITOR=vim\n");
        QCOMPARE(dialog->result(ReachDialog::GraphicalRow).value, "vim");
        QCOMPARE(dialog->pendingLabel->text(), "~/.config/environment.d/60-orv-admin-env.conf was "
                                               "written.");
        QVERIFY(!dialog->graphicalButton->isVisibleTo(dialog.data()));
    }

    // The bytes it replaced are kept as a save keeps them; Restore brings them back.
    void aSecondWriteKeepsACopyThatRestoreBringsBack()
    {
        const QByteArray first = OwnedFile::header() + "\n# mine\nEDITOR=vi\n";
        Sandbox::writeFile(envFile(), first);
        QScopedPointer<ReachDialog> dialog(open("bash", "vim"));
        dialog->graphicalButton->click();
        dialog->writeButton->click();
        waitFor(dialog.data());

        QCOMPARE(Sandbox::readFile(envFile()), OwnedFile::header() + "\n# mine\nEDITOR=vim\n");
        const QList<Backups::Copy> copies = Backups::list(envFile()).value();
        QCOMPARE(copies.size(), 1);
        QVERIFY(Restore::copy(copies.first().path, envFile()));
        QCOMPARE(Sandbox::readFile(envFile()), first);
    }

    void makeItReachZshWritesZshenvAsASaveDoes()
    {
        if (QStandardPaths::findExecutable("zsh").isEmpty())
            QSKIP("zsh is not installed");
        Sandbox::writeFile(Sandbox::home() + "/.zshenv", "export PAGER=less\n");
        QScopedPointer<ReachDialog> dialog(open("zsh", "my editor"));
        QVERIFY(dialog->shellButton->isVisibleTo(dialog.data()));
        QCOMPARE(dialog->shellButton->text(), "Make it reach &zsh");

        dialog->shellButton->click();
        dialog->writeButton->click();
        waitFor(dialog.data());

        QCOMPARE(Sandbox::readFile(Sandbox::home() + "/.zshenv"),
                 "export EDITOR=\"my editor\"\nexport PAGER=less\n");
        QCOMPARE(column(dialog.data(), ReachDialog::SameColumn).mid(1),
                 QStringList({"yes", "yes", "yes"}));
    }

    // Through stand-ins: no test changes the real user manager.
    void applyNowSetsTheUserManagersEnvironment()
    {
        const QString record = Sandbox::home() + "/asked";
        const QString systemctl = Sandbox::home() + "/bin/systemctl";
        Sandbox::writeFile(systemctl, "#!/bin/sh\necho \"$@\" >>" + record.toUtf8() + "\n");
        QFile::setPermissions(systemctl, QFile::ReadOwner | QFile::ExeOwner);
        UserManager::programs().systemctl = systemctl;
        UserManager::programs().updateActivationEnvironment = "no-such-program";
        QScopedPointer<ReachDialog> dialog(open("bash", "vim"));
        QTRY_VERIFY(Sandbox::readFile(record).contains("show-environment"));

        dialog->graphicalButton->click();
        QTRY_VERIFY(dialog->applyButton->isVisibleTo(dialog.data()));
        dialog->applyButton->click();

        QCOMPARE(Sandbox::readFile(record),
                 "--user show-environment\n--user set-environment EDITOR=vim\n");
        QVERIFY(dialog->pendingLabel->text().startsWith("Programs started from now on get "
                                                        "EDITOR=vim."));
    }

    void withoutAUserManagerTheDialogSaysWhy()
    {
        UserManager::programs().systemctl = "no-such-systemctl";
        QScopedPointer<ReachDialog> dialog(open("bash", "vim"));
        dialog->graphicalButton->click();
        QVERIFY(!dialog->applyButton->isVisibleTo(dialog.data()));
        QVERIFY2(dialog->pendingLabel->text().startsWith(
                     "It takes effect at the next login; it cannot be applied now, because "
                     "no-such-systemctl is not installed. Writing makes "),
                 qPrintable(dialog->pendingLabel->text()));
    }

    void aRowsFileOpensWhereIsItSetAtItsLine()
    {
        Sandbox::writeFile(Sandbox::system("/etc/environment"), "LANG=C\nEDITOR=nano\n");
        QScopedPointer<ReachDialog> dialog(open("bash", "vim"));
        QString current;
        answerer->addAction([&current](QWidget *widget) {
            auto *where = qobject_cast<WhereSetDialog *>(widget);
            current = where->lineList->currentItem()->text(WhereSetDialog::LineColumn);
            where->reject();
        });

        emit dialog->rowList->itemActivated(
            dialog->rowList->topLevelItem(ReachDialog::GraphicalRow), 0);

        QCOMPARE(current, "2");
    }
};

ORV_SANDBOX_TEST_MAIN(TestReachDialog)
#include "tst_reachdialog.moc"
