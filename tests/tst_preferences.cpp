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

    // The dialog over the files a, b and c in both lists.
    void open(const QString &login = "root", const QString &shell = "bash")
    {
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "SHELL=/bin/" + shell});
        model.reset(new EveModel);
        model->systemFiles = model->userFiles = QStringList{"a", "b", "c"};
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

    void opensWithTheAllowedAddButtonsOnly_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addRow("a user may not change the system list") << "tester";
        QTest::addRow("root may change both lists") << "root";
    }
    void opensWithTheAllowedAddButtonsOnly()
    {
        QFETCH(QString, login);
        open(login);
        model->userFiles = QStringList{"mine"};
        dialog.reset(new preferencesDialog(nullptr, model.data()));
        QCOMPARE(itemsOf("system"), QStringList({"a", "b", "c"}));
        QCOMPARE(itemsOf("user"), QStringList({"mine"}));
        QCOMPARE(list("system")->isEnabled(), login == "root");
        QCOMPARE(button("system", "Add")->isEnabled(), login == "root");
        QVERIFY(button("user", "Add")->isEnabled());
        for (const QString which : {"system", "user"})
            for (const QString role : {"Up", "Down", "Remove"})
                QVERIFY2(!button(which, role)->isEnabled(), qPrintable(which + role));
        QVERIFY(!ok()->isEnabled() && !apply()->isEnabled());
    }

    void buttonsChangeTheList_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("role");
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<int>("currentRow");
        for (const char *which : {"system", "user"}) {
            QTest::addRow("Up moves a %s file up", which)
                << which << 1 << "Up" << QStringList{"b", "a", "c"} << 0;
            QTest::addRow("Down moves a %s file down", which)
                << which << 1 << "Down" << QStringList{"a", "c", "b"} << 2;
            QTest::addRow("Remove drops the last %s file", which)
                << which << 2 << "Remove" << QStringList{"a", "b"} << 1;
            QTest::addRow("Remove drops the first %s file", which)
                << which << 0 << "Remove" << QStringList{"b", "c"} << 0;
        }
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
        QCOMPARE(model->userFiles, QStringList({"a", "b", "c"}));
    }

    void addAppendsTheChosenFile_data()
    {
        QTest::addColumn<QString>("which");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("chosen");
        QTest::addRow("a user file") << "user" << Sandbox::home() << true;
        QTest::addRow("a system file") << "system" << Sandbox::system("/etc") << true;
        QTest::addRow("a cancelled choice") << "user" << Sandbox::home() << false;
    }
    void addAppendsTheChosenFile()
    {
        QFETCH(QString, which);
        QFETCH(QString, folder);
        QFETCH(bool, chosen);
        open();
        Sandbox::writeFile(folder + "/added", "");
        QString shownFolder;
        answerer->addAction([&](QWidget *widget) {
            shownFolder = qobject_cast<QFileDialog *>(widget)->directory().absolutePath();
            if (chosen) // typed, as selectFile() leaves a focused name editor alone
                widget->findChild<QLineEdit *>("fileNameEdit")->setText(folder + "/added");
            ModalAnswerer::clickButton(widget, chosen ? "Open" : "Cancel");
        });
        button(which, "Add")->click();
        QCOMPARE(shownFolder, folder);
        QCOMPARE(itemsOf(which).mid(3), chosen ? QStringList{folder + "/added"} : QStringList());
        QCOMPARE(apply()->isEnabled(), chosen);
    }

    void okStoresTheListsByShellKind_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("userKey"); // empty: the user list is not stored
        QTest::addRow("bash stores the user list under bash") << "bash"
                                                              << "bash";
        QTest::addRow("tcsh stores the user list under tcsh") << "tcsh"
                                                              << "tcsh";
        QTest::addRow("another shell does not store the user list") << "sh"
                                                                    << "";
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

    void applyStoresAndKeepsTheDialogOpen()
    {
        open();
        QCOMPARE(dialog->size(), QSize(400, 400));
        dialog->resize(500, 450);
        remove("user", 0);
        apply()->click();
        QVERIFY(!apply()->isEnabled());
        QVERIFY(ok()->isEnabled());
        QCOMPARE(stored("bash"), QStringList({"b", "c"}));
        remove("user", 0);
        dialog->buttonBox->button(QDialogButtonBox::Cancel)->click();
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
        QCOMPARE(stored("bash"), QStringList({"b", "c"}));
        QCOMPARE(preferencesDialog(nullptr, model.data()).size(), QSize(500, 450));
    }

    void returnNeedsOkEnabledAndEscapeRejects()
    {
        open();
        QSignalSpy finished(dialog.data(), &QDialog::finished);
        QTest::keyClick(dialog.data(), Qt::Key_Return);
        QVERIFY2(finished.isEmpty(), "Return clicks OK, which is disabled while nothing changed");
        QTest::keyClick(dialog.data(), Qt::Key_Escape);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Rejected));
        QVERIFY(QSettings().allKeys().isEmpty());
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
