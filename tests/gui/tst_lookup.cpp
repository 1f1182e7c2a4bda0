#include "core/lookup/pathlist.h"
#include "gui/app/eve.h"
#include "gui/lookup/pathlistdialog.h"
#include "gui/lookup/wheresetdialog.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

// A window open with the row of `name` current, for a command on that row.
static void makeCurrent(Eve &window, const QString &name)
{
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    window.tableView->setCurrentIndex(
        modelOf(window)->index(rowOf(*modelOf(window), name), EveModel::ValueColumn));
}

// The look-up commands of the window: the entries of a list such as PATH, and
// where a variable is set.
class TestLookup : public SandboxTest
{
    Q_OBJECT

private slots:
    void entriesThatAreNoFoldersAndRepeatsAreMarked()
    {
        const QString bin = Sandbox::home() + "/bin", file = Sandbox::home() + "/file";
        QDir().mkpath(bin);
        Sandbox::writeFile(file, "");
        PathListDialog dialog(
            "P", PathList::join({bin, bin + "/missing", bin + "/", "", file, bin}), nullptr);

        QStringList tips;
        QList<qint64> icons;
        for (int row = 0; row < dialog.list->count(); ++row) {
            tips << dialog.list->item(row)->toolTip();
            icons << dialog.list->item(row)->icon().cacheKey();
        }
        QCOMPARE(tips, QStringList({"", "does not exist", "duplicate of entry 1",
                                    "empty: stands for the current folder", "is not a folder",
                                    "duplicate of entry 1"}));
        // A missing folder and a repeat are marked, each its own way.
        QVERIFY(icons[1] != icons[0] && icons[2] != icons[0] && icons[2] != icons[1]);
    }

    // OK hands the joined value to the record update, which asks first on a critical row.
    void theDialogUpdatesTheRecordAsEditDoes_data()
    {
        QTest::addColumn<QString>("confirmation");
        QTest::addColumn<QString>("value");
        QTest::addRow("a critical variable changes on yes") << "Yes" << QString("/a:/b");
        QTest::addRow("a critical variable stays on no") << "No" << QString("/a:/b:/a");
    }
    void theDialogUpdatesTheRecordAsEditDoes()
    {
        QFETCH(QString, confirmation);
        QFETCH(QString, value);
        Sandbox::setUserEnvironment({"PATH=/a:/b:/a"});
        Eve window;
        answerer->addAction([](QWidget *widget) {
            auto *dialog = qobject_cast<PathListDialog *>(widget);
            dialog->duplicatesButton->click();
            dialog->buttons->button(QDialogButtonBox::Ok)->click();
        });
        answerer->addAnswer(confirmation);
        makeCurrent(window, "PATH");

        QTest::keyClick(window.tableView, Qt::Key_L, Qt::ControlModifier);

        QCOMPARE(cellOf(*modelOf(window), "PATH", EveModel::ValueColumn), value);
        QCOMPARE(isModified(window), value == "/a:/b");
        QCOMPARE(answerer->seen.value(1).text, "Really change the value of system variable?");
    }

    void ctrlIShowsTheLinesAndLeavesTheFilesAlone()
    {
        Sandbox::setUserEnvironment({"PAGER=less"});
        const QByteArray profile = "# export PAGER=less\nexport PAGER=most\n";
        Sandbox::writeFile(Sandbox::home() + "/.profile", profile);
        Eve window;
        makeCurrent(window, "PAGER");
        modelOf(window)->setData(window.tableView->currentIndex(), "most"); // as after a save
        QStringList texts;                                                  // what the dialog shows
        answerer->addAction([&texts](QWidget *widget) {
            auto *dialog = qobject_cast<WhereSetDialog *>(widget);
            texts << dialog->sessionLabel->text() << dialog->lineList->topLevelItem(0)->text(3)
                  << dialog->lineList->topLevelItem(1)->text(2) << dialog->explanationLabel->text();
            ModalAnswerer::clickButton(dialog, "Close");
        });

        QTest::keyClick(window.tableView, Qt::Key_I, Qt::ControlModifier);

        QCOMPARE(texts,
                 QStringList({"In this session: PAGER=less", "commented out", "export PAGER=most",
                              "~/.profile sets `most`; this session has `less`: the saved "
                              "value takes effect at the next login"}));
        QCOMPARE(Sandbox::readFile(Sandbox::home() + "/.profile"), profile);
    }
};

ORV_SANDBOX_TEST_MAIN(TestLookup)
#include "tst_lookup.moc"
