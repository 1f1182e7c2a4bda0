#include "eve.h"
#include "evemodel.h"
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

    static QModelIndex valueOf(const Eve &window, const QString &name)
    {
        const EveModel *model = window.eveModel();
        return model->match(model->index(0, 0), Qt::DisplayRole, name)
            .value(0)
            .siblingAtColumn(EveModel::ValueColumn);
    }
    // Ctrl+L on the row of `name`; the answerer takes the list dialog and what follows it.
    static void editAsList(Eve &window, const QString &name, ModalAnswerer &answerer)
    {
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.tableView->setCurrentIndex(valueOf(window, name));
        QTest::keyClick(window.tableView, Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(answerer.pending(), 0);
    }
    static void removeDuplicatesAndAccept(QWidget *widget)
    {
        auto *dialog = qobject_cast<PathListDialog *>(widget);
        dialog->duplicatesButton->click();
        dialog->buttons->button(QDialogButtonBox::Ok)->click();
    }

private slots:
    void init() { sandbox.reset(new Sandbox); }
    void cleanup() { sandbox.reset(); }

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
        const auto icon = [&](int row) {
            return dialog.list->item(row)->icon().cacheKey();
        };
        QVERIFY(icon(1) != icon(0)); // a missing folder and a repeat are marked, each its own way
        QVERIFY(icon(2) != icon(0));
        QVERIFY(icon(2) != icon(1));
        QVERIFY(dialog.list->item(2)->font().italic());
    }

    void buttonsReorderRemoveAndDeduplicate()
    {
        PathListDialog dialog("P", "/a:/b:/a", nullptr);
        dialog.list->setCurrentRow(1);
        dialog.upButton->click();
        QCOMPARE(dialog.value(), "/b:/a:/a");
        QVERIFY(!dialog.upButton->isEnabled());
        dialog.downButton->click();
        dialog.removeButton->click();
        QCOMPARE(dialog.value(), "/a:/a");
        QCOMPARE(dialog.list->currentRow(), 1);
        QVERIFY(!dialog.downButton->isEnabled());
        dialog.duplicatesButton->click();
        QCOMPARE(dialog.value(), "/a");
        QVERIFY(!dialog.duplicatesButton->isEnabled());
    }

    void anAddedFolderMayBeHiddenAndFollowsTheCurrentEntry()
    {
        const QString hidden = Sandbox::home() + "/.local/bin";
        QDir().mkpath(hidden);
        PathListDialog dialog("P", "/a:/b", nullptr);
        dialog.list->setCurrentRow(0);
        bool showsHidden = false;
        ModalAnswerer answerer;
        answerer.addAction([&](QWidget *widget) {
            auto *chooser = qobject_cast<QFileDialog *>(widget);
            showsHidden = chooser->filter().testFlag(QDir::Hidden);
            chooser->setDirectory(hidden);
            QMetaObject::invokeMethod(chooser, "accept");
        });

        dialog.addButton->click();

        QVERIFY(showsHidden);
        QCOMPARE(dialog.entries(), QStringList({"/a", hidden, "/b"}));
        QCOMPARE(answerer.pending(), 0);
    }

    void okHandsTheJoinedValueToTheRecordUpdate()
    {
        Sandbox::setUserEnvironment({"MYPATH=/a:/b:/a"});
        Eve window;
        ModalAnswerer answerer;
        answerer.addAction(removeDuplicatesAndAccept);

        editAsList(window, "MYPATH", answerer);

        const QModelIndex value = valueOf(window, "MYPATH");
        QCOMPARE(value.data().toString(), "/a:/b");
        QCOMPARE(value.siblingAtColumn(EveModel::PreviousColumn).data().toString(), "/a:/b:/a");
        QVERIFY(window.isModified());
        QVERIFY(window.actionEdit->isEnabled());
    }

    void cancelLeavesTheRowAlone()
    {
        Sandbox::setUserEnvironment({"MYPATH=/a:/a"});
        Eve window;
        ModalAnswerer answerer({"Cancel"});

        editAsList(window, "MYPATH", answerer);

        QVERIFY(!window.isModified());
    }

    void aCriticalRowAsksBeforeItChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("value");
        QTest::addRow("yes changes the value") << "Yes" << QString("/usr/bin:/bin");
        QTest::addRow("no keeps it") << "No" << QString("/usr/bin:/bin:/bin");
    }
    void aCriticalRowAsksBeforeItChanges()
    {
        QFETCH(QString, answer);
        Sandbox::setUserEnvironment({"PATH=/usr/bin:/bin:/bin"});
        Eve window;
        ModalAnswerer answerer;
        answerer.addAction(removeDuplicatesAndAccept);
        answerer.addAnswer(answer);

        editAsList(window, "PATH", answerer);

        QCOMPARE(answerer.seen.value(1).title, "Request of confirmation");
        QCOMPARE(answerer.seen.value(1).text, "Really change the value of system variable?");
        QTEST(valueOf(window, "PATH").data().toString(), "value");
    }

private:
    QScopedPointer<Sandbox> sandbox;
};

ORV_SANDBOX_TEST_MAIN(TestPathList)
#include "tst_pathlist.moc"
