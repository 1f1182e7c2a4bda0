#include "evemodel.h"
#include "preferencesdialog.h"
#include "sandboxtest.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QToolTip>

class TestPreferences : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<EveModel> model;
    QScopedPointer<preferencesDialog> dialog;

    // The dialog over the system files a, b and c and the user files given.
    void open(const QString &login = "root", const QString &shell = "bash",
              const QStringList &userFiles = {"a", "b", "c"})
    {
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "SHELL=/bin/" + shell});
        model.reset(new EveModel);
        model->systemFiles = QStringList{"a", "b", "c"};
        model->userFiles = userFiles;
        dialog.reset(new preferencesDialog(nullptr, model.data()));
    }
    QListWidget *list(const QString &which) const
    {
        return dialog->findChild<QListWidget *>(which + "FilesList");
    }
    QPushButton *button(const QString &which, const QString &role) const
    {
        return dialog->findChild<QPushButton *>(which + role + "Button");
    }
    QPushButton *ok() const { return dialog->buttonBox->button(QDialogButtonBox::Ok); }
    QPushButton *apply() const { return dialog->buttonBox->button(QDialogButtonBox::Apply); }
    void remove(const QString &which, int row)
    {
        list(which)->setCurrentRow(row);
        button(which, "Remove")->click();
    }
    QStringList itemsOf(const QString &which) const
    {
        QStringList items;
        for (int row = 0; row < list(which)->count(); ++row)
            items << list(which)->item(row)->text();
        return items;
    }
    static QStringList stored(const QString &key)
    {
        return QSettings().value("configFiles/" + key).toStringList();
    }

private slots:
    void cleanup()
    {
        dialog.reset();
        model.reset();
        SandboxTest::cleanup();
    }

    void opensWithOnlyTheAddButtonsEnabled()
    {
        open("tester", "bash", {"mine"});
        QCOMPARE(itemsOf("system"), QStringList({"a", "b", "c"}));
        QCOMPARE(itemsOf("user"), QStringList({"mine"}));
        QVERIFY2(!list("system")->isEnabled() && !button("system", "Add")->isEnabled(),
                 "only root may change the system list");
        QVERIFY(button("user", "Add")->isEnabled());
        for (const QString which : {"system", "user"})
            for (const QString role : {"Up", "Down", "Remove"})
                QVERIFY2(!button(which, role)->isEnabled(), qPrintable(which + role));
        QVERIFY(!ok()->isEnabled() && !apply()->isEnabled());
        open("root");
        QVERIFY(list("system")->isEnabled() && button("system", "Add")->isEnabled());
    }

    void buttonsChangeTheList_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("role");
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<int>("currentRow");
        QTest::addRow("Up moves a user file up")
            << "user" << 1 << "Up" << QStringList{"b", "a", "c"} << 0;
        QTest::addRow("Down moves a system file down")
            << "system" << 1 << "Down" << QStringList{"a", "c", "b"} << 2;
        QTest::addRow("Remove drops the first system file")
            << "system" << 0 << "Remove" << QStringList{"b", "c"} << 0;
    }
    void buttonsChangeTheList()
    {
        QFETCH(QString, which);
        QFETCH(int, row);
        QFETCH(QString, role);
        QFETCH(int, currentRow);
        open();
        list(which)->setCurrentRow(row);
        button(which, role)->click();
        QTEST(itemsOf(which), "items");
        QCOMPARE(list(which)->currentRow(), currentRow);
        QCOMPARE(button(which, "Up")->isEnabled(), currentRow > 0);
        QCOMPARE(button(which, "Down")->isEnabled(), currentRow < list(which)->count() - 1);
        QVERIFY(ok()->isEnabled() && apply()->isEnabled());
        QCOMPARE(model->userFiles + model->systemFiles,
                 QStringList({"a", "b", "c", "a", "b", "c"}));
    }

    // The file dialog starts in the home folder for a user file and in /etc
    // for a system file.
    void addAppendsTheChosenFile()
    {
        open();
        QStringList folders;
        const auto choose = [&folders](const QString &path) {
            return [&folders, path](QWidget *widget) {
                folders << qobject_cast<QFileDialog *>(widget)->directory().absolutePath();
                if (!path.isEmpty()) // typed, as selectFile() leaves a focused name editor alone
                    widget->findChild<QLineEdit *>("fileNameEdit")->setText(path);
                ModalAnswerer::clickButton(widget, path.isEmpty() ? "Cancel" : "Open");
            };
        };
        answerer->addAction(choose(""));
        button("user", "Add")->click();
        QVERIFY2(itemsOf("user").size() == 3 && !apply()->isEnabled(), "a cancelled choice");
        const QString added = Sandbox::system("/etc/added");
        Sandbox::writeFile(added, "");
        answerer->addAction(choose(added));
        button("system", "Add")->click();
        QCOMPARE(itemsOf("system"), QStringList({"a", "b", "c", added}));
        QVERIFY(apply()->isEnabled());
        QCOMPARE(folders, QStringList({Sandbox::home(), Sandbox::system("/etc")}));
    }

    void okStoresTheListsByShellKind_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("userKey"); // empty: the user list is not stored
        QTest::addRow("bash stores the user list under bash") << "bash" << QString("bash");
        QTest::addRow("tcsh stores the user list under tcsh") << "tcsh" << QString("tcsh");
        QTest::addRow("another shell does not store the user list") << "sh" << QString();
    }
    void okStoresTheListsByShellKind()
    {
        QFETCH(QString, shell);
        QFETCH(QString, userKey);
        open("root", shell);
        remove("system", 0);
        remove("user", 2);
        ok()->click();
        QCOMPARE(dialog->result(), int(QDialog::Accepted));
        QCOMPARE(model->systemFiles, QStringList({"b", "c"}));
        QCOMPARE(model->userFiles, QStringList({"a", "b"}));
        QCOMPARE(stored("system"), QStringList({"b", "c"}));
        for (const QString key : {"bash", "tcsh"})
            QCOMPARE(stored(key), key == userKey ? QStringList({"a", "b"}) : QStringList());
    }

    // Escape then cancels what came after the Apply.
    void applyStoresAndKeepsTheDialogOpen()
    {
        open();
        QCOMPARE(dialog->size(), QSize(400, 400));
        dialog->resize(500, 450);
        remove("user", 0);
        apply()->click();
        QVERIFY(!apply()->isEnabled() && ok()->isEnabled());
        QCOMPARE(stored("bash"), QStringList({"b", "c"}));
        remove("user", 0);
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QCOMPARE(stored("bash"), QStringList({"b", "c"}));
        QCOMPARE(preferencesDialog(nullptr, model.data()).size(), QSize(500, 450));
    }

    void f1ShowsHelpOnTheFocusedWidget()
    {
        open();
        button("user", "Add")->setToolTip("Adds a user file");
        QString shown;
        answerer->addAction([&shown](QWidget *dialog) {
            if (!QTest::qWaitForWindowActive(dialog)) // the Add button gets the focus then
                qWarning("the preferences dialog never became active");
            QTest::keyClick(dialog, Qt::Key_F1);
            shown = QToolTip::text();
            QToolTip::hideText();
            static_cast<QDialog *>(dialog)->reject();
        });
        dialog->exec();
        QCOMPARE(shown, "Adds a user file");
    }
};

ORV_SANDBOX_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
