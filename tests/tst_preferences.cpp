#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "preferencesdialog.h"
#include "sandbox.h"

#include <QFileDialog>
#include <QPushButton>
#include <QToolTip>
#include <QtTest>

class TestPreferences : public QObject
{
    Q_OBJECT

    // OK and Apply, then per list: the list, Up, Down, Add and Remove; '.' when disabled.
    static QString states(preferencesDialog &d)
    {
        QWidgetList w{d.buttonBox->button(QDialogButtonBox::Ok),
                      d.buttonBox->button(QDialogButtonBox::Apply)};
        for (const QString side : {"system", "user"})
            for (auto part : {"FilesList", "UpButton", "DownButton", "AddButton", "RemoveButton"})
                w << d.findChild<QWidget *>(side + part);
        QString s = "OALUDARludar";
        for (int i = 0; i < s.size(); ++i)
            s[i] = w[i]->isEnabled() ? s[i] : QChar('.');
        return s.insert(7, ' ').insert(2, ' ');
    }

private slots:
    // "login[:shell] list files row click..." (the dialog's button, else the list's; Add picks
    // "added"): items (~: file dialog's start), current row, states | model's lists, configFiles.
    void clicks_data()
    {
        QTest::addColumn<QString>("result");
        QTest::newRow("tester user 3 -1") << "abc|-1|.. ..... l..a. | abc abc";
        QTest::newRow("root system 3 -1") << "abc|-1|.. L..A. l..a. | abc abc";
        QTest::newRow("root system 3 1") << "abc|1|.. LUDAR l..a. | abc abc";
        QTest::newRow("root system 1 0") << "a|0|.. L..AR l..a. | a a";
        QTest::newRow("root system 3 1 Up") << "bac|0|OA L.DAR l..a. | abc abc";
        QTest::newRow("root system 3 1 Down") << "acb|2|OA LU.AR l..a. | abc abc";
        QTest::newRow("root system 3 1 Remove") << "ac|1|OA LU.AR l..a. | abc abc";
        QTest::newRow("root system 3 2 Remove") << "ab|1|OA LU.AR l..a. | abc abc";
        QTest::newRow("root user 3 2 Up") << "acb|1|OA L..A. ludar | abc abc";
        QTest::newRow("root user 3 0 Down") << "bac|1|OA L..A. ludar | abc abc";
        QTest::newRow("root user 3 0 Remove") << "bc|0|OA L..A. l.dar | abc abc";
        QTest::newRow("root system 1 -1 Add") << "~/open a~/added|-1|OA L..A. l..a. | a a";
        QTest::newRow("root user 1 -1 Add") << "~/open a~/added|-1|OA L..A. l..a. | a a";
        QTest::newRow("root user 1 -1 Add Cancel") << "~/open a|-1|.. L..A. l..a. | a a";
        QTest::newRow("root user 2 0 Remove OK") << "b|0|OA L..A. l..ar | ab b bash=b system=ab";
        QTest::newRow("root:tcsh user 1 0 Remove OK") << "|-1|OA L..A. l..a. | a  system=a tcsh=";
        QTest::newRow("root:sh user 2 0 Remove OK") << "b|0|OA L..A. l..ar | ab b system=ab";
        QTest::newRow("root system 1 0 Remove OK") << "|-1|OA L..A. l..a. |  a bash=a system=";
        QTest::newRow("root user 2 0 Remove Apply") << "b|0|O. L..A. l..ar | ab b bash=b system=ab";
        QTest::newRow("root user 2 0 Remove Apply Remove Cancel")
            << "|-1|OA L..A. l..a. | ab b bash=b system=ab";
    }
    void clicks()
    {
        Sandbox sandbox;
        QStringList w = QString(QTest::currentDataTag()).split(' ');
        Sandbox::setUserEnvironment(
            w[0].prepend("LOGNAME=").replace(':', ",SHELL=/bin/").split(','));
        Eve window;
        EveModel *m = window.eveModel();
        m->systemFiles = m->userFiles = QStringList{"a", "b", "c"}.mid(0, w[2].toInt());
        const QString start = w[1] == "system" ? Sandbox::system("/etc") : Sandbox::home();
        Sandbox::writeFile(start + "/added", "");
        preferencesDialog d(&window, m);
        auto *list = d.findChild<QListWidget *>(w[1] + "FilesList");
        list->setCurrentRow(w[3].toInt());
        QString result;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *widget) {
            auto *dialog = qobject_cast<QFileDialog *>(widget);
            result = dialog ? dialog->directory().absolutePath() + "/open " : "?";
            if (dialog && w.last() == "Add") // typed: selectFile() skips a focused editor
                widget->findChild<QWidget *>("fileNameEdit")->setProperty("text", start + "/added");
            ModalAnswerer::clickButton(widget, w.last() == "Add" ? "Open" : "Cancel");
            widget->close();
        });
        for (const QString &click : w.mid(4))
            if (!ModalAnswerer::clickButton(&d, click))
                d.findChild<QPushButton *>(w[1] + click + "Button")->click();
        for (int row = 0; row < list->count(); ++row)
            result += list->item(row)->text();
        result += '|' + QString::number(list->currentRow()) + '|' + states(d);
        QSettings settings;
        settings.beginGroup("configFiles");
        result += " | " + m->systemFiles.join("") + ' ' + m->userFiles.join("");
        for (const QString &key : settings.childKeys())
            result += ' ' + key + '=' + settings.value(key).toStringList().join("");
        QTEST(result.replace(start, "~"), "result");
    }

    void keys()
    {
        Sandbox sandbox;
        Eve window;
        preferencesDialog d(&window, window.eveModel());
        d.userAddButton->setToolTip("Adds a user file");
        QStringList seen;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *dialog) {
            ModalAnswerer files({"Cancel"}); // a file dialog would be opened from in here
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // the Add button
            QTest::keyClick(dialog, Qt::Key_F1);
            seen << QString::number(files.seen.size()) << (dialog->isVisible() ? "open" : "shut")
                 << QToolTip::text();
            QTest::keyClick(dialog, Qt::Key_Escape);
            if (dialog->isVisible()) // never left open
                static_cast<QDialog *>(dialog)->done(2);
        });
        QCOMPARE(d.exec(), int(QDialog::Rejected));
        QCOMPARE(seen.join('|'), "0|open|Adds a user file");
    }
};

ORV_SANDBOX_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
