#include "eve.h"
#include "evemodel.h"
#include "sandbox.h"
#include "ueditor.h"

#include <QApplication>
#include <QPushButton>
#include <QSettings>
#include <QtTest>

#include <memory>

namespace {

// Gives the environment variable ORV_TEST a known record and makes it the current row.
void selectTestRow(Eve &window, const QString &scope, const QString &vip)
{
    EveModel *model = window.eveModel();
    auto find = [model] {
        return model->match(model->index(0, 0), Qt::DisplayRole, "ORV_TEST", 1, Qt::MatchExactly)
            .value(0);
    };
    model->setData(find(), "ORV_TEST", "one", "a note", scope, vip, QString(), Qt::EditRole);
    window.tableView->setCurrentIndex(find());
}

bool okEnabled(uEditor &dialog)
{
    return dialog.buttonBox->button(QDialogButtonBox::Ok)->isEnabled();
}

} // namespace

class TestUEditor : public QObject
{
    Q_OBJECT

private slots:
    void newDialog_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("key"); // pressed in the value editor at the end
        auto row = [](const char *tag, const QString &value, const QString &typed,
                      const QString &description, const QString &name, int key = Qt::Key_Return) {
            QTest::newRow(tag) << value << typed << description << name << key;
        };
        row("nothing", "", "", "", "", Qt::Key_Enter);
        row("name only", "", "FOO", "", "FOO");
        row("value only", "bar", "", "", "", Qt::Key_Enter);
        row("description only", "", "", "note", "");
        row("name, description", "", "FOO", "note", "FOO");
        row("name erased", "bar", "FOO\b\b\b", "", "");
        for (const char *name : {"PATH2", "my-var", "a_b", "^x", "`y", "[z]"})
            row(name, "bar", name, "note", name);
        for (const char *bad : {"a b", "a.b", "a$b", "a=b"})
            row(bad, "bar", bad, "", "ab", Qt::Key_Enter);
    }
    void newDialog()
    {
        Sandbox sandbox;
        QFETCH(QString, value);
        QFETCH(QString, typed);
        QFETCH(QString, description);
        QFETCH(int, key);
        Eve window;
        uEditor dialog(&window, 0);
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        QVERIFY(dialog.variableEdit->isEnabled());
        QVERIFY(!okEnabled(dialog));
        QTest::keyClicks(dialog.valueEdit, value);
        QTest::keyClicks(dialog.variableEdit, typed);
        QTest::keyClicks(dialog.descriptEdit, description);
        QTEST(dialog.variableEdit->text(), "name");
        const bool ok = !value.isEmpty() && !dialog.variableEdit->text().isEmpty();
        QCOMPARE(okEnabled(dialog), ok);

        // Return and Enter click OK instead of breaking the line; a disabled OK ignores them.
        QTest::keyClick(dialog.valueEdit, Qt::Key(key),
                        key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        QCOMPARE(dialog.valueEdit->toPlainText(), value);
        QCOMPARE(dialog.isVisible(), !ok);
        QCOMPARE(dialog.result(), ok ? int(QDialog::Accepted) : 0);
    }

    void form()
    {
        Sandbox sandbox;
        Eve window;
        uEditor d(&window, 0);
        QCOMPARE(QStringList({d.windowTitle(), d.variableEdit->placeholderText(),
                              d.valueEdit->placeholderText(), d.descriptEdit->placeholderText(),
                              d.label->text(), d.label_2->text(), d.descript_label->text(),
                              d.vipCheck->text(), d.checkBox->text()}),
                 QStringList({"Create new variable", "Enter new variable's name here...",
                              "Enter new variable's value here...", "Enter comments here...",
                              "Variable", "Value", "Description", "Critical system variable",
                              "Save in system directory /etc/"}));
        QCOMPARE(d.label->buddy(), d.variableEdit);
        QCOMPARE(d.label_2->buddy(), d.valueEdit);
        QCOMPARE(d.descript_label->buddy(), d.valueEdit);
    }

    void editDialog_data()
    {
        QTest::addColumn<QString>("vip");
        QTest::addColumn<QString>("changed");
        for (const QString vip : {"", "true"}) {
            for (const QString changed : {"valueEdit", "descriptEdit", "vipCheck"})
                QTest::addRow("vip '%s', %s", qPrintable(vip), qPrintable(changed))
                    << vip << changed;
        }
    }
    void editDialog()
    {
        Sandbox sandbox;
        QFETCH(QString, vip);
        QFETCH(QString, changed);
        Sandbox::setUserEnvironment({"ORV_TEST=one"});
        Eve window;
        selectTestRow(window, "local", vip);
        uEditor d(&window);
        QCOMPARE(QStringList({d.windowTitle(), d.variableEdit->text(), d.valueEdit->toPlainText(),
                              d.descriptEdit->toPlainText()}),
                 QStringList({"Edit variable", "ORV_TEST", "one", "a note"}));
        QVERIFY(!d.variableEdit->isEnabled());
        QCOMPARE(d.vipCheck->isChecked(), vip == "true");
        QCOMPARE(d.valueEdit->isEnabled(), vip != "true");
        QVERIFY(!okEnabled(d));

        QWidget *widget = d.findChild<QWidget *>(changed);
        if (auto *box = qobject_cast<QCheckBox *>(widget))
            box->click();
        else
            QTest::keyClick(widget, Qt::Key_X); // ignored by a disabled value editor
        QCOMPARE(okEnabled(d), widget->isEnabled());
        QCOMPARE(d.valueEdit->isEnabled(), !d.vipCheck->isChecked());
    }

    void systemBox_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QString>("scope"); // empty: the new-variable dialog
        for (const QString login : {"tester", "root"}) {
            for (const QString scope : {"", "global", "local"})
                QTest::addRow("%s, %s", qPrintable(login),
                              scope.isEmpty() ? "new" : qPrintable(scope))
                    << login << scope;
        }
    }
    void systemBox()
    {
        Sandbox sandbox;
        QFETCH(QString, login);
        QFETCH(QString, scope);
        Sandbox::setUserEnvironment({"LOGNAME=" + login, "ORV_TEST=one"});
        Eve window;
        if (!scope.isEmpty())
            selectTestRow(window, scope, QString());
        std::unique_ptr<uEditor> dialog(scope.isEmpty() ? new uEditor(&window, 0)
                                                        : new uEditor(&window));
        QCOMPARE(dialog->checkBox->isEnabled(), login == "root");
        QCOMPARE(dialog->checkBox->isChecked(), scope == "global");
    }

    void size()
    {
        Sandbox sandbox;
        Eve window;
        auto dialog = std::make_unique<uEditor>(&window, 0);
        QCOMPARE(dialog->size(), QSize(400, 400));
        dialog->resize(300, 200);
        dialog.reset();
        QCOMPARE(QSettings().value("uEditor/size").toSize(), QSize(300, 200));
        QCOMPARE(uEditor(&window).size(), QSize(300, 200));
    }
};

ORV_SANDBOX_TEST_MAIN(TestUEditor)
#include "tst_ueditor.moc"
