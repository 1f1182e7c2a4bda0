#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "preferencesdialog.h"
#include "sandbox.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QToolTip>
#include <QtTest>

namespace {

QStringList texts(const QListWidget *list)
{
    QStringList result;
    for (int row = 0; row < list->count(); ++row)
        result.append(list->item(row)->text());
    return result;
}

// One letter per enabled widget, '.' for a disabled one: OK and Apply, then the system
// list with its Up, Down, Add and Remove buttons, then the same for the user list.
QString states(preferencesDialog &d)
{
    QList<QWidget *> widgets = {d.buttonBox->button(QDialogButtonBox::Ok),
                                d.buttonBox->button(QDialogButtonBox::Apply)};
    for (const QString side : {"system", "user"}) {
        for (const QString name :
             {"FilesList", "UpButton", "DownButton", "AddButton", "RemoveButton"})
            widgets.append(d.findChild<QWidget *>(side + name));
    }
    QString result = QStringLiteral("OALUDARludar");
    for (int i = 0; i < widgets.size(); ++i)
        result[i] = widgets[i]->isEnabled() ? result[i] : QChar('.');
    return result.insert(7, ' ').insert(2, ' ');
}

QListWidget *list(preferencesDialog &d, const QString &side)
{
    return d.findChild<QListWidget *>(side + "FilesList");
}

void click(preferencesDialog &d, const QString &side, const QString &button)
{
    d.findChild<QPushButton *>(side + button + "Button")->click();
}

} // namespace

class TestPreferences : public QObject
{
    Q_OBJECT

private slots:
    void opening_data()
    {
        QTest::addColumn<QString>("login");
        QTest::addColumn<QSize>("stored"); // invalid: none
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("states");
        QTest::addRow("user") << "tester" << QSize() << QSize(400, 400) << ".. ..... l..a.";
        QTest::addRow("root") << "root" << QSize(500, 450) << QSize(500, 450) << ".. L..A. l..a.";
    }
    void opening()
    {
        Sandbox sandbox;
        QFETCH(QString, login);
        QFETCH(QSize, stored);
        Sandbox::setUserEnvironment({"LOGNAME=" + login});
        if (stored.isValid())
            QSettings().setValue("preferencesDialog/size", stored);
        Eve window;
        const EveModel *model = window.eveModel();
        preferencesDialog d(&window, window.eveModel());
        QTEST(states(d), "states");
        QTEST(d.size(), "size");
        QCOMPARE(QStringList({d.windowTitle(), d.groupBox_3->title(), d.groupBox_2->title()}),
                 QStringList({"Preferences", "System Config Files", "User Config Files"}));
        QVERIFY(!model->systemFiles.isEmpty() && !model->userFiles.isEmpty());
        QCOMPARE(texts(d.systemFilesList), model->systemFiles);
        QCOMPARE(texts(d.userFilesList), model->userFiles);
    }

