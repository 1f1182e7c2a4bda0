#include "eve.h"
#include "evemodel.h"
#include "modalanswerer.h"
#include "preferencesdialog.h"
#include "sandbox.h"
#include "ueditor.h"

#include <QApplication>
#include <QtTest>

namespace {

const QStringList widthKeys{"cVariableWidth", "cValueWidth", "cOriginWidth", "cDescriptionWidth"};
// Message boxes as "title|text|buttons".
const QString savedBox = "Changes were saved|Changes were saved and will be applied after "
                         "restarting a session!|OK";
const QString resetBox = "Attention!|Do you really want to reset?|Yes,No";
const QString askBox = "Attention!|Do you really want to delete a variable?|Yes,No";
const QString closeBox = "Changes are not saved!|Do you want to save your changes?\n (Changes "
                         "will be applied after restarting a session)|Cancel,Yes,No";

QString bashrc()
{
    return Sandbox::home() + "/.bashrc";
}

// The cell of the named variable's row; invalid when there is no such row.
QModelIndex at(const Eve &w, const QString &name, int column = 0)
{
    const QModelIndexList found =
        w.eveModel()->match(w.eveModel()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
    return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(column);
}

QString cell(const Eve &w, const QString &name, int column)
{
    return at(w, name, column).data().toString();
}

// What the answerer saw: message boxes as above, other dialogs by title.
QStringList boxes(const ModalAnswerer &answerer)
{
    QStringList list;
    for (const ModalAnswerer::Seen &s : answerer.seen)
        list << (s.className == "QMessageBox" ? s.title + '|' + s.text + '|' + s.buttons.join(',')
                                              : s.title);
    return list;
}

// Enabled states of Save, Reset, Delete and Edit.
QString actionStates(const Eve &w)
{
    QString s;
    for (QAction *a : {w.actionSave, w.actionReset, w.actionDelete, w.actionEdit})
        s += a->isEnabled() ? '1' : '0';
    return s;
}

// Offscreen, nothing activates the window again after a dialog, and shortcuts
// need an active window.
void activate(Eve &w)
{
    QApplication::setActiveWindow(&w);
    w.tableView->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&w));
}

} // namespace

