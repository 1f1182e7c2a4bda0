#include "eve.h"
#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"
#include "ueditor.h"

static QString nameAt(const EveModel &model, int row)
{
    return model.index(row, EveModel::VariableColumn).data().toString();
}

class TestSortSelection : public SandboxTest
{
    Q_OBJECT

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"BBB=2", "CCC=3", "DDD=4"});
    }

    void persistentIndexesMoveWithTheirRows_data()
    {
        QTest::addColumn<Qt::SortOrder>("order");
        QTest::addRow("ascending, Z before A") << Qt::AscendingOrder;
        QTest::addRow("descending, A before Z") << Qt::DescendingOrder;
    }
    void persistentIndexesMoveWithTheirRows()
    {
        QFETCH(Qt::SortOrder, order);
        EveModel model;
        const QPersistentModelIndex ccc = model.index(rowOf(model, "CCC"), EveModel::ValueColumn);
        QSignalSpy layouts(&model, &QAbstractItemModel::layoutChanged);
        QSignalSpy aboutToChange(&model, &QAbstractItemModel::layoutAboutToBeChanged);

        model.sort(EveModel::VariableColumn, order);

        QCOMPARE(nameAt(model, ccc.row()), "CCC");
        QCOMPARE(ccc.column(), int(EveModel::ValueColumn));
        QCOMPARE(layouts.count(), 1);
        QCOMPARE(aboutToChange.count(), 0);
    }

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

        window.actionAdd->trigger();

        const QModelIndex current = window.tableView->selectionModel()->currentIndex();
        QCOMPARE(nameAt(model, current.row()), "CCC");
        const QModelIndexList selected = window.tableView->selectionModel()->selectedRows();
        QCOMPARE(selected.size(), 1);
        QCOMPARE(nameAt(model, selected.first().row()), "CCC");
    }

    void deleteAfterAReSortRemovesTheHighlightedVariable()
    {
        Eve window;
        EveModel &model = *window.eveModel();
        window.tableView->selectRow(rowOf(model, "CCC"));
        model.insertRows(model.rowCount(), 1, {"AAA", "1", "", "local"});
        model.sort(EveModel::VariableColumn, Qt::DescendingOrder); // AAA moves to the top
        answerer->addAnswer("Yes");

        window.actionDelete->trigger();

        QCOMPARE(rowOf(model, "CCC"), -1);
        QVERIFY(rowOf(model, "BBB") >= 0);
    }
};

ORV_SANDBOX_TEST_MAIN(TestSortSelection)
#include "tst_sortselection.moc"