    void selection_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("states");
        auto row = [](const char *tag, const QString &side, int count, int row,
                      const char *states) {
            QTest::newRow(tag) << side << count << row << QString(states);
        };
        row("system first", "system", 3, 0, ".. L.DAR l..a.");
        row("system middle", "system", 3, 1, ".. LUDAR l..a.");
        row("system last", "system", 3, 2, ".. LU.AR l..a.");
        row("system single", "system", 1, 0, ".. L..AR l..a.");
        row("user first", "user", 3, 0, ".. L..A. l.dar");
        row("user middle", "user", 3, 1, ".. L..A. ludar");
        row("user last", "user", 3, 2, ".. L..A. lu.ar");
        row("user single", "user", 1, 0, ".. L..A. l..ar");
    }
    void selection()
    {
        Sandbox sandbox;
        QFETCH(QString, side);
        QFETCH(int, count);
        QFETCH(int, row);
        Sandbox::setUserEnvironment({"LOGNAME=root"});
        Eve window;
        window.eveModel()->systemFiles = QStringList({"/a", "/b", "/c"}).mid(0, count);
        window.eveModel()->userFiles = window.eveModel()->systemFiles;
        preferencesDialog d(&window, window.eveModel());
        list(d, side)->setCurrentRow(row);
        QTEST(states(d), "states");
    }

    void edits_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("start");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("current");
        QTest::addColumn<QString>("states");
        auto row = [](const QString &side, const QString &button, int start,
                      const QStringList &files, int current, const char *states) {
            QTest::addRow("%s %s at %d", qPrintable(side), qPrintable(button), start)
                << side << button << start << files << current << QString(states);
        };
        row("system", "Up", 1, {"/b", "/a", "/c"}, 0, "OA L.DAR l..a.");
        row("system", "Down", 1, {"/a", "/c", "/b"}, 2, "OA LU.AR l..a.");
        row("system", "Remove", 1, {"/a", "/c"}, 1, "OA LU.AR l..a.");
        row("system", "Remove", 2, {"/a", "/b"}, 1, "OA LU.AR l..a.");
        row("user", "Up", 2, {"/a", "/c", "/b"}, 1, "OA L..A. ludar");
        row("user", "Down", 0, {"/b", "/a", "/c"}, 1, "OA L..A. ludar");
        row("user", "Remove", 0, {"/b", "/c"}, 0, "OA L..A. l.dar");
    }
    void edits()
    {
        Sandbox sandbox;
        QFETCH(QString, side);
        QFETCH(QString, button);
        QFETCH(int, start);
        Sandbox::setUserEnvironment({"LOGNAME=root"});
        Eve window;
        const QStringList files = {"/a", "/b", "/c"};
        window.eveModel()->systemFiles = window.eveModel()->userFiles = files;
        preferencesDialog d(&window, window.eveModel());
        list(d, side)->setCurrentRow(start);
        click(d, side, button);
        QTEST(texts(list(d, side)), "files");
        QTEST(list(d, side)->currentRow(), "current");
        QTEST(states(d), "states");
        // Nothing reaches the model before Apply or OK.
        QCOMPARE(window.eveModel()->systemFiles, files);
        QCOMPARE(window.eveModel()->userFiles, files);
    }

    void add_data()
    {
        QTest::addColumn<QString>("side");
        QTest::addColumn<bool>("accept");
        for (const QString side : {"system", "user"}) {
            QTest::addRow("%s, accepted", qPrintable(side)) << side << true;
            QTest::addRow("%s, cancelled", qPrintable(side)) << side << false;
        }
    }
    void add()
    {
        Sandbox sandbox;
        QFETCH(QString, side);
        QFETCH(bool, accept);
        Sandbox::setUserEnvironment({"LOGNAME=root"});
        Eve window;
        window.eveModel()->systemFiles = window.eveModel()->userFiles = QStringList{"/a"};
        const QString start =
            side == "system" ? Sandbox::system("/etc") : window.eveModel()->homeDir;
        const QString path = start + "/added";
        Sandbox::writeFile(path, "");
        preferencesDialog d(&window, window.eveModel());

        QString shownDir;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *widget) {
            auto *fileDialog = qobject_cast<QFileDialog *>(widget);
            shownDir = fileDialog ? fileDialog->directory().absolutePath() : QString();
            // Typed, as selectFile() leaves a focused name editor alone.
            auto *nameEdit = widget->findChild<QLineEdit *>("fileNameEdit");
            if (fileDialog && nameEdit && accept) {
                nameEdit->setText(path);
                static_cast<QDialog *>(fileDialog)->accept();
            }
            widget->close(); // never left open, whatever went wrong
        });
        click(d, side, "Add");
        QCOMPARE(answerer.pending(), 0);
        QCOMPARE(answerer.seen.size(), 1);
        QCOMPARE(shownDir, start);
        QCOMPARE(texts(list(d, side)), accept ? QStringList({"/a", path}) : QStringList("/a"));
        QCOMPARE(states(d), accept ? "OA L..A. l..a." : ".. L..A. l..a.");
    }

    void store_data()
    {
        QTest::addColumn<QString>("shell");
        QTest::addColumn<bool>("removeAll");
        QTest::addColumn<bool>("applyThenCancel");
        QTest::addColumn<QString>("userKey");
        QTest::addRow("bash") << "/bin/bash" << false << false << "bash";
        QTest::addRow("tcsh") << "/bin/tcsh" << false << false << "tcsh";
        QTest::addRow("other") << "/bin/sh" << false << false << "";
        QTest::addRow("all removed") << "/bin/bash" << true << false << "bash";
        QTest::addRow("Apply, then Cancel") << "/bin/bash" << false << true << "bash";
    }
    void store()
    {
        Sandbox sandbox;
        QFETCH(QString, shell);
        QFETCH(bool, removeAll);
        QFETCH(bool, applyThenCancel);
        QFETCH(QString, userKey);
        Sandbox::setUserEnvironment({"LOGNAME=root", "SHELL=" + shell});
        Eve window;
        EveModel *model = window.eveModel();
        model->systemFiles = QStringList{"/s1", "/s2"};
        model->userFiles = QStringList{"/u1", "/u2"};
        preferencesDialog d(&window, model);
        d.resize(420, 430);
        for (const QString side : {"system", "user"}) {
            while (list(d, side)->count() > (removeAll ? 0 : 1)) {
                list(d, side)->setCurrentRow(0);
                click(d, side, "Remove");
            }
        }
        if (applyThenCancel) {
            d.buttonBox->button(QDialogButtonBox::Apply)->click();
            QCOMPARE(states(d), QStringLiteral("O. L..AR l..ar"));
            click(d, "user", "Remove"); // dropped by Cancel
        }
        ModalAnswerer answerer({applyThenCancel ? "Cancel" : "OK"});
        QCOMPARE(d.exec(), int(applyThenCancel ? QDialog::Rejected : QDialog::Accepted));
        QCOMPARE(answerer.pending(), 0);
        const QStringList system = removeAll ? QStringList() : QStringList{"/s2"};
        const QStringList user = removeAll ? QStringList() : QStringList{"/u2"};
        QCOMPARE(model->systemFiles, system);
        QCOMPARE(model->userFiles, user);
        QSettings settings;
        QCOMPARE(settings.value("preferencesDialog/size").toSize(), QSize(420, 430));
        QVERIFY(settings.contains("preferencesDialog/pos"));
        settings.beginGroup("configFiles");
        QStringList keys = QStringList{userKey, "system"}.filter(QRegExp(".+"));
        keys.sort();
        QCOMPARE(settings.childKeys(), keys);
        QCOMPARE(settings.value("system").toStringList(), system);
        QCOMPARE(settings.value(userKey).toStringList(), userKey.isEmpty() ? QStringList() : user);
    }

    void keys()
    {
        Sandbox sandbox;
        Eve window;
        preferencesDialog d(&window, window.eveModel());
        d.userAddButton->setToolTip("Adds a user file");
        bool openAfterReturn = false;
        bool fileDialogOpened = false;
        QString toolTip;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *widget) {
            // On the focused Add button: it must reach the dialog, where a disabled OK does
            // nothing.
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            openAfterReturn = widget->isVisible();
            QTest::keyClick(widget, Qt::Key_F1); // help on the focused Add button
            toolTip = QToolTip::text();
            QTest::keyClick(widget, Qt::Key_Escape);
        });
        answerer.addAction([&](QWidget *widget) {
            fileDialogOpened = true;
            static_cast<QDialog *>(widget)->reject();
        });
        QCOMPARE(d.exec(), int(QDialog::Rejected));
        QCOMPARE(answerer.pending(), 1);
        QVERIFY(!fileDialogOpened);
        QVERIFY(openAfterReturn);
        QCOMPARE(toolTip, QStringLiteral("Adds a user file"));
        QVERIFY(QSettings().childGroups().isEmpty());
    }
};

ORV_SANDBOX_TEST_MAIN(TestPreferences)
#include "tst_preferences.moc"