class TestEve : public QObject
{
    Q_OBJECT

private slots:
    void startUp_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QVariant>("stored"); // invalid: nothing stored
        QTest::addColumn<QSize>("size");      // empty: nothing stored
        QTest::addColumn<QString>("columns");
        QTest::addRow("empty settings") << 0 << QVariant() << QSize() << "230 200 90 870 - - - ";
        QTest::addRow("zero") << 0 << QVariant(0) << QSize() << "230 200 90 870 - - - ";
        QTest::addRow("negative") << 1 << QVariant(-5) << QSize() << "230 200 90 870 - - - ";
        QTest::addRow("not a number") << 2 << QVariant("x") << QSize() << "230 200 90 870 - - - ";
        QTest::addRow("stored") << 3 << QVariant(120) << QSize(500, 300) << "230 200 90 120 - - - ";
    }
    void startUp()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"EXTRA=1"});
        QFETCH(int, column);
        QFETCH(QVariant, stored);
        QFETCH(QSize, size);
        if (stored.isValid())
            QSettings().setValue("tableView/" + widthKeys[column], stored);
        if (!size.isEmpty())
            QSettings().setValue("MainWindow/size", size);
        Eve w;
        QCOMPARE(w.size(), size.isEmpty() ? QSize(935, 650) : size);
        QString columns;
        for (int c = 0; c < EveModel::ColumnCount; ++c)
            columns += w.tableView->isColumnHidden(c)
                           ? "- "
                           : QString::number(w.tableView->columnWidth(c)) + ' ';
        QTEST(columns, "columns");
        QCOMPARE(w.windowTitle(), "Orv environment variable editor");
        QCOMPARE(actionStates(w), "0000");
        QVERIFY(w.actionAdd->isEnabled() && w.actionPreferences->isEnabled() &&
                w.actionQuit->isEnabled() && !w.isModified());
        QCOMPARE(w.tableView->contextMenuPolicy(), Qt::ActionsContextMenu);
        QCOMPARE(w.tableView->actions(),
                 (QList<QAction *>{w.actionAdd, w.actionDelete, w.actionEdit}));
        const QList<QAction *> menus = w.menuBar()->actions();
        QCOMPARE(menus.size(), 3);
        QCOMPARE(menus[0]->text() + menus[1]->text(), "&File&Edit");
        QVERIFY(menus[2]->menu()); // Help
        QCOMPARE(w.tableView->horizontalHeader()->sortIndicatorSection(), 0);
        QCOMPARE(w.tableView->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
        QCOMPARE(w.eveModel()->index(0, 0).data().toString(), "EXTRA"); // A before Z
        QTest::keyClick(w.tableView, Qt::Key_End); // through the installed filter
        QCOMPARE(actionStates(w), "0011");

        // Nothing to save: no question, and the settings are written.
        w.resize(640, 480);
        ModalAnswerer answerer;
        QVERIFY(w.close());
        QVERIFY(answerer.seen.isEmpty());
        QSettings settings;
        QCOMPARE(settings.value("MainWindow/size").toSize(), QSize(640, 480));
        QCOMPARE(settings.value("tableView/cDescriptionWidth").toInt(), column == 3 ? 120 : 870);
        QVERIFY(settings.contains("MainWindow/state"));
    }

    void keyFilter_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("swallowed");
        QTest::addColumn<int>("selected"); // -1: none
        QTest::addColumn<QString>("states");
        QTest::addRow("no rows") << 0 << -1 << int(Qt::Key_Down) << false << -1 << "0000";
        QTest::addRow("one row") << 1 << 0 << int(Qt::Key_Down) << true << -1 << "0000";
        QTest::addRow("Tab") << 5 << 3 << int(Qt::Key_Tab) << true << -1 << "0000";
        QTest::addRow("Backtab") << 5 << 3 << int(Qt::Key_Backtab) << true << -1 << "0000";
        QTest::addRow("Up") << 5 << 3 << int(Qt::Key_Up) << false << 3 << "0011";
        QTest::addRow("Up from 1") << 5 << 1 << int(Qt::Key_Up) << false << 0 << "0011";
        for (int key : {Qt::Key_PageUp, Qt::Key_Home, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space})
            QTest::addRow("key %x", key) << 5 << 3 << key << false << 3 << "0011";
        for (int key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End})
            QTest::addRow("key %x", key) << 5 << 3 << key << false << -1 << "0011";
        QTest::addRow("other key") << 5 << 3 << int(Qt::Key_A) << false << -1 << "0000";
    }
    void keyFilter()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"EXTRA=1"});
        QFETCH(int, rows);
        QFETCH(int, current);
        QFETCH(int, key);
        Eve w;
        while (w.eveModel()->rowCount() > rows)
            w.eveModel()->removeRows(0, 1);
        w.tableView->selectionModel()->setCurrentIndex(w.eveModel()->index(current, 0),
                                                       QItemSelectionModel::NoUpdate);
        // eventFilter is public in QObject, so the window's own runs through a QObject.
        QObject &window = w;
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QVERIFY(!window.eventFilter(w.tableView, &release)); // only presses are looked at
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QTEST(window.eventFilter(w.tableView, &press), "swallowed");
        const QModelIndexList selection = w.tableView->selectionModel()->selectedRows();
        QTEST(selection.isEmpty() ? -1 : selection.first().row(), "selected");
        QTEST(actionStates(w), "states");
    }

    void metaObject()
    {
        Sandbox sandbox;
        const QMetaObject &mo = Eve::staticMetaObject;
        QCOMPARE(mo.className(), "Eve");
        QCOMPARE(mo.superClass(), &QMainWindow::staticMetaObject);
        QStringList signatures;
        for (int i = mo.methodOffset(); i < mo.methodCount(); ++i) {
            signatures << mo.method(i).methodSignature();
            QCOMPARE(mo.method(i).access(), QMetaMethod::Private);
            QCOMPARE(mo.method(i).methodType(), QMetaMethod::Slot);
        }
        QCOMPARE(signatures.join(' '),
                 "checkModelIndex(QModelIndex) setModifiedFlagTrue(QModelIndex,QModelIndex) "
                 "setModifiedFlag(bool) setModifiedFlag() disableModifications() "
                 "enableModifications() insertRow() removeRow() eventFilter(QObject*,QEvent*) "
                 "help() rowsInsertedInModel(QModelIndex,int,int) showPreferencesDialog() save() "
                 "reset() showEditDialog() showNewDialog()");
        Eve w;
        QCOMPARE(w.qt_metacast("Ui_MainWindow"),
                 static_cast<void *>(static_cast<Ui_MainWindow *>(&w)));
    }

    // EXTRA=1 comes from the environment; ~/.bashrc exports PATH only after
    // start-up, so PATH has that origin only after a reload.
    void commands_data()
    {
        QTest::addColumn<QString>("setup"); // words; any other word selects that variable
        QTest::addColumn<QString>("action");
        QTest::addColumn<QStringList>("answers"); // "accept": accept the dialog
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("after"); // action states, EXTRA's value, rows, reloaded
        QTest::addColumn<QByteArray>("file");
        const QByteArray path = "export PATH=/x\n", both = "export EXTRA=2\n" + path;
        const QString applied = "New settings have been applied!";
        const QString askFile = "Attention!|Do you really want to delete SYSTEM variable located "
                                "at file \n" +
                                Sandbox::system("/etc/profile") + " ?|Yes,No";
        const QString apply = "Apply changes now?|Do you want to save data and apply changes "
                              "now?|OK,Cancel";
        const QStringList denied{"Warning!|Couldn't open file " + bashrc() +
                                     " for saving variable EXTRA|OK",
                                 "Attention!|Unable to save changes - file access denied!|OK"};
        auto add = [](const char *tag, const QString &setup, const QString &action,
                      const QStringList &answers, const QStringList &boxes, const QString &after,
                      const QByteArray &file, const QString &message = QString()) {
            QTest::newRow(tag) << setup << action << answers << boxes << message << after << file;
        };
        add("save denied", "modified blocked", "actionSave", {"OK", "OK"}, denied, "1100 2 5 0",
            "<unreadable>");
        add("reset", "modified", "actionReset", {"Yes"}, {resetBox}, "0000 1 5 1", path,
            "All changes were reseted!");
        add("reset refused", "modified", "actionReset", {"No"}, {resetBox}, "1100 2 5 0", path);
        add("delete the last row", "single", "actionDelete", {}, {}, "0000  1 0", path);
        add("delete vip from file", "SHELL", "actionDelete", {"Yes"}, {askFile}, "1111 1 4 0",
            path);
        add("delete vip from environment", "LOGNAME", "actionDelete", {"Yes"}, {askBox},
            "1111 1 4 0", path);
        add("delete refused", "EXTRA", "actionDelete", {"No"}, {askBox}, "0000 1 5 0", path);
        add("new, cancel", "modified", "actionAdd", {"Cancel"}, {"Create new variable"},
            "1100 2 5 0", path);
        add("edit, cancel", "EXTRA", "actionEdit", {"Cancel"}, {"Edit variable"}, "0000 1 5 0",
            path);
        add("preferences", "", "actionPreferences", {"accept"}, {"Preferences"}, "0000 1 5 1", path,
            applied);
        add("preferences, save", "modified", "actionPreferences", {"accept", "OK", "OK"},
            {"Preferences", apply, savedBox}, "0000 1 5 1", both, applied);
        add("preferences, no save", "modified", "actionPreferences", {"accept", "Cancel"},
            {"Preferences", apply}, "1100 2 5 0", path);
    }
    void commands()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"EXTRA=1"});
        Sandbox::writeFile(Sandbox::system("/etc/profile"), "export SHELL=/bin/bash\n");
        QFETCH(QString, setup);
        QFETCH(QString, action);
        QFETCH(QStringList, answers);
        Eve w;
        w.show(); // and destroyed while shown
        Sandbox::writeFile(bashrc(), "export PATH=/x\n");
        for (const QString &word : setup.split(' ', Qt::SkipEmptyParts)) {
            if (word == "modified") // a table edit; EXTRA is not critical, so nothing is asked
                QVERIFY(w.eveModel()->setData(at(w, "EXTRA", 1), "2"));
            else if (word == "blocked")
                Sandbox::blockPath(bashrc());
            else if (word != "single")
                w.tableView->setCurrentIndex(at(w, word));
        }
        while (setup == "single" && w.eveModel()->rowCount() > 1)
            w.eveModel()->removeRows(0, 1);
        if (setup == "single")
            w.actionDelete->setEnabled(true);
        QString groupTitle;
        const auto accept = [&groupTitle](QWidget *dialog) {
            groupTitle = qobject_cast<preferencesDialog *>(dialog)->groupBox_2->title();
            qobject_cast<QDialog *>(dialog)->accept();
        };
        ModalAnswerer answerer;
        for (const QString &answer : answers)
            answer == "accept" ? answerer.addAction(accept) : answerer.addAnswer(answer);
        w.findChild<QAction *>(action)->trigger();
        QCOMPARE(answerer.pending(), 0);
        QTEST(boxes(answerer), "boxes");
        QTEST(w.statusbar->currentMessage(), "message");
        QTEST(QStringList({actionStates(w), cell(w, "EXTRA", EveModel::ValueColumn),
                           QString::number(w.eveModel()->rowCount()),
                           cell(w, "PATH", EveModel::OriginColumn) == bashrc() ? "1" : "0"})
                  .join(' '),
              "after");
        QCOMPARE(w.isModified(), w.actionSave->isEnabled());
        QTEST(Sandbox::readFile(bashrc()), "file");
        if (action == "actionPreferences")
            QCOMPARE(groupTitle, "User Config Files (bash)");
    }

    void workflow()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"EXTRA=1"});
        Eve w;
        w.show();
        activate(w);
        ModalAnswerer answerer;
        answerer.addAction([](QWidget *dialog) {
            auto *e = qobject_cast<uEditor *>(dialog);
            QTest::keyClicks(e->variableEdit, "FOO");
            QTest::keyClicks(e->valueEdit, "bar");
            ModalAnswerer::clickButton(dialog, "OK");
        });
        QTest::keyClick(w.tableView, Qt::Key_Insert);
        QCOMPARE(cell(w, "FOO", EveModel::ValueColumn), "bar");
        QCOMPARE(actionStates(w), "1111");
        activate(w);
        answerer.addAnswer("OK");
        QTest::keyClick(w.tableView, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(Sandbox::readFile(bashrc()), QByteArray("export FOO=bar\n"));
        QCOMPARE(w.statusbar->currentMessage(), "Changes were saved successfully!");
        QCOMPARE(actionStates(w), "0011");

        // The whole record is replaced; the old value becomes the change marker.
        w.tableView->setCurrentIndex(at(w, "FOO"));
        answerer.addAction([](QWidget *dialog) {
            auto *e = qobject_cast<uEditor *>(dialog);
            e->valueEdit->setPlainText("baz");
            e->descriptEdit->setPlainText("d");
            e->vipCheck->setChecked(true);
            ModalAnswerer::clickButton(dialog, "OK");
        });
        w.actionEdit->trigger();
        QStringList record;
        for (int c = 0; c < EveModel::ColumnCount; ++c)
            record << cell(w, "FOO", c);
        QCOMPARE(record.join('|'), "FOO|baz|System|d|local|true|bar");
        QCOMPARE(actionStates(w), "1111");

        // Critical, but made here: no file to name in the question.
        w.tableView->setCurrentIndex(at(w, "FOO"));
        activate(w);
        answerer.addAnswer("Yes");
        QTest::keyClick(w.tableView, Qt::Key_Delete);
        QVERIFY(!at(w, "FOO").isValid());
        answerer.addAnswer("No");
        w.actionReset->trigger();
        QCOMPARE(actionStates(w).left(2), "11");
        answerer.addAnswer("Yes");
        w.actionReset->trigger();
        QCOMPARE(actionStates(w).left(2), "00");
        QCOMPARE(w.statusbar->currentMessage(), "All changes were reseted!");
        QCOMPARE(w.eveModel()->rowCount(), 5);

        QVERIFY(w.eveModel()->setData(at(w, "EXTRA", 1), "2"));
        w.tableView->setColumnWidth(2, 77);
        answerer.addAnswer("Cancel");
        QVERIFY(!w.close());
        QVERIFY(w.isVisible() && !QSettings().contains("MainWindow/size"));
        answerer.addAnswer("No");
        QVERIFY(w.close());
        QCOMPARE(Sandbox::readFile(bashrc()), QByteArray("export FOO=bar\n"));
        QCOMPARE(QSettings().value("tableView/cOriginWidth").toInt(), 77);
        w.show();
        answerer.addAnswer("Yes");
        QVERIFY(w.close());
        QCOMPARE(Sandbox::readFile(bashrc()), QByteArray("export EXTRA=2\nexport FOO=bar\n"));
        QCOMPARE(answerer.pending(), 0);
        QCOMPARE(boxes(answerer),
                 (QStringList{"Create new variable", savedBox, "Edit variable", askBox, resetBox,
                              resetBox, closeBox, closeBox, closeBox}));
    }
};

ORV_SANDBOX_TEST_MAIN(TestEve)
#include "tst_eve.moc"
