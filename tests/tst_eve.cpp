#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"
#include "ueditor.h"

#include <QtTest>

class TestEve : public QObject
{
    Q_OBJECT

    static QString bashrc() { return Sandbox::home() + "/.bashrc"; }
    static QModelIndex at(const Eve &w, const QString &name, int column = 0)
    {
        const EveModel *m = w.eveModel();
        return m->match(m->index(0, 0), Qt::DisplayRole, name).value(0).siblingAtColumn(column);
    }
    // Enabled states of Save, Reset, Delete and Edit.
    static QString actions(const Eve &w)
    {
        QString s;
        for (QAction *a : {w.actionSave, w.actionReset, w.actionDelete, w.actionEdit})
            s += a->isEnabled() ? '1' : '0';
        return s;
    }
    // The title, size, columns' widths (0: hidden) and action states.
    static QString layout(const Eve &w)
    {
        QString s = QString("%1 %2 %3").arg(w.windowTitle()).arg(w.width()).arg(w.height());
        for (int c = 0; c < EveModel::ColumnCount; ++c)
            s += ' ' + QString::number(w.tableView->columnWidth(c));
        return s + ' ' + actions(w);
    }

private slots:
    void startUp()
    {
        Sandbox sandbox;
        Eve w;
        QCOMPARE(layout(w), "Orv environment variable editor 935 650 230 200 90 870 0 0 0 0000");
        QVERIFY(w.actionAdd->isEnabled() && w.actionPreferences->isEnabled() &&
                w.actionQuit->isEnabled());
        QCOMPARE(w.tableView->actions(),
                 (QList<QAction *>{w.actionAdd, w.actionDelete, w.actionEdit}));
        QStringList slotNames;
        for (int i = w.metaObject()->methodOffset(); i < w.metaObject()->methodCount(); ++i)
            slotNames << w.metaObject()->method(i).methodSignature();
        QCOMPARE(slotNames.join(' '),
                 "checkModelIndex(QModelIndex) setModifiedFlagTrue(QModelIndex,QModelIndex) "
                 "setModifiedFlag(bool) setModifiedFlag() disableModifications() "
                 "enableModifications() insertRow() removeRow() eventFilter(QObject*,QEvent*) "
                 "help() rowsInsertedInModel(QModelIndex,int,int) showPreferencesDialog() save() "
                 "reset() showEditDialog() showNewDialog()");
        QCOMPARE(w.qt_metacast("Ui_MainWindow"), static_cast<Ui_MainWindow *>(&w));
        for (const QString e : {"cVariableWidth=0", "cValueWidth=-5", "cDescriptionWidth=120"})
            QSettings().setValue("tableView/" + e.section('=', 0, 0), e.section('=', 1).toInt());
        QCOMPARE(layout(Eve()).section(' ', 4), "935 650 230 200 90 120 0 0 0 0000"); // no title
    }

