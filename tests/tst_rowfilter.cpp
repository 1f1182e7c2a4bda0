#include "eve.h"
#include "evemodel.h"
#include "filterbar.h"
#include "modalanswerer.h"
#include "rowfilter.h"
#include "sandbox.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

class TestRowFilter : public QObject
{
    Q_OBJECT

    // The names of the rows the table shows, top to bottom.
    static QStringList visibleNames(const Eve &window)
    {
        QStringList names;
        const EveModel *model = window.eveModel();
        for (int row = 0; row < model->rowCount(); ++row) {
            if (!window.tableView->isRowHidden(row))
                names << model->index(row, EveModel::VariableColumn).data().toString();
        }
        return names;
    }
    static int rowOf(const Eve &window, const QString &name)
    {
        const EveModel *model = window.eveModel();
        return model->match(model->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly)
            .value(0)
            .row();
    }
    FilterBar *bar() const { return window->findChild<FilterBar *>(); }
    void type(const QString &text) { bar()->field()->setText(text); }

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"PAGER=less", "EDITOR=vim", "VISUAL=vim"});
        window.reset(new Eve);
    }
    void cleanup()
    {
        window.reset();
        sandbox.reset();
    }

    void matchesByEachColumnIgnoringCase_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("matches");
        QTest::addRow("a part of the name") << "AGE" << true;
        QTest::addRow("a part of the value") << "/usr/b" << true;
        QTest::addRow("a part of the description") << "pager" << true;
        QTest::addRow("the name in other letter case") << "pager" << true;
        QTest::addRow("the value in other letter case") << "/USR/BIN" << true;
        QTest::addRow("an empty text") << "" << true;
        QTest::addRow("a text found in no column") << "xyz" << false;
        QTest::addRow("parts of two columns together") << "PAGER/usr" << false;
    }
    void matchesByEachColumnIgnoringCase()
    {
        QFETCH(QString, text);
        QTEST(RowFilter::matches("PAGER", "/usr/bin/less", "The pager of man", text), "matches");
    }

    void typingHidesTheRowsThatDoNotMatch()
    {
        type("vim");

        QCOMPARE(visibleNames(*window), QStringList({"EDITOR", "VISUAL"}));
        QVERIFY(bar()->countLabel()->isVisibleTo(window.get()));
        QCOMPARE(bar()->countLabel()->text(), "2 of 7 variables");
    }

    void anEmptyFieldShowsEveryRowAndNoCount()
    {
        type("vim");
        type("");

        QCOMPARE(visibleNames(*window).size(), 7);
        QVERIFY(!bar()->countLabel()->isVisibleTo(window.get()));
    }

    void hiddenRowsStayHiddenAfterAResort()
    {
        type("e");
        const QStringList before = visibleNames(*window);
        window->tableView->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
        window->eveModel()->sort(0, Qt::AscendingOrder);

        QStringList reversed(before.crbegin(), before.crend());
        QCOMPARE(visibleNames(*window), reversed);
    }

    void hiddenRowsStayHiddenAfterAReload()
    {
        type("vim");
        window->eveModel()->reload();

        QCOMPARE(visibleNames(*window), QStringList({"EDITOR", "VISUAL"}));
        QCOMPARE(bar()->countLabel()->text(), "2 of 7 variables");
    }

    void anAddedRowStaysVisibleUntilTheTextChanges()
    {
        type("vim");
        EveModel *model = window->eveModel();
        model->insertRows(model->rowCount(), 1, {"NEWVAR", "x", "", "local"});
        model->sort(0, Qt::DescendingOrder);

        QCOMPARE(visibleNames(*window), QStringList({"EDITOR", "NEWVAR", "VISUAL"}));
        type("VIM");
        QCOMPARE(visibleNames(*window), QStringList({"EDITOR", "VISUAL"}));
    }

    void anEditedRowStaysVisibleUntilTheTextChanges()
    {
        type("vim");
        EveModel *model = window->eveModel();
        model->setData(model->index(rowOf(*window, "EDITOR"), EveModel::ValueColumn), "nano");

        QCOMPARE(visibleNames(*window), QStringList({"EDITOR", "VISUAL"}));
        type("VIM");
        QCOMPARE(visibleNames(*window), QStringList({"VISUAL"}));
    }

    void aDeleteKeepsTheOtherRowsHidden()
    {
        type("vim");
        window->eveModel()->removeRows(rowOf(*window, "EDITOR"), 1);

        QCOMPARE(visibleNames(*window), QStringList({"VISUAL"}));
        QCOMPARE(bar()->countLabel()->text(), "1 of 6 variables");
    }

    void theCurrentRowMovesToAVisibleOne()
    {
        window->tableView->selectRow(rowOf(*window, "PAGER"));
        type("vim");

        QCOMPARE(window->tableView->currentIndex().row(), rowOf(*window, "EDITOR"));
    }

    void selectingAHiddenRowSelectsTheFirstVisibleOne()
    {
        type("vim");
        window->tableView->selectRow(rowOf(*window, "PAGER"));

        QCOMPARE(window->tableView->currentIndex().row(), rowOf(*window, "EDITOR"));
    }

    void noVisibleRowLeavesNoCurrentRowAndNoEditing()
    {
        window->tableView->selectRow(rowOf(*window, "PAGER"));
        window->actionEdit->setEnabled(true);
        window->actionDelete->setEnabled(true);
        type("no such text");

        QVERIFY(!window->tableView->currentIndex().isValid());
        QVERIFY(!window->actionEdit->isEnabled());
        QVERIFY(!window->actionDelete->isEnabled());
        QCOMPARE(bar()->countLabel()->text(), "0 of 7 variables");
    }

    void ctrlFFocusesTheField()
    {
        window->show();
        QApplication::setActiveWindow(window.get());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        window->tableView->setFocus();

        QTest::keyClick(window->tableView, Qt::Key_F, Qt::ControlModifier);

        QVERIFY(bar()->field()->hasFocus());
    }

    void escapeClearsTheFieldAndReturnsToTheTable()
    {
        window->show();
        QApplication::setActiveWindow(window.get());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        bar()->field()->setFocus();
        QTest::keyClicks(bar()->field(), "vim");
        QCOMPARE(visibleNames(*window).size(), 2);

        QTest::keyClick(bar()->field(), Qt::Key_Escape);

        QCOMPARE(bar()->field()->text(), QString());
        QCOMPARE(visibleNames(*window).size(), 7);
        QVERIFY(window->tableView->hasFocus());
    }

private:
    QScopedPointer<Sandbox> sandbox;
    std::unique_ptr<Eve> window;
};

ORV_SANDBOX_TEST_MAIN(TestRowFilter)
#include "tst_rowfilter.moc"
