#include "gui/app/eve.h"
#include "gui/dialogs/ueditor.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

class TestSortSelection : public SandboxTest
{
    Q_OBJECT

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"BBB=2", "CCC=3", "DDD=4"});
    }

    // The re-sort after the add moves the selection and the current index
    // with their rows, and says so by one layoutChanged alone; Delete then
    // asks about the highlighted variable and deletes it.
    void highlightStaysOnItsVariableWhenAnotherIsAdded()
    {
        Eve window;
        EveModel &model = *modelOf(window);
        window.tableView->selectRow(rowOf(model, "CCC"));
        answerer->addAction([](QWidget *dialog) {
            auto *editor = qobject_cast<uEditor *>(dialog);
            QTest::keyClicks(editor->variableEdit, "AAA");
            QTest::keyClicks(editor->valueEdit, "1");
            ModalAnswerer::clickButton(editor, "OK");
        });
        answerer->addAnswer("Yes");
        QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
        QSignalSpy aboutToChange(&model, &QAbstractItemModel::layoutAboutToBeChanged);

        window.actionAdd->trigger();
        QCOMPARE(layouts.count(), 1);
        QCOMPARE(aboutToChange.count(), 0);
        const QModelIndexList selected = window.tableView->selectionModel()->selectedRows();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.first().data().toString(), "CCC");
        window.actionDelete->trigger();

        QCOMPARE(rowOf(model, "CCC"), -1);
        QVERIFY(rowOf(model, "BBB") >= 0);
    }
};

ORV_SANDBOX_TEST_MAIN(TestSortSelection)
#include "tst_sortselection.moc"
