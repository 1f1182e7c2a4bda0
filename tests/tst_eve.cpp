#include "eve.h"
#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"
#include "ueditor.h"

#include <QGroupBox>
#include <QMenuBar>

static QList<int> columnWidths(const Eve &window)
{
    QList<int> widths;
    for (int column = 0; column < EveModel::ColumnCount; ++column)
        widths << window.tableView->columnWidth(column);
    return widths;
}

// The session of every test: EXTRA and ZED, ordinary variables, and HOME,
// LOGNAME, PATH and SHELL, critical ones; /etc/profile exports SHELL. The
// table starts sorted from A to Z, so EXTRA is the first row.
class TestEve : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<Eve> window;
    const QString bashrc = Sandbox::home() + "/.bashrc";
    const QString saved =
        "Changes were saved: Changes were saved and will be applied after restarting a session!";

    EveModel *model() const { return window->eveModel(); }
    void select(const QString &name) { window->tableView->selectRow(rowOf(*model(), name)); }
    int selectedRow() const // -1: none
    {
        const QModelIndexList rows = window->tableView->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }
    bool editingEnabled() const
    {
        return window->actionDelete->isEnabled() && window->actionEdit->isEnabled();
    }
    // An edit in the table that asks nothing, as EXTRA is not critical.
    void changeExtra()
    {
        model()->setData(model()->index(rowOf(*model(), "EXTRA"), EveModel::ValueColumn), "2");
    }
    // Triggers the action and gives the modal windows it opens these answers in
    // turn; returns "title: text" of every window that came.
    QStringList run(QAction *action, const QStringList &answers = {})
    {
        for (const QString &answer : answers)
            answerer->addAnswer(answer);
        action->trigger();
        QStringList seen;
        for (const ModalAnswerer::Seen &window : qAsConst(answerer->seen))
            seen << window.title + ": " + window.text;
        answerer->seen.clear();
        return seen;
    }
    // The status bar's message and how long it stays: the interval of its timer.
    QPair<QString, int> status() const
    {
        const QTimer *timer = window->statusbar->findChild<QTimer *>();
        return {window->statusbar->currentMessage(),
                timer && timer->isActive() ? timer->interval() : 0};
    }

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"EXTRA=1", "ZED=1"});
        Sandbox::writeFile(Sandbox::system("/etc/profile"), "export SHELL=/bin/bash\n");
        window.reset(new Eve);
        window->show();
    }
    void cleanup()
    {
        window.reset();
        SandboxTest::cleanup();
    }

    void firstStartShowsTheDefaultsAndTheNextRestoresTheLastClose()
    {
        QCOMPARE(window->size(), QSize(935, 650));
        QCOMPARE(columnWidths(*window), QList<int>({230, 200, 90, 870, 0, 0, 0}));
        QCOMPARE(namesOf(*model()),
                 QStringList({"EXTRA", "HOME", "LOGNAME", "PATH", "SHELL", "ZED"}));
        QVERIFY(!window->actionSave->isEnabled() && !window->actionReset->isEnabled());
        QVERIFY(!editingEnabled());
        QStringList menus; // the features' Tools menu comes once, before Help
        for (const QAction *menu : window->menuBar()->actions())
            menus << menu->text();
        QCOMPARE(menus, QStringList({"&File", "&Edit", "&Tools", "&Help"}));

        window->resize(700, 500);
        window->toolBar->hide();
        window->tableView->setColumnWidth(2, 120);
        window->tableView->setColumnWidth(3, 300);
        QVERIFY(window->close());
        QSettings().setValue("tableView/cVariableWidth", 0);
        QSettings().setValue("tableView/cValueWidth", -5);
        Eve next;
        QCOMPARE(next.size(), QSize(700, 500));
        QVERIFY2(next.toolBar->isHidden(), "the tool bar was hidden at the last close");
        QCOMPARE(columnWidths(next), QList<int>({230, 200, 120, 300, 0, 0, 0}));
    }

    void closingWithUnsavedChangesAsks_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QByteArray>("file");
        QTest::addRow("Yes saves and closes") << "Yes" << true << QByteArray("export EXTRA=2\n");
        QTest::addRow("No closes without saving") << "No" << true << QByteArray();
        QTest::addRow("Cancel keeps the window open") << "Cancel" << false << QByteArray();
    }
    void closingWithUnsavedChangesAsks()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        changeExtra();
        answerer->addAnswer(answer);
        QCOMPARE(window->close(), closed);
        QCOMPARE(answerer->seen.value(0).text, "Do you want to save your changes?\n (Changes will "
                                               "be applied after restarting a session)");
        QTEST(Sandbox::readFile(bashrc), "file");
        QCOMPARE(QSettings().contains("MainWindow/state"), closed);
    }

    void keyFilterActsBeforeTheViewMoves_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("currentRow");
        QTest::addColumn<bool>("swallowed");
        QTest::addColumn<int>("selectedRow"); // -1: none
        QTest::addColumn<bool>("editingOn");
        QTest::addRow("Up on the second row selects the first")
            << int(Qt::Key_Up) << 1 << false << 0 << true;
        QTest::addRow("Up further down selects the current row")
            << int(Qt::Key_Up) << 3 << false << 3 << true;
        QTest::addRow("Tab is swallowed") << int(Qt::Key_Tab) << 3 << true << -1 << false;
        QTest::addRow("Home selects the current row")
            << int(Qt::Key_Home) << 3 << false << 3 << true;
        QTest::addRow("Down only enables editing") << int(Qt::Key_Down) << 3 << false << -1 << true;
    }
    void keyFilterActsBeforeTheViewMoves()
    {
        QFETCH(int, key);
        QFETCH(int, currentRow);
        QFETCH(int, selectedRow);
        window->tableView->selectionModel()->setCurrentIndex(model()->index(currentRow, 0),
                                                             QItemSelectionModel::NoUpdate);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QTEST(static_cast<QObject *>(window.data())->eventFilter(window->tableView, &press),
              "swallowed");
        QCOMPARE(this->selectedRow(), selectedRow);
        QTEST(editingEnabled(), "editingOn");
    }

    void clicksAndKeysInTheTableEnableEditing()
    {
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
        const QModelIndex path = model()->index(rowOf(*model(), "PATH"), 0);
        QTest::mouseClick(window->tableView->viewport(), Qt::LeftButton, {},
                          window->tableView->visualRect(path).center());
        QVERIFY(editingEnabled());
        window->actionEdit->setEnabled(false);
        QTest::keyClick(window->tableView, Qt::Key_Down);
        QVERIFY(window->actionEdit->isEnabled());
    }

    void resetAsksFirst()
    {
        changeExtra();
        const QStringList question{"Attention!: Do you really want to reset?"};
        QCOMPARE(run(window->actionReset, {"No"}), question);
        QVERIFY(window->isModified());
        QCOMPARE(run(window->actionReset, {"Yes"}), question);
        QCOMPARE(cellOf(*model(), "EXTRA", EveModel::ValueColumn), "1");
        QVERIFY(!window->isModified());
        QCOMPARE(status(), qMakePair(QString("All changes were reseted!"), 5000));
    }

    void deleteAsksAccordingToTheRow_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("answer");
        const QString plain = "Do you really want to delete a variable?";
        QTest::addRow("a critical variable from a file names the file")
            << "SHELL"
            << "Do you really want to delete SYSTEM variable located at file \n" +
                   Sandbox::system("/etc/profile") + " ?"
            << "No";
        QTest::addRow("a critical variable from the environment") << "LOGNAME" << plain << "No";
        QTest::addRow("Yes deletes and selects the first row") << "PATH" << plain << "Yes";
    }
    void deleteAsksAccordingToTheRow()
    {
        QFETCH(QString, name);
        QFETCH(QString, question);
        QFETCH(QString, answer);
        select(name);
        QCOMPARE(run(window->actionDelete, {answer}), QStringList({"Attention!: " + question}));
        const bool deleted = answer == "Yes";
        QCOMPARE(rowOf(*model(), name), deleted ? -1 : selectedRow());
        QCOMPARE(window->isModified(), deleted);
        QCOMPARE(selectedRow() == 0, deleted);
        QCOMPARE(editingEnabled(), deleted);
    }

    void lastRowCannotBeDeleted()
    {
        window->actionEdit->setEnabled(true);
        while (model()->rowCount() > 1)
            model()->removeRows(0, 1);
        QVERIFY2(!window->actionEdit->isEnabled(), "the model's disableDel() turns editing off");
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QVERIFY2(static_cast<QObject *>(window.data())->eventFilter(window->tableView, &up),
                 "a table of one row takes no keys");
        select("ZED");
        window->actionDelete->setEnabled(true);
        QCOMPARE(run(window->actionDelete), QStringList());
        QCOMPARE(model()->rowCount(), 1);
        QVERIFY(!window->actionDelete->isEnabled());
    }

    void insertKeyAddsTheTypedVariable()
    {
        answerer->addAction([](QWidget *dialog) {
            auto *editor = qobject_cast<uEditor *>(dialog);
            QTest::keyClicks(editor->variableEdit, "FOO");
            QTest::keyClicks(editor->valueEdit, "bar");
            ModalAnswerer::clickButton(editor, "OK");
        });
        QApplication::setActiveWindow(window.data()); // shortcuts go to the active window
        QTest::keySequence(window->tableView, QKeySequence("Ins"));
        QCOMPARE(answerer->seen.value(0).title, "Create new variable");
        QCOMPARE(recordOf(*model(), "FOO"),
                 QStringList({"FOO", "bar", "System", "", "local", "", "bar"}));
        QVERIFY(window->isModified() && window->actionDelete->isEnabled());
    }

    void editUpdatesTheRowAndSelectsTheFirst()
    {
        select("ZED");
        answerer->addAction([](QWidget *dialog) {
            auto *editor = qobject_cast<uEditor *>(dialog);
            editor->valueEdit->selectAll();
            QTest::keyClicks(editor->valueEdit, "2");
            editor->vipCheck->click();
            editor->checkBox->setChecked(true);
            ModalAnswerer::clickButton(editor, "OK");
        });
        QCOMPARE(run(window->actionEdit), QStringList({"Edit variable: "}));
        QCOMPARE(recordOf(*model(), "ZED"),
                 QStringList({"ZED", "2", "System", "", "global", "true", "1"}));
        QCOMPARE(selectedRow(), 0);
        QVERIFY(window->isModified() && window->actionEdit->isEnabled());
    }

    // Accepted preferences reload the table, after offering to save what is pending.
    void acceptedPreferencesOfferToSaveAndReload()
    {
        QString userFilesTitle;
        const auto accept = [&userFilesTitle](QWidget *dialog) {
            userFilesTitle = dialog->findChild<QGroupBox *>("groupBox_2")->title();
            static_cast<QDialog *>(dialog)->accept();
        };
        const QString offer = "Apply changes now?: Do you want to save data and apply changes now?";
        changeExtra();
        answerer->addAction(accept);
        QCOMPARE(run(window->actionPreferences, {"Cancel"}).value(1), offer);
        QVERIFY2(window->isModified(), "Cancel leaves the changes pending");
        answerer->addAction(accept);
        QCOMPARE(run(window->actionPreferences, {"OK", "OK"}).mid(1), QStringList({offer, saved}));
        QCOMPARE(userFilesTitle, "User Config Files (bash)");
        QCOMPARE(Sandbox::readFile(bashrc), "export EXTRA=2\n");
        QCOMPARE(cellOf(*model(), "EXTRA", EveModel::ValueColumn), "1"); // the environment's
        QVERIFY(!window->isModified());
        QCOMPARE(status(), qMakePair(QString("New settings have been applied!"), 2000));
    }
};

ORV_SANDBOX_TEST_MAIN(TestEve)
#include "tst_eve.moc"
