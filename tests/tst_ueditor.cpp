#include "eve.h"
#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"
#include "ueditor.h"

#include <QPushButton>

class TestUEditor : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<Eve> window;

    // The main window with the variable V current, as the edit command finds it.
    void openWindow(const QString &scope = "local", const QString &vip = "",
                    const QString &login = "tester")
    {
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "V=1"});
        window.reset(new Eve);
        EveModel *model = window->eveModel();
        const QModelIndex row = model->index(rowOf(*model, "V"), 0);
        model->setData(row, "V", "1", "note", scope, vip, "1", Qt::EditRole);
        window->tableView->setCurrentIndex(row);
    }
    static bool okEnabled(const uEditor &editor)
    {
        return editor.buttonBox->button(QDialogButtonBox::Ok)->isEnabled();
    }

private slots:
    void cleanup()
    {
        window.reset();
        SandboxTest::cleanup();
    }

    void newVariableNeedsNameAndValue_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("okEnabled");
        const auto row = [](const char *name, const char *variable, const char *value,
                            const char *description, bool ok) {
            QTest::newRow(name) << variable << value << description << ok;
        };
        row("a name alone", "FOO", "", "", false);
        row("a value alone", "", "bar", "", false);
        row("a description alone", "", "", "note", false);
        row("a name and a value", "FOO", "bar", "", true);
        row("a value and an erased name", "FOO\b\b\b", "bar", "", false);
    }
    void newVariableNeedsNameAndValue()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QString, description);
        openWindow();
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.valueEdit, value);
        QTest::keyClicks(editor.variableEdit, name);
        QTest::keyClicks(editor.descriptEdit, description);
        QTEST(okEnabled(editor), "okEnabled");
    }

    void nameTakesOnlyNameCharacters_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        for (const char *name : {"PATH2", "my-var", "a_b", "x^", "x`"})
            QTest::addRow("%s is taken", name) << name << name;
        for (const char *name : {"a b", "a.b", "a$b", "a=b"})
            QTest::addRow("%s is refused", name) << name << "ab";
    }
    void nameTakesOnlyNameCharacters()
    {
        QFETCH(QString, typed);
        openWindow();
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.variableEdit, typed);
        QTEST(editor.variableEdit->text(), "name");
    }

    void editDialogShowsTheCurrentRow()
    {
        openWindow("global");
        uEditor editor(window.data());
        QCOMPARE(editor.variableEdit->text(), "V");
        QCOMPARE(editor.valueEdit->toPlainText(), "1");
        QCOMPARE(editor.descriptEdit->toPlainText(), "note");
        QVERIFY(editor.checkBox->isChecked());
        QVERIFY(!editor.vipCheck->isChecked());
        QVERIFY2(!editor.variableEdit->isEnabled(), "the name cannot be changed");
        QVERIFY2(!okEnabled(editor), "OK waits for a change");
    }

    void editDialogOkFollowsAnyChange()
    {
        openWindow();
        uEditor value(window.data()), description(window.data()), critical(window.data());
        value.valueEdit->insertPlainText("2");
        description.descriptEdit->insertPlainText("!");
        critical.vipCheck->click();
        QVERIFY(okEnabled(value) && okEnabled(description) && okEnabled(critical));
    }

    void criticalBoxLocksTheValue_data()
    {
        QTest::addColumn<bool>("newVariable");
        QTest::addRow("of a critical variable") << false;
        QTest::addRow("of a new variable") << true;
    }
    void criticalBoxLocksTheValue()
    {
        QFETCH(bool, newVariable);
        openWindow("local", "true");
        QScopedPointer<uEditor> editor(newVariable ? new uEditor(window.data(), 0)
                                                   : new uEditor(window.data()));
        if (newVariable)
            editor->vipCheck->click();
        QVERIFY(editor->vipCheck->isChecked());
        QVERIFY(!editor->valueEdit->isEnabled());
        editor->vipCheck->click();
        QVERIFY(editor->valueEdit->isEnabled());
        QCOMPARE(okEnabled(*editor), !newVariable);
    }

    void enterInTheValueClicksOk_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("okEnabled");
        QTest::addRow("Return with OK enabled") << int(Qt::Key_Return) << true;
        QTest::addRow("Enter with OK enabled") << int(Qt::Key_Enter) << true;
        QTest::addRow("Return with OK disabled") << int(Qt::Key_Return) << false;
    }
    void enterInTheValueClicksOk()
    {
        QFETCH(int, key);
        QFETCH(bool, okEnabled);
        openWindow();
        uEditor editor(window.data());
        editor.buttonBox->button(QDialogButtonBox::Ok)->setEnabled(okEnabled);
        QSignalSpy accepted(&editor, &QDialog::accepted);
        QTest::keyClick(editor.valueEdit, Qt::Key(key));
        QCOMPARE(accepted.count(), okEnabled ? 1 : 0);
        QCOMPARE(editor.valueEdit->toPlainText(), "1");
    }

    void systemBoxIsForRootOnly_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<bool>("newVariable");
        QTest::addRow("a user's new variable") << "tester" << true;
        QTest::addRow("a user's global variable") << "tester" << false;
        QTest::addRow("root's new variable") << "root" << true;
        QTest::addRow("root's global variable") << "root" << false;
    }
    void systemBoxIsForRootOnly()
    {
        QFETCH(QString, login);
        QFETCH(bool, newVariable);
        openWindow("global", "", login);
        QScopedPointer<uEditor> editor(newVariable ? new uEditor(window.data(), 0)
                                                   : new uEditor(window.data()));
        QCOMPARE(editor->checkBox->isEnabled(), login == "root");
        QCOMPARE(editor->checkBox->isChecked(), !newVariable);
    }

    void remembersItsSize()
    {
        openWindow();
        QScopedPointer<uEditor> editor(new uEditor(window.data(), 0));
        QCOMPARE(editor->size(), QSize(400, 400));
        editor->resize(300, 200);
        editor.reset();
        QCOMPARE(uEditor(window.data()).size(), QSize(300, 200));
    }
};

ORV_SANDBOX_TEST_MAIN(TestUEditor)
#include "tst_ueditor.moc"
