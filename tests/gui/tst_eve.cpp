#include "gui/app/eve.h"
#include "gui/dialogs/preferencesdialog.h"
#include "gui/dialogs/ueditor.h"
#include "gui/model/evemodel.h"
#include "gui/window/toolsmenu.h"
#include "platform/orvintegration.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <QMenuBar>
#include <QToolTip>

static QList<int> columnWidths(const Eve &window)
{
    QList<int> widths;
    for (int column = 0; column < EveModel::ColumnCount; ++column)
        widths << window.tableView->columnWidth(column);
    return widths;
}

// The main window, its commands and its dialogs. The session of every test:
// EXTRA and ZED, ordinary variables, and HOME, LOGNAME, PATH and SHELL,
// critical ones; /etc/profile exports SHELL. The table starts sorted from A
// to Z, so EXTRA is the first row.
class TestEve : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<Eve> window;
    QScopedPointer<preferencesDialog> preferences;
    const QString bashrc = Sandbox::home() + "/.bashrc";

    EveModel *model() const { return modelOf(*window); }
    void restart(const QString &login, const QString &shell = "bash")
    {
        preferences.reset();
        window.reset();
        Sandbox::setUserEnvironment(
            {"EXTRA=1", "ZED=1", "LOGNAME=" + login, "SHELL=/bin/" + shell});
        window.reset(new Eve);
    }
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

    // The preferences dialog over the system files a, b and c and the same user files.
    void openPreferences()
    {
        model()->systemFiles = model()->userFiles = QStringList{"a", "b", "c"};
        preferences.reset(new preferencesDialog(window.data(), model()));
    }
    QPushButton *apply() const { return preferences->buttonBox->button(QDialogButtonBox::Apply); }
    static bool okEnabled(const QDialog &dialog)
    {
        return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled();
    }

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::writeFile(Sandbox::system("/etc/profile"), "export SHELL=/bin/bash\n");
        restart("tester");
        window->show();
    }
    void cleanup()
    {
        preferences.reset();
        window.reset();
        SandboxTest::cleanup();
    }

    void firstStartShowsTheDefaultsAndTheNextRestoresTheLastClose()
    {
        QCOMPARE(window->size(), QSize(935, 650));
        QCOMPARE(columnWidths(*window), QList<int>({230, 200, 90, 870, 0, 0, 0}));
        QCOMPARE(namesOf(*model()),
                 QStringList({"EXTRA", "HOME", "LOGNAME", "PATH", "SHELL", "ZED"}));
        QVERIFY(!window->actionSave->isEnabled() && !window->actionReset->isEnabled() &&
                !editingEnabled());
        const QList<QAction *> menus = window->menuBar()->actions();
        QCOMPARE(menus.indexOf(ToolsMenu::of(window.data())->menuAction()), menus.size() - 2);

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

    void aboutNamesTheProgramItsVersionAndWhatItDoes()
    {
        orvInit("9.8.7", "Edits <environment> variables");
        QCOMPARE(run(window->findChild<OrvHelpMenu *>()->actions().value(0), {"OK"}),
                 QStringList({"About tst_eve: <p><b>tst_eve</b> 9.8.7</p>"
                              "<p>Edits &lt;environment&gt; variables</p>"}));
    }

    void f1InPreferencesExplainsTheFocusedControl()
    {
        openPreferences();
        preferences->setModal(false); // the answerer turns away modal windows it was not told of
        preferences->show();
        QVERIFY(QTest::qWaitForWindowActive(preferences.data()));
        QTRY_COMPARE(QApplication::focusWidget(), preferences->userAddButton);
        QTest::keyClick(preferences.data(), Qt::Key_F1);
        QCOMPARE(QToolTip::text(), preferences->userAddButton->toolTip());
        QToolTip::hideText();
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

    void resetAsksFirst()
    {
        changeExtra();
        const QStringList question{"Attention!: Do you really want to reset?"};
        QCOMPARE(run(window->actionReset, {"No"}), question);
        QVERIFY(isModified(*window));
        QCOMPARE(run(window->actionReset, {"Yes"}), question);
        QCOMPARE(cellOf(*model(), "EXTRA", EveModel::ValueColumn), "1");
        QVERIFY(!isModified(*window));
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
        QCOMPARE(isModified(*window), deleted);
        QCOMPARE(selectedRow() == 0, deleted);
        QCOMPARE(editingEnabled(), deleted);
    }

    void lastRowCannotBeDeleted()
    {
        window->actionEdit->setEnabled(true);
        while (model()->rowCount() > 1)
            model()->removeRows(0, 1);
        QVERIFY2(!window->actionEdit->isEnabled(), "the model's disableDel() turns editing off");
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
            QTest::keyClicks(editor->variableEdit, "FOO .$="); // takes only name characters
            QTest::keyClicks(editor->valueEdit, "bar");
            ModalAnswerer::clickButton(editor, "OK");
        });
        QApplication::setActiveWindow(window.data()); // shortcuts go to the active window
        QTest::keySequence(window->tableView, QKeySequence("Ins"));
        QCOMPARE(recordOf(*model(), "FOO"),
                 QStringList({"FOO", "bar", "System", "", "local", "", "bar"}));
        QVERIFY(isModified(*window) && window->actionDelete->isEnabled());
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
        QVERIFY(isModified(*window) && window->actionEdit->isEnabled());
    }

    // Accepted preferences reload the table, after offering to save what is pending.
    void acceptedPreferencesOfferToSaveAndReload()
    {
        QString userFilesTitle;
        const auto accept = [&userFilesTitle](QWidget *dialog) {
            userFilesTitle = qobject_cast<preferencesDialog *>(dialog)->groupBox_2->title();
            static_cast<QDialog *>(dialog)->accept();
        };
        const QString offer = "Apply changes now?: Do you want to save data and apply changes now?";
        const QString saved = "Changes were saved: Changes were saved and will be applied after "
                              "restarting a session!";
        changeExtra();
        answerer->addAction(accept);
        QCOMPARE(run(window->actionPreferences, {"Cancel"}).value(1), offer);
        QVERIFY2(isModified(*window), "Cancel leaves the changes pending");
        answerer->addAction(accept);
        QCOMPARE(run(window->actionPreferences, {"OK", "OK"}).mid(1), QStringList({offer, saved}));
        QCOMPARE(userFilesTitle, "User Config Files (bash)");
        QCOMPARE(Sandbox::readFile(bashrc), "export EXTRA=2\n");
        QCOMPARE(cellOf(*model(), "EXTRA", EveModel::ValueColumn), "1"); // the environment's
        QVERIFY(!isModified(*window));
        QCOMPARE(status(), qMakePair(QString("New settings have been applied!"), 2000));
    }

    // In the edit dialog of a critical variable, and when checked in a new one.
    void criticalBoxLocksTheValue()
    {
        select("SHELL");
        uEditor edited(window.data()), added(window.data(), 0);
        added.vipCheck->click();
        for (uEditor *editor : {&edited, &added}) {
            QVERIFY(editor->vipCheck->isChecked() && !editor->valueEdit->isEnabled());
            editor->vipCheck->click();
            QVERIFY(editor->valueEdit->isEnabled());
        }
        QVERIFY2(okEnabled(edited), "unchecking is a change");
    }

    // Return in the value clicks OK, which a new variable enables only for a typed
    // name and value; the description plays no part.
    void returnAcceptsANewVariableWithANameAndAValue_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char *name, const char *typedName, const char *value,
                            const char *description, bool accepted) {
            QTest::newRow(name) << QString(typedName) << QString(value) << QString(description)
                                << accepted;
        };
        row("a name and a value", "FOO", "bar", "", true);
        row("a name alone", "FOO", "", "", false);
        row("a value alone", "", "bar", "", false);
        row("a description alone", "", "", "text", false);
        row("a name and a description", "FOO", "", "text", false);
    }
    void returnAcceptsANewVariableWithANameAndAValue()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(QString, description);
        QFETCH(bool, accepted);
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.variableEdit, name);
        QTest::keyClicks(editor.descriptEdit, description);
        QTest::keyClicks(editor.valueEdit, value);
        QTest::keyClick(editor.valueEdit, Qt::Key_Return);
        QCOMPARE(editor.result() == QDialog::Accepted, accepted);
        QCOMPARE(editor.valueEdit->toPlainText(), value);
    }

    void erasingTheNameOfANewVariableDisablesOk()
    {
        uEditor editor(window.data(), 0);
        QTest::keyClicks(editor.variableEdit, "F");
        QTest::keyClicks(editor.valueEdit, "bar");
        QVERIFY(okEnabled(editor));
        QTest::keyClick(editor.variableEdit, Qt::Key_Backspace);
        QVERIFY(!okEnabled(editor));
    }

    void onlyRootMayChooseSystemScopeAndSystemFiles()
    {
        for (const QString login : {"tester", "root"}) {
            restart(login);
            QCOMPARE(uEditor(window.data(), 0).checkBox->isEnabled(), login == "root");
            openPreferences();
            QCOMPARE(preferences->systemFilesList->isEnabled(), login == "root");
            QCOMPARE(preferences->systemAddButton->isEnabled(), login == "root");
            QVERIFY(preferences->userAddButton->isEnabled());
        }
    }

    // Up is off on the first file and Down on the last, so a move never leaves the list.
    void upAndDownMoveTheCurrentFile()
    {
        openPreferences();
        QListWidget *list = preferences->userFilesList;
        const auto files = [list] {
            QStringList texts;
            for (int row = 0; row < list->count(); ++row)
                texts << list->item(row)->text();
            return texts;
        };
        list->setCurrentRow(0);
        QVERIFY(!preferences->userUpButton->isEnabled());
        preferences->userDownButton->click();
        QCOMPARE(files(), QStringList({"b", "a", "c"}));
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(apply()->isEnabled());
        list->setCurrentRow(2);
        QVERIFY(!preferences->userDownButton->isEnabled());
        preferences->userUpButton->click();
        QCOMPARE(files(), QStringList({"b", "c", "a"}));
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
        restart("root", shell);
        openPreferences();
        QVERIFY(!preferences->systemRemoveButton->isEnabled() && !okEnabled(*preferences));
        preferences->systemFilesList->setCurrentRow(0);
        preferences->systemRemoveButton->click();
        apply()->click();
        QVERIFY(!apply()->isEnabled() && okEnabled(*preferences));
        QCOMPARE(QSettings().value("configFiles/system").toStringList(), QStringList({"b", "c"}));
        preferences->userFilesList->setCurrentRow(2);
        preferences->userRemoveButton->click();
        preferences->buttonBox->button(QDialogButtonBox::Ok)->click();
        QCOMPARE(preferences->result(), int(QDialog::Accepted));
        QCOMPARE(model()->systemFiles, QStringList({"b", "c"}));
        QCOMPARE(model()->userFiles, QStringList({"a", "b"}));
        for (const QString key : {"bash", "tcsh"})
            QCOMPARE(QSettings().value("configFiles/" + key).toStringList(),
                     key == userKey ? QStringList({"a", "b"}) : QStringList());
    }
};

ORV_SANDBOX_TEST_MAIN(TestEve)
#include "tst_eve.moc"
