#include "gui/app/eve.h"
#include "gui/dialogs/preferencesdialog.h"
#include "gui/dialogs/ueditor.h"
#include "gui/history/previewdialog.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>

// Save asks before it changes what the user did not edit.
class TestGuardRails : public SandboxTest
{
    Q_OBJECT

    const QString bashrc = Sandbox::home() + "/.bashrc";
    const QByteArray before = "export PATH=/usr/bin:/bin\nexport GOPATH=/go\n";
    const QString question = "This save also changes PATH and GOPATH to /opt/th.";
    QScopedPointer<Eve> window;

    // A new variable TH, whose save rewrites the lines of PATH and GOPATH,
    // added as the user adds one.
    void addTH()
    {
        answerer->addAction([](QWidget *dialog) {
            auto *editor = qobject_cast<uEditor *>(dialog);
            QTest::keyClicks(editor->variableEdit, "TH");
            QTest::keyClicks(editor->valueEdit, "/opt/th");
            editor->buttonBox->button(QDialogButtonBox::Ok)->click();
        });
        window->actionAdd->trigger();
        QVERIFY(isModified(*window));
    }

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::writeFile(bashrc, before);
        window.reset(new Eve);
    }
    void cleanup()
    {
        window.reset();
        SandboxTest::cleanup();
    }

    void theQuestionNamesWhatElseChangesAndCancelKeepsEverything()
    {
        addTH();
        answerer->addAnswer("Cancel");

        window->actionSave->trigger();

        QCOMPARE(answerer->seen.value(1).text, question);
        QStringList buttons = answerer->seen.value(1).buttons;
        buttons.sort();
        QCOMPARE(buttons, QStringList({"Cancel", "Preview...", "Save anyway"}));
        QCOMPARE(Sandbox::readFile(bashrc), before);
        QVERIFY(isModified(*window));
        QVERIFY(window->actionSave->isEnabled());
    }

    void saveAnywaySavesWithTheUsualMessages()
    {
        addTH();
        answerer->addAnswer("Save anyway");
        answerer->addAnswer("OK");

        window->actionSave->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), "export PATH=/opt/th\nexport GOPATH=/opt/th\n");
        QCOMPARE(answerer->seen.value(2).text,
                 "Changes were saved and will be applied after restarting a session!");
        QVERIFY(!isModified(*window));
    }

    void escapeCancels()
    {
        addTH();
        answerer->addAction([](QWidget *box) { QTest::keyClick(box, Qt::Key_Escape); });

        window->actionSave->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), before);
        QVERIFY(isModified(*window));
    }

    // Tab goes round every field of the new-variable dialog in the form's
    // order; the name field is in it.
    void tabReachesEveryFieldOfTheNewVariableDialog()
    {
        QStringList visited;
        answerer->addAction([&visited](QWidget *dialog) {
            auto *editor = qobject_cast<uEditor *>(dialog);
            QApplication::setActiveWindow(editor);
            editor->valueEdit->setFocus();
            for (int i = 0; i < 5; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
                visited << (button ? button->text() : QApplication::focusWidget()->objectName());
            }
            editor->reject();
        });

        uEditor(window.data(), 0).exec();

        // Without root the scope box is off, and OK is off until a name and a value are typed.
        QCOMPARE(visited, QStringList({"descriptEdit", "Critical system variable", "Cancel",
                                       "variableEdit", "valueEdit"}));
    }

    // ~/.profile and the other start-up files are dot files.
    void preferencesFileChooserShowsHiddenFiles()
    {
        Sandbox::writeFile(Sandbox::home() + "/.profile", "");
        preferencesDialog preferences(window.data(), modelOf(*window));
        QStringList shown;
        answerer->addAction([&shown](QWidget *widget) {
            auto *chooser = qobject_cast<QFileDialog *>(widget);
            auto *view = chooser->findChild<QListView *>("listView");
            QTRY_VERIFY(view->model()->rowCount(view->rootIndex()) > 0);
            for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
                shown << view->model()->index(row, 0, view->rootIndex()).data().toString();
            chooser->findChild<QLineEdit *>("fileNameEdit")->setText(".profile");
            ModalAnswerer::clickButton(chooser, "Open");
        });

        preferences.userAddButton->click();

        QVERIFY2(shown.contains(".profile"), qPrintable(shown.join(" ")));
        QCOMPARE(preferences.userFilesList->item(preferences.userFilesList->count() - 1)->text(),
                 Sandbox::home() + "/.profile");
    }

    // The preview shows the same plan; its Save does not ask a second time.
    void previewFromTheQuestionSavesWhatItShows()
    {
        addTH();
        answerer->addAnswer("Preview...");
        answerer->addAction(
            [](QWidget *dialog) { qobject_cast<PreviewDialog *>(dialog)->saveButton->click(); });
        answerer->addAnswer("OK");

        window->actionSave->trigger();

        QCOMPARE(Sandbox::readFile(bashrc), "export PATH=/opt/th\nexport GOPATH=/opt/th\n");
        QVERIFY(!isModified(*window));
        QCOMPARE(answerer->seen.size(), 4); // the editor, the question, the preview, OK
    }
};

ORV_SANDBOX_TEST_MAIN(TestGuardRails)
#include "tst_guardrails.moc"
