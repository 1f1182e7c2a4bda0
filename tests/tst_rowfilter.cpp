#include "eve.h"
#include "evemodel.h"
#include "filterbar.h"
#include "rowfilter.h"
#include "sandbox.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QtTest>

class TestRowFilter : public QObject
{
    Q_OBJECT

    // The names of the rows the table shows, top to bottom.
    QStringList visibleNames() const
    {
        QStringList names;
        for (int row = 0; row < model()->rowCount(); ++row) {
            if (!window->tableView->isRowHidden(row))
                names << model()->index(row, EveModel::VariableColumn).data().toString();
        }
        return names;
    }
    int rowOf(const QString &name) const
    {
        return model()->match(model()->index(0, 0), Qt::DisplayRole, name).value(0).row();
    }
    EveModel *model() const { return window->eveModel(); }
    FilterBar *bar() const { return window->findChild<FilterBar *>(); }
    void type(const QString &text) { bar()->field()->setText(text); }
    // Qt leaks a fade of the field's clear button that another fade cuts
    // short or that the field outlives.
    void waitForTheClearButton()
    {
        const QLineEdit *field = bar()->field();
        const qreal opacity = field->text().isEmpty() ? 0.0 : 1.0;
        QTRY_COMPARE(field->findChild<QToolButton *>()->property("opacity").toReal(), opacity);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private slots:
    void init()
    {
        sandbox.reset(new Sandbox);
        Sandbox::setUserEnvironment({"PAGER=less", "EDITOR=vim", "VISUAL=vim"});
        window.reset(new Eve);
    }
    void cleanup()
    {
        waitForTheClearButton();
        window.reset();
        sandbox.reset();
    }

    void matchesByEachColumnIgnoringCase_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("matches");
        QTest::addRow("the name in other letter case") << "ager" << true;
        QTest::addRow("the value in other letter case") << "/USR/b" << true;
        QTest::addRow("the description in other letter case") << "LONG" << true;
        QTest::addRow("a text found in no column") << "xyz" << false;
    }
    void matchesByEachColumnIgnoringCase()
    {
        QFETCH(QString, text);
        QTEST(RowFilter::matches("PAGER", "/usr/bin/less", "Scrolls long texts", text), "matches");
    }

    void hiddenRowsStayHiddenAfterAResortAndAReload()
    {
        type("vim");
        model()->sort(0, Qt::AscendingOrder);
        QCOMPARE(visibleNames(), QStringList({"VISUAL", "EDITOR"}));

        model()->reload();
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "VISUAL"}));
    }

    void anAddedRowStaysVisibleUntilTheTextChanges()
    {
        type("vim");
        model()->insertRows(model()->rowCount(), 1, {"NEWVAR", "x", "", "local"});
        model()->sort(0, Qt::DescendingOrder);

        QCOMPARE(visibleNames(), QStringList({"EDITOR", "NEWVAR", "VISUAL"}));
        type("VIM");
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "VISUAL"}));
    }

    void commandsNeverActOnAHiddenRow()
    {
        window->tableView->selectRow(rowOf("PAGER"));
        type("vim");
        QCOMPARE(window->tableView->currentIndex().row(), rowOf("EDITOR"));
        window->tableView->selectRow(rowOf("PAGER"));
        QCOMPARE(window->tableView->currentIndex().row(), rowOf("EDITOR"));

        window->actionEdit->setEnabled(true);
        type("no such text");
        QVERIFY(!window->tableView->currentIndex().isValid());
        QVERIFY(!window->actionEdit->isEnabled());
    }

    void ctrlFThenTypingFiltersAndEscapeClears()
    {
        window->show();
        QApplication::setActiveWindow(window.get());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));

        QTest::keyClick(window->tableView, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(bar()->field()->hasFocus());
        QTest::keyClicks(bar()->field(), "vim");
        waitForTheClearButton();
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "VISUAL"}));
        QCOMPARE(bar()->countLabel()->text(), "2 of 7 variables");
        QVERIFY(bar()->countLabel()->isVisibleTo(window.get()));

        QTest::keyClick(bar()->field(), Qt::Key_Escape);
        QCOMPARE(visibleNames().size(), 7);
        QVERIFY(!bar()->countLabel()->isVisibleTo(window.get()));
        QVERIFY(window->tableView->hasFocus());
    }

private:
    QScopedPointer<Sandbox> sandbox;
    std::unique_ptr<Eve> window;
};

ORV_SANDBOX_TEST_MAIN(TestRowFilter)
#include "tst_rowfilter.moc"