    // Steps: modified (EXTRA=2), blocked (~/.bashrc), rowsN (N rows left), @NAME (a click), ~KEY
    // (to the key filter) or a command (action or shortcut) with answers after ':' (a button,
    // "accept", NAME=VALUE to type): the boxes, "title|text|buttons" (preferences: the user group
    // title as text), and "actions rows EXTRA [stored settings]|status message|~/.bashrc".
    void commands_data()
    {
        QTest::addColumn<QString>("expected");
        const QString saved = "Changes were saved|Changes were saved and will be applied after "
                              "restarting a session!|OK\n";
        const QString reset = "Attention!|Do you really want to reset?|Yes,No\n";
        const QString ask = "Attention!|Do you really want to delete a variable?|Yes,No\n";
        const QString unsaved =
            "Changes are not saved!|Do you want to save your changes?\n (Changes "
            "will be applied after restarting a session)|Cancel,Yes,No\n";
        const QString prefs = "Preferences|User Config Files (bash)|OK,Cancel,Apply\n";
        const QString apply =
            "Apply changes now?|Do you want to save data and apply changes now?|OK,Cancel\n";
        QTest::newRow("modified blocked Save:OK:OK")
            << "Warning!|Couldn't open file " + bashrc() +
                   " for saving variable EXTRA|OK\nAttention!|Unable to save changes - file access "
                   "denied!|OK\n1100 5 2||<unreadable>";
        QTest::newRow("modified Reset:No") << reset + "1100 5 2||";
        QTest::newRow("rows1 @SHELL Delete") << "0001 1 ||";
        QTest::newRow("@SHELL Delete:Yes")
            << "Attention!|Do you really want to delete SYSTEM variable located at file \n" +
                   Sandbox::system("/etc/profile") + " ?|Yes,No\n1111 4 1||";
        QTest::newRow("@LOGNAME Delete:Yes") << ask + "1111 4 1||";
        QTest::newRow("modified Add:Cancel") << "Create new variable||OK,Cancel\n1100 5 2||";
        QTest::newRow("@EXTRA Edit:Cancel") << "Edit variable||OK,Cancel\n0011 5 1||";
        for (auto tag : {"rows0 ~Down", "~A"})
            QTest::newRow(tag) << "0\n0000";
        for (auto tag : {"rows1 ~Down", "~Tab", "~Backtab"})
            QTest::newRow(tag) << "1\n0000";
        for (auto key : {"Up", "PgUp", "Home", "Left", "Right", "Space", "Down", "PgDown", "End"})
            QTest::addRow("~%s", key) << "0\n0011";
        QTest::newRow("Preferences:accept") << prefs + "0000 5 1|New settings have been applied!|";
        QTest::newRow("modified Preferences:accept:OK:OK")
            << prefs + apply + saved + "0000 5 1|New settings have been applied!|export EXTRA=2\n";
        QTest::newRow("modified Preferences:accept:Cancel") << prefs + apply + "1100 5 2||";
        QTest::newRow("Ins:FOO=bar Ctrl+S:OK @EXTRA Edit:=baz @EXTRA Del:Yes Reset:Yes "
                      "modified Quit:Cancel Quit:No Quit:Yes")
            << "Create new variable||OK,Cancel\n1111 6 1||\n" + saved +
                   "0011 6 1|Changes were saved successfully!|export FOO=bar\n\n"
                   "Edit variable||OK,Cancel\n1111 6 baz1|Changes were saved "
                   "successfully!|export FOO=bar\n\n" +
                   ask + "1111 5 |Changes were saved successfully!|export FOO=bar\n\n" + reset +
                   "0011 5 1|All changes were reseted!|export FOO=bar\n\n" + unsaved +
                   "1111 5 2|All changes were reseted!|export FOO=bar\n\n" + unsaved +
                   "1111 5 2 stored|All changes were reseted!|export FOO=bar\n\n" + unsaved +
                   "1111 5 2 stored|All changes were reseted!|export EXTRA=2\nexport "
                   "FOO=bar\n";
    }
    void commands()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"EXTRA=1"});
        Sandbox::writeFile(Sandbox::system("/etc/profile"), "export SHELL=/bin/bash\n");
        Sandbox::writeFile(bashrc(), "");
        Eve w;
        w.show(); // and destroyed while shown
        ModalAnswerer answerer;
        QStringList trace;
        for (const QString &step : QString(QTest::currentDataTag()).split(' ')) {
            const QString command = step.section(':', 0, 0);
            for (const QString &text : step.split(':').mid(1))
                answerer.addAction([&answerer, text](QWidget *dialog) {
                    if (auto *e = qobject_cast<uEditor *>(dialog); e && text.contains('=')) {
                        QTest::keyClicks(e->variableEdit, text.section('=', 0, 0));
                        QTest::keyClicks(e->valueEdit, text.section('=', 1));
                    }
                    if (QWidget *group = dialog->findChild<QWidget *>("groupBox_2")) // preferences
                        answerer.seen.last().text = group->property("title").toString();
                    if (!ModalAnswerer::clickButton(dialog, text.contains('=') ? "OK" : text))
                        static_cast<QDialog *>(dialog)->done(text == "accept");
                });
            if (command == "modified") // EXTRA is not critical: nothing is asked
                w.eveModel()->setData(at(w, "EXTRA", 1), "2");
            else if (command == "blocked")
                Sandbox::blockPath(bashrc());
            while (command.startsWith("rows") && w.eveModel()->rowCount() > command.mid(4).toInt())
                w.eveModel()->removeRows(0, 1);
            const QRect row = w.tableView->visualRect(at(w, command.mid(1)));
            if (command[0] == '@')
                QTest::mouseClick(w.tableView->viewport(), Qt::LeftButton, {}, row.center());
            QKeyEvent key(QEvent::KeyPress, QKeySequence(command.mid(1))[0], Qt::NoModifier);
            if (command[0] == '~') // straight to the filter: swallowed, then the action states
                trace << QString::number(static_cast<QObject &>(w).eventFilter(w.tableView, &key))
                      << actions(w);
            if (!command[0].isUpper())
                continue;
            QApplication::setActiveWindow(&w); // offscreen nothing does after a dialog
            if (QAction *action = w.findChild<QAction *>("action" + command))
                action->trigger();
            else
                QTest::keySequence(w.tableView, QKeySequence(command));
            for (const ModalAnswerer::Seen &s : answerer.seen)
                trace << s.title + '|' + s.text + '|' + s.buttons.join(',');
            answerer.seen.clear();
            QString state = QString("%1 %2 ").arg(actions(w)).arg(w.eveModel()->rowCount());
            state += at(w, "EXTRA", 1).data().toString();
            state += QSettings().contains("MainWindow/size") ? " stored|" : "|";
            trace << state + w.statusbar->currentMessage() + '|' + Sandbox::readFile(bashrc());
        }
        QFETCH(QString, expected); // compared by lines, to show the first difference
        QCOMPARE(trace.join('\n').split('\n'), expected.split('\n'));
    }
};

ORV_SANDBOX_TEST_MAIN(TestEve)
#include "tst_eve.moc"
