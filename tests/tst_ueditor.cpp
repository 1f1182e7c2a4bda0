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

    void newVariableNeedsNameAndValue()
    {
        openWindow();
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.descriptEdit, "note");
        QVERIFY2(!okEnabled(editor), "a description alone");
        QTest::keyClicks(editor.variableEdit, "FOO");
        QVERIFY2(!okEnabled(editor), "a name without a value");
        QTest::keyClicks(editor.valueEdit, "bar");
        QVERIFY2(okEnabled(editor), "a name and a value");
        QTest::keyClicks(editor.variableEdit, "\b\b\b");
        QVERIFY2(!okEnabled(editor), "a value and an erased name");
    }

    // Letters, digits, "_", "-" and what lies between "Z" and "a" in ASCII.
    void nameTakesOnlyNameCharacters()
    {
        openWindow();
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.variableEdit, "my-Var_2 .$=^`");
        QCOMPARE(editor.variableEdit->text(), "my-Var_2^`");
    }

    void editDialogOkFollowsAnyChange()
    {
        openWindow();
        uEditor value(window.data()), description(window.data()), critical(window.data());
        QVERIFY2(!okEnabled(value), "OK waits for a change");
        QVERIFY2(!value.variableEdit->isEnabled(), "the name cannot be changed");
        value.valueEdit->insertPlainText("2");
        description.descriptEdit->insertPlainText("!");
        critical.vipCheck->click();
        QVERIFY(okEnabled(value) && okEnabled(description) && okEnabled(critical));
    }

    // In the edit dialog of a critical variable, and when checked in a new one.
    void criticalBoxLocksTheValue()
    {
        openWindow("local", "true");
        uEditor edited(window.data()), added(window.data(), 0);
        added.vipCheck->click();
        for (uEditor *editor : {&edited, &added}) {
            QVERIFY(editor->vipCheck->isChecked() && !editor->valueEdit->isEnabled());
            editor->vipCheck->click();
            QVERIFY(editor->valueEdit->isEnabled());
        }
        QVERIFY2(okEnabled(edited), "unchecking is a change");
    }

    // Return and Enter in the value click OK, which does nothing while disabled.
    void enterInTheValueClicksOk()
    {
        openWindow();
        uEditor editor(window.data());
        QSignalSpy accepted(&editor, &QDialog::accepted);
        QTest::keyClick(editor.valueEdit, Qt::Key_Return);
        QVERIFY(accepted.isEmpty());
        editor.descriptEdit->insertPlainText("!");
        QTest::keyClick(editor.valueEdit, Qt::Key_Enter);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(editor.valueEdit->toPlainText(), "1");
    }

    void systemBoxIsForRootOnly_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addRow("a user") << "tester";
        QTest::addRow("root") << "root";
    }
    void systemBoxIsForRootOnly()
    {
        QFETCH(QString, login);
        openWindow("global", "", login);
        uEditor added(window.data(), 0), edited(window.data());
        QCOMPARE(added.checkBox->isEnabled(), login == "root");
        QCOMPARE(edited.checkBox->isEnabled(), login == "root");
        QVERIFY2(edited.checkBox->isChecked(), "the edited variable is global");
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
