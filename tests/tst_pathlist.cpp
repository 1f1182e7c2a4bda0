#include "eve.h"
#include "evemodel.h"
#include "listeditcommand.h"
#include "modalanswerer.h"
#include "pathlist.h"
#include "pathlistdialog.h"
#include "sandbox.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

class TestPathList : public QObject
{
    Q_OBJECT

    static QString bin() { return Sandbox::home() + "/bin"; }
    static QString missing() { return Sandbox::home() + "/missing"; }
    static QStringList toolTips(const PathListDialog &dialog)
    {
        QStringList tips;
        for (int row = 0; row < dialog.list->count(); ++row)
            tips << dialog.list->item(row)->toolTip();
        return tips;
    }
    static bool okEnabled(const PathListDialog &dialog)
    {
        return dialog.buttons->button(QDialogButtonBox::Ok)->isEnabled();
    }
    static QModelIndex valueOf(const Eve &window, const QString &name)
    {
        const EveModel *model = window.eveModel();
        return model->match(model->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly)
            .value(0)
            .siblingAtColumn(EveModel::ValueColumn);
    }
    // Opens "Edit as list..." on a row; the list dialog takes `edit`, then
    // the answers that follow are given in turn.
    static void editAsList(Eve &window, const QString &name, ModalAnswerer &answerer)
    {
        window.tableView->setCurrentIndex(valueOf(window, name));
        window.findChild<ListEditCommand *>()->action()->trigger();
        QVERIFY(answerer.pending() == 0);
    }
    // A list-dialog answer: remove the repeated entries and press OK.
    static ModalAnswerer::Action removeDuplicatesAndAccept()
    {
        return [](QWidget *widget) {
            auto *dialog = qobject_cast<PathListDialog *>(widget);
            dialog->duplicatesButton->click();
            dialog->buttons->button(QDialogButtonBox::Ok)->click();
        };
    }

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        QDir().mkpath(bin());
    }
    void cleanup() { sandbox.reset(); }

    void splitAndJoinRoundTrip_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("entries");
        QTest::addRow("two folders") << "/usr/bin:/bin" << QStringList({"/usr/bin", "/bin"});
        QTest::addRow("one folder") << "/bin" << QStringList({"/bin"});
        QTest::addRow("an empty value has no entries") << "" << QStringList();
        QTest::addRow("an empty entry in the middle keeps its place")
            << "/a::/b" << QStringList({"/a", "", "/b"});
        QTest::addRow("empty entries at both ends keep their places")
            << ":/a:" << QStringList({"", "/a", ""});
        QTest::addRow("a lone colon is two empty entries") << ":" << QStringList({"", ""});
    }
    void splitAndJoinRoundTrip()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, entries);
        QCOMPARE(PathList::split(value), entries);
        QCOMPARE(PathList::join(entries), value);
    }

    void duplicatesPointToTheFirstEntry_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QVector<int>>("earlier");
        QTest::addColumn<QStringList>("kept");
        QTest::addRow("no repeats")
            << QStringList({"/a", "/b"}) << QVector<int>({-1, -1}) << QStringList({"/a", "/b"});
        QTest::addRow("the same folder twice")
            << QStringList({"/a", "/b", "/a"}) << QVector<int>({-1, -1, 0})
            << QStringList({"/a", "/b"});
        QTest::addRow("a trailing slash names the same folder")
            << QStringList({"/a/", "/a"}) << QVector<int>({-1, 0}) << QStringList({"/a/"});
        QTest::addRow("three copies all point to the first")
            << QStringList({"/a", "/a", "/a"}) << QVector<int>({-1, 0, 0}) << QStringList({"/a"});
        QTest::addRow("two empty entries are one")
            << QStringList({"", "/a", ""}) << QVector<int>({-1, -1, 0}) << QStringList({"", "/a"});
    }
    void duplicatesPointToTheFirstEntry()
    {
        QFETCH(QStringList, entries);
        QTEST(PathList::earlierDuplicates(entries), "earlier");
        QTEST(PathList::withoutDuplicates(entries), "kept");
    }

    void entriesThatAreNoFoldersAndRepeatsAreMarked()
    {
        Sandbox::writeFile(Sandbox::home() + "/file", "");
        PathListDialog dialog(
            "P", bin() + ":" + missing() + ":" + bin() + "::" + Sandbox::home() + "/file", nullptr);

        QCOMPARE(toolTips(dialog),
                 QStringList({"", "does not exist", "duplicate of entry 1",
                              "empty: stands for the current folder", "is not a folder"}));
        const auto iconKey = [&dialog](int row) {
            return dialog.list->item(row)->icon().cacheKey();
        };
        QVERIFY(iconKey(1) != iconKey(0)); // marked apart from a plain folder
        QVERIFY(iconKey(2) != iconKey(0));
        QVERIFY(iconKey(2) != iconKey(1)); // a repeat looks unlike a missing folder
        QVERIFY(dialog.list->item(2)->font().italic());
        QVERIFY(dialog.duplicatesButton->isEnabled());
    }

    void buttonsReorderRemoveAndDeduplicate()
    {
        PathListDialog dialog("P", "/a:/b:/a:/c", nullptr);
        dialog.list->setCurrentRow(1);
        dialog.upButton->click();
        QCOMPARE(dialog.value(), "/b:/a:/a:/c");
        QVERIFY(!dialog.upButton->isEnabled());
        dialog.downButton->click();
        dialog.downButton->click();
        QCOMPARE(dialog.value(), "/a:/a:/b:/c");
        QVERIFY(dialog.downButton->isEnabled());
        dialog.downButton->click();
        QCOMPARE(dialog.value(), "/a:/a:/c:/b");
        QVERIFY(!dialog.downButton->isEnabled());
        dialog.removeButton->click();
        QCOMPARE(dialog.value(), "/a:/a:/c");
        QCOMPARE(dialog.list->currentRow(), 2);
        dialog.duplicatesButton->click();
        QCOMPARE(dialog.value(), "/a:/c");
        QVERIFY(!dialog.duplicatesButton->isEnabled());
    }

    void okIsEnabledOnlyForAChangedValue()
    {
        PathListDialog dialog("P", "/a:/b", nullptr);
        QVERIFY(!okEnabled(dialog));
        dialog.downButton->click();
        QVERIFY(okEnabled(dialog));
        dialog.upButton->click();
        QVERIFY(!okEnabled(dialog));
    }

    void anAddedFolderFollowsTheCurrentEntry()
    {
        PathListDialog dialog("P", "/a:/b", nullptr);
        QString askedFrom;
        dialog.setFolderChooser([&askedFrom](QWidget *, const QString &start) {
            askedFrom = start;
            return bin();
        });
        dialog.list->setCurrentRow(0);

        dialog.addButton->click();

        QCOMPARE(dialog.entries(), QStringList({"/a", bin(), "/b"}));
        QCOMPARE(dialog.list->currentRow(), 1);
        QCOMPARE(askedFrom, QDir::homePath()); // "/a" is no folder to start in
    }

    void theFolderChooserShowsHiddenFolders()
    {
        const QString hidden = Sandbox::home() + "/.local/bin";
        QDir().mkpath(hidden);
        PathListDialog dialog("P", bin(), nullptr);
        bool showsHidden = false;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *widget) {
            auto *chooser = qobject_cast<QFileDialog *>(widget);
            QVERIFY(chooser);
            showsHidden = chooser->filter().testFlag(QDir::Hidden);
            chooser->setDirectory(hidden);
            QMetaObject::invokeMethod(chooser, "accept");
        });

        dialog.addButton->click();

        QVERIFY(showsHidden);
        QCOMPARE(dialog.entries(), QStringList({bin(), hidden}));
        QCOMPARE(answerer.pending(), 0);
    }

    void anEntryTypedWithColonsBecomesSeveral()
    {
        PathListDialog dialog("P", "/a:/c", nullptr);
        dialog.list->item(0)->setText("/a:/b");
        QCoreApplication::processEvents();
        QCOMPARE(dialog.entries(), QStringList({"/a", "/b", "/c"}));
    }

    void okHandsTheJoinedValueToTheRecordUpdate()
    {
        Sandbox::setUserEnvironment({"MYPATH=/a:/b:/a"});
        Eve window;
        QSignalSpy changes(window.eveModel(), &QAbstractItemModel::dataChanged);
        ModalAnswerer answerer;
        answerer.addAction(removeDuplicatesAndAccept());

        editAsList(window, "MYPATH", answerer);

        const QModelIndex value = valueOf(window, "MYPATH");
        QCOMPARE(value.data().toString(), "/a:/b");
        QCOMPARE(value.siblingAtColumn(EveModel::PreviousColumn).data().toString(), "/a:/b:/a");
        QCOMPARE(changes.count(), 1);
        QVERIFY(window.isModified());
        QVERIFY(window.actionSave->isEnabled());
        QVERIFY(window.actionEdit->isEnabled());
        QCOMPARE(answerer.seen.size(), 1);
    }

    void cancelLeavesTheRowAlone()
    {
        Sandbox::setUserEnvironment({"MYPATH=/a:/a"});
        Eve window;
        ModalAnswerer answerer;
        answerer.addAnswer("Cancel");

        editAsList(window, "MYPATH", answerer);

        QCOMPARE(valueOf(window, "MYPATH").data().toString(), "/a:/a");
        QVERIFY(!window.isModified());
    }

    void aCriticalRowAsksBeforeItChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("modified");
        QTest::addRow("yes changes the value") << "Yes"
                                               << "/usr/bin:/bin" << true;
        QTest::addRow("no keeps it") << "No"
                                     << "/usr/bin:/bin:/bin" << false;
        QTest::addRow("cancel keeps it") << "Cancel"
                                         << "/usr/bin:/bin:/bin" << false;
    }
    void aCriticalRowAsksBeforeItChanges()
    {
        QFETCH(QString, answer);
        Sandbox::setUserEnvironment({"PATH=/usr/bin:/bin:/bin"});
        Eve window;
        ModalAnswerer cellEdit({"Cancel"});
        window.eveModel()->setData(valueOf(window, "PATH"), "/usr/bin");
        ModalAnswerer answerer;
        answerer.addAction(removeDuplicatesAndAccept());
        bool withoutParent = false;
        answerer.addAction([&](QWidget *box) {
            withoutParent = box->parentWidget() == nullptr;
            ModalAnswerer::clickButton(box, answer);
        });

        editAsList(window, "PATH", answerer);

        QCOMPARE(answerer.seen.size(), 2);
        QCOMPARE(answerer.seen.at(1).title, "Request of confirmation");
        QCOMPARE(answerer.seen.at(1).text, "Really change the value of system variable?");
        QCOMPARE(answerer.seen.at(1).buttons, cellEdit.seen.value(0).buttons);
        QCOMPARE(answerer.seen.at(1).title, cellEdit.seen.value(0).title);
        QCOMPARE(answerer.seen.at(1).text, cellEdit.seen.value(0).text);
        QVERIFY(withoutParent);
        QTEST(valueOf(window, "PATH").data().toString(), "value");
        QTEST(window.isModified(), "modified");
    }

    void ctrlLOpensTheListOfTheCurrentRow()
    {
        Sandbox::setUserEnvironment({"MYPATH=/a:/b"});
        Eve window;
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.tableView->setCurrentIndex(valueOf(window, "MYPATH"));
        QStringList entries;
        ModalAnswerer answerer;
        answerer.addAction([&entries](QWidget *widget) {
            entries = qobject_cast<PathListDialog *>(widget)->entries();
            ModalAnswerer::clickButton(widget, "Cancel");
        });

        QTest::keyClick(window.tableView, Qt::Key_L, Qt::ControlModifier);

        QCOMPARE(entries, QStringList({"/a", "/b"}));
        QCOMPARE(answerer.pending(), 0);
    }

    void theCommandNeedsACurrentRow()
    {
        Eve window;
        QAction *action = window.findChild<ListEditCommand *>()->action();
        window.tableView->setCurrentIndex(QModelIndex());
        QVERIFY(!action->isEnabled());
        window.tableView->setCurrentIndex(window.eveModel()->index(1, 0));
        QVERIFY(action->isEnabled());
        window.eveModel()->reload();
        QVERIFY(!action->isEnabled());
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestPathList)
#include "tst_pathlist.moc"
