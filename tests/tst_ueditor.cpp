#include "eve.h"
#include "evemodel.h"
#include "sandbox.h"
#include "ueditor.h"

#include <QtTest>

class TestUEditor : public QObject
{
    Q_OBJECT

    // On: name editor, /etc box; checked: /etc, vip box; on: value editor, OK; then the texts.
    static QString states(uEditor &d)
    {
        QString s;
        for (bool b : {d.variableEdit->isEnabled(), d.checkBox->isEnabled(),
                       d.checkBox->isChecked(), d.vipCheck->isChecked(), d.valueEdit->isEnabled(),
                       d.buttonBox->buttons().first()->isEnabled()})
            s += b ? '1' : '0';
        return s + ' ' + d.variableEdit->text() + '|' + d.valueEdit->toPlainText() + '|' +
               d.descriptEdit->toPlainText();
    }

private slots:
    // "login scope-or-new vip value|name|description|vip-box", '<' erasing, ' ' clicking;
    // states at opening, whether Enter and Return accept, states after.
    void dialog_data()
    {
        QTest::addColumn<QString>("result");
        QTest::newRow("tester new - |FOO|") << "100010 || -- 100010 FOO||";
        QTest::newRow("tester new - bar||") << "100010 || -- 100010 |bar|";
        QTest::newRow("root new - bar|FOO|") << "110010 || ++ 110011 FOO|bar|";
        QTest::newRow("tester new - bar|FOO<<<|") << "100010 || -- 100010 |bar|";
        QTest::newRow("tester new - ||note") << "100010 || -- 100010 ||note";
        for (const char *n : {"PATH2", "my-var", "a_b", "^", "`", "["})
            QTest::addRow("tester new - v|%s|", n) << QString("100010 || ++ 100011 %1|v|").arg(n);
        for (const char *bad : {"a b", "a.b", "a$b", "a=b"})
            QTest::addRow("tester new - v|%s|", bad) << "100010 || ++ 100011 ab|v|";
        QTest::newRow("tester local - x||") << "000010 V|1|d ++ 000011 V|x1|d";
        QTest::newRow("tester global - ||x") << "001010 V|1|d ++ 001011 V|1|xd";
        QTest::newRow("root global true ||| ") << "011100 V|1|d ++ 011011 V|1|d";
    }
    void dialog()
    {
        Sandbox sandbox;
        QStringList w = QString(QTest::currentDataTag()).split(' ');
        const QStringList typed = w.mid(3).join(' ').replace('<', '\b').split('|');
        Sandbox::setUserEnvironment({"LOGNAME=" + w[0], "V=1"});
        Eve window;
        EveModel *m = window.eveModel();
        const QModelIndex row = m->match(m->index(0, 0), Qt::DisplayRole, "V").value(0);
        m->setData(row, "V", "1", "d", w[1], w[2].remove('-'), "", Qt::EditRole);
        window.tableView->setCurrentIndex(row);
        QScopedPointer<uEditor> d(w[1] == "new" ? new uEditor(&window, 0) : new uEditor(&window));
        QString result = states(*d) + ' ';
        const QWidgetList editors{d->valueEdit, d->variableEdit, d->descriptEdit, d->vipCheck};
        for (int i = 0; i < typed.size(); ++i)
            QTest::keyClicks(editors[i], typed[i]);
        for (Qt::Key key : {Qt::Key_Enter, Qt::Key_Return}) {
            d->setResult(0);
            QTest::keyClick(d->valueEdit, key); // never a line break
            result += d->result() == QDialog::Accepted ? '+' : '-';
        }
        QTEST(result + ' ' + states(*d), "result");
    }

    void formAndSize()
    {
        Sandbox sandbox;
        Eve window;
        QScopedPointer<uEditor> d(new uEditor(&window, 0));
        QCOMPARE(d->size(), QSize(400, 400));
        QStringList form{d->windowTitle(), uEditor(&window).windowTitle()};
        for (QLabel *label : {d->label, d->label_2, d->descript_label})
            form << label->text() + '>' + label->buddy()->objectName();
        for (QWidget *x :
             QWidgetList{d->variableEdit, d->valueEdit, d->descriptEdit, d->vipCheck, d->checkBox})
            form << x->property("placeholderText").toString() + x->property("text").toString();
        QCOMPARE(form.join('|'), "Create new variable|Edit variable|Variable>variableEdit|Value>"
                                 "valueEdit|Description>valueEdit|Enter new variable's name "
                                 "here...|Enter new variable's value here...|Enter comments "
                                 "here...|Critical system variable|Save in system directory /etc/");
        d->resize(300, 200);
        d.reset();
        QCOMPARE(uEditor(&window).size(), QSize(300, 200));
    }
};

ORV_SANDBOX_TEST_MAIN(TestUEditor)
#include "tst_ueditor.moc"
