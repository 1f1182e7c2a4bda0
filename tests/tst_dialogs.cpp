#include "eve.h"
#include "evemodel.h"
#include "preferencesdialog.h"
#include "sandboxtest.h"
#include "tablehelpers.h"
#include "ueditor.h"

// The variable editor and the preferences dialog over a main window whose
// table has the variable V and whose file lists are a, b and c.
class TestDialogs : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<Eve> window;
    QScopedPointer<preferencesDialog> preferences;

    EveModel *model() const { return window->eveModel(); }
    void openWindow(const QString &login = "tester", const QString &shell = "bash")
    {
        preferences.reset();
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "SHELL=/bin/" + shell, "V=1"});
        window.reset(new Eve);
        model()->systemFiles = model()->userFiles = QStringList{"a", "b", "c"};
    }
    // Makes V the current row, as the edit command finds it.
    void makeVCurrent(const QString &scope, const QString &vip)
    {
        const QModelIndex row = model()->index(rowOf(*model(), "V"), 0);
        model()->setData(row, "V", "1", "note", scope, vip, "1", Qt::EditRole);
        window->tableView->setCurrentIndex(row);
    }
    void openPreferences(const QString &login = "root", const QString &shell = "bash")
    {
        openWindow(login, shell);
        preferences.reset(new preferencesDialog(window.data(), model()));
    }
    static bool okEnabled(const QDialog &dialog)
    {
        return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled();
    }
    QPushButton *apply() const { return preferences->buttonBox->button(QDialogButtonBox::Apply); }
    QListWidget *list(const QString &which) const
    {
        return preferences->findChild<QListWidget *>(which + "FilesList");
    }
    QPushButton *button(const QString &which, const QString &role) const
    {
        return preferences->findChild<QPushButton *>(which + role + "Button");
    }
    void remove(const QString &which, int row)
    {
        list(which)->setCurrentRow(row);
        button(which, "Remove")->click();
    }
    static QStringList stored(const QString &key)
    {
        return QSettings().value("configFiles/" + key).toStringList();
    }

private slots:
    void cleanup()
    {
        preferences.reset();
        window.reset();
        SandboxTest::cleanup();
    }

    // Letters, digits, "_", "-" and what lies between "Z" and "a" in ASCII.
    void newVariableNeedsANameOfNameCharactersAndAValue()
    {
        openWindow();
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.descriptEdit, "note");
        QVERIFY2(!okEnabled(editor), "a description alone");
        QTest::keyClicks(editor.variableEdit, "my-Var_2 .$=^`");
        QCOMPARE(editor.variableEdit->text(), "my-Var_2^`");
        QVERIFY2(!okEnabled(editor), "a name without a value");
        QTest::keyClicks(editor.valueEdit, "bar");
        QVERIFY2(okEnabled(editor), "a name and a value");
        editor.variableEdit->clear();
        QVERIFY2(!okEnabled(editor), "a value and an erased name");
    }

    // Return and Enter in the value click OK, which waits for a change.
    void enterInTheValueClicksOk()
    {
        openWindow();
        makeVCurrent("local", "");
        uEditor editor(window.data());
        QSignalSpy accepted(&editor, &QDialog::accepted);
        QTest::keyClick(editor.valueEdit, Qt::Key_Return);
        QVERIFY(accepted.isEmpty());
        editor.descriptEdit->insertPlainText("!");
        QTest::keyClick(editor.valueEdit, Qt::Key_Enter);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(editor.valueEdit->toPlainText(), "1");
    }

    // In the edit dialog of a critical variable, and when checked in a new one.
    void criticalBoxLocksTheValue()
    {
        openWindow();
        makeVCurrent("local", "true");
        uEditor edited(window.data()), added(window.data(), 0);
        added.vipCheck->click();
        for (uEditor *editor : {&edited, &added}) {
            QVERIFY(editor->vipCheck->isChecked() && !editor->valueEdit->isEnabled());
            editor->vipCheck->click();
            QVERIFY(editor->valueEdit->isEnabled());
        }
        QVERIFY2(okEnabled(edited), "unchecking is a change");
    }

    void onlyRootMayChooseSystemScopeAndSystemFiles()
    {
        for (const QString login : {"tester", "root"}) {
            openPreferences(login);
            makeVCurrent("global", "");
            uEditor added(window.data(), 0), edited(window.data());
            QCOMPARE(added.checkBox->isEnabled(), login == "root");
            QCOMPARE(edited.checkBox->isEnabled(), login == "root");
            QVERIFY2(edited.checkBox->isChecked(), "the edited variable is global");
            QCOMPARE(list("system")->isEnabled(), login == "root");
            QCOMPARE(button("system", "Add")->isEnabled(), login == "root");
            QVERIFY(button("user", "Add")->isEnabled());
        }
    }

    // Up, Down and Remove wait for a current file; OK and Apply for a change.
    void fileListButtonsChangeTheList_data()
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
    void fileListButtonsChangeTheList()
    {
        QFETCH(QString, which);
        QFETCH(int, row);
        QFETCH(QString, role);
        QFETCH(int, currentRow);
        openPreferences();
        QVERIFY(!button(which, role)->isEnabled() && !okEnabled(*preferences));
        QVERIFY(!apply()->isEnabled());
        list(which)->setCurrentRow(row);
        button(which, role)->click();
        QTEST(namesOf(*list(which)->model()), "items");
        QCOMPARE(list(which)->currentRow(), currentRow);
        QCOMPARE(button(which, "Up")->isEnabled(), currentRow > 0);
        QCOMPARE(button(which, "Down")->isEnabled(), currentRow < list(which)->count() - 1);
        QVERIFY(okEnabled(*preferences) && apply()->isEnabled());
        QVERIFY2(model()->systemFiles == model()->userFiles, "the model waits for OK or Apply");
    }

    // Apply stores and keeps the dialog open; the user list is stored by shell kind.
    void applyAndOkStoreTheLists_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<QString>("userKey"); // empty: the user list is not stored
        QTest::addRow("bash stores the user list under bash") << "bash" << QString("bash");
        QTest::addRow("tcsh stores the user list under tcsh") << "tcsh" << QString("tcsh");
        QTest::addRow("another shell does not store the user list") << "sh" << QString();
    }
    void applyAndOkStoreTheLists()
    {
        QFETCH(QString, shell);
        QFETCH(QString, userKey);
        openPreferences("root", shell);
        remove("system", 0);
        apply()->click();
        QVERIFY(!apply()->isEnabled() && okEnabled(*preferences));
        QCOMPARE(stored("system"), QStringList({"b", "c"}));
        remove("user", 2);
        preferences->buttonBox->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(preferences->result(), int(QDialog::Accepted));
        QCOMPARE(model()->systemFiles, QStringList({"b", "c"}));
        QCOMPARE(model()->userFiles, QStringList({"a", "b"}));
        for (const QString key : {"bash", "tcsh"})
            QCOMPARE(stored(key), key == userKey ? QStringList({"a", "b"}) : QStringList());
    }
};

ORV_SANDBOX_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
