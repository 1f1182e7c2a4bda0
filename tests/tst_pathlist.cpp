#include "eve.h"
#include "evemodel.h"
#include "pathlist.h"
#include "pathlistdialog.h"
#include "sandboxtest.h"
#include "tablehelpers.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListWidget>
#include <QPushButton>

class TestPathList : public SandboxTest
{
    Q_OBJECT

private slots:
    void splitAndJoinRoundTrip_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("entries");
        QTest::addRow("an empty value has no entries") << "" << QStringList();
        QTest::addRow("an empty entry in the middle keeps its place")
            << "/a::/b" << QStringList({"/a", "", "/b"});
        QTest::addRow("empty entries at both ends keep their places")
            << ":/a:" << QStringList({"", "/a", ""});
    }
    void splitAndJoinRoundTrip()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, entries);
        QCOMPARE(PathList::split(value), entries);
        QCOMPARE(PathList::join(entries), value);
    }

    void entriesThatAreNoFoldersAndRepeatsAreMarked()
    {
        const QString bin = Sandbox::home() + "/bin", file = Sandbox::home() + "/file";
        QDir().mkpath(bin);
        Sandbox::writeFile(file, "");
        PathListDialog dialog(
            "P", PathList::join({bin, bin + "/missing", bin + "/", "", file, bin}), nullptr);

        QStringList tips;
        for (int row = 0; row < dialog.list->count(); ++row)
            tips << dialog.list->item(row)->toolTip();
        QCOMPARE(tips, QStringList({"", "does not exist", "duplicate of entry 1",
                                    "empty: stands for the current folder", "is not a folder",
                                    "duplicate of entry 1"}));
        // A missing folder and a repeat are marked, each its own way.
        const auto icon = [&](int row) {
            return dialog.list->item(row)->icon().cacheKey();
        };
        QVERIFY(icon(1) != icon(0));
        QVERIFY(icon(2) != icon(0) && icon(2) != icon(1));
    }

    void buttonsReorderRemoveAndDeduplicate()
    {
        PathListDialog dialog("P", "/a:/b:/a", nullptr);
        dialog.list->setCurrentRow(1);
        dialog.upButton->click();
        QCOMPARE(dialog.value(), "/b:/a:/a");
        dialog.downButton->click();
        dialog.removeButton->click();
        QCOMPARE(dialog.value(), "/a:/a");
        dialog.duplicatesButton->click();
        QCOMPARE(dialog.value(), "/a");
    }

    void anAddedFolderMayBeHiddenAndFollowsTheCurrentEntry()
    {
        const QString hidden = Sandbox::home() + "/.local/bin";
        QDir().mkpath(hidden);
        PathListDialog dialog("P", "/a:/b", nullptr);
        dialog.list->setCurrentRow(0);
        answerer->addAction([&](QWidget *widget) {
            auto *chooser = qobject_cast<QFileDialog *>(widget);
            QVERIFY(chooser->filter().testFlag(QDir::Hidden));
            chooser->setDirectory(hidden);
            QMetaObject::invokeMethod(chooser, "accept");
        });

        dialog.addButton->click();

        QCOMPARE(dialog.entries(), QStringList({"/a", hidden, "/b"}));
    }

    // OK hands the joined value to the record update, which asks before a
    // critical variable changes; Cancel changes nothing.
    void theDialogUpdatesTheRecordAsEditDoes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("accept");
        QTest::addColumn<QString>("confirmation");
        QTest::addColumn<QString>("value");
        QTest::addRow("an ordinary variable changes") << "MYPATH" << true << QString() << "/a:/b";
        QTest::addRow("a critical variable changes after a yes") << "PATH" << true << "Yes"
                                                                 << "/a:/b";
        QTest::addRow("a critical variable stays after a no") << "PATH" << true << "No"
                                                              << "/a:/b:/a";
        QTest::addRow("cancel leaves the value") << "MYPATH" << false << QString() << "/a:/b:/a";
    }
    void theDialogUpdatesTheRecordAsEditDoes()
    {
        QFETCH(QString, name);
        QFETCH(bool, accept);
        QFETCH(QString, confirmation);
        QFETCH(QString, value);
        Sandbox::setUserEnvironment({"MYPATH=/a:/b:/a", "PATH=/a:/b:/a"});
        Eve window;
        answerer->addAction([accept](QWidget *widget) {
            auto *dialog = qobject_cast<PathListDialog *>(widget);
            dialog->duplicatesButton->click();
            dialog->buttons->button(accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)
                ->click();
        });
        if (!confirmation.isEmpty())
            answerer->addAnswer(confirmation);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.tableView->setCurrentIndex(
            window.eveModel()->index(rowOf(*window.eveModel(), name), EveModel::ValueColumn));

        QTest::keyClick(window.tableView, Qt::Key_L, Qt::ControlModifier);

        QCOMPARE(cellOf(*window.eveModel(), name, EveModel::ValueColumn), value);
        QCOMPARE(window.isModified(), value == "/a:/b");
        QCOMPARE(answerer->seen.value(1).text,
                 confirmation.isEmpty() ? "" : "Really change the value of system variable?");
    }
};

ORV_SANDBOX_TEST_MAIN(TestPathList)
#include "tst_pathlist.moc"
