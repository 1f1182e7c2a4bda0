#include "eve.h"
#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"
#include "ueditor.h"

class TestSortSelection : public SandboxTest
{
    Q_OBJECT

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"BBB=2", "CCC=3", "DDD=4"});
    }

    void persistentIndexesMoveWithTheirRows()
    {
        EveModel model;
        const QPersistentModelIndex ccc = model.index(rowOf(model, "CCC"), EveModel::ValueColumn);
        QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
        QSignalSpy aboutToChange(&model, &QAbstractItemModel::layoutAboutToBeChanged);

        model.sort(EveModel::VariableColumn, Qt::DescendingOrder);

        QCOMPARE(ccc.row(), rowOf(model, "CCC"));
        QCOMPARE(ccc.column(), int(EveModel::ValueColumn));
        QCOMPARE(layouts.count(), 1);
        QCOMPARE(aboutToChange.count(), 0);
    }

    // Delete then asks about the highlighted variable and deletes it.
    void highlightStaysOnItsVariableWhenAnotherIsAdded()
    {
        Eve window;
        EveModel &model = *window.eveModel();
        window.tableView->selectRow(rowOf(model, "CCC"));
        answerer->addAction([](QWidget *dialog) {
            auto *editor = qobject_cast<uEditor *>(dialog);
            QTest::keyClicks(editor->variableEdit, "AAA");
            QTest::keyClicks(editor->valueEdit, "1");
            ModalAnswerer::clickButton(editor, "OK");
        });
        answerer->addAnswer("Yes");

        window.actionAdd->trigger();
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
