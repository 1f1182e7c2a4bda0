#include "core/lookup/rowmatch.h"
#include "gui/app/eve.h"
#include "gui/lookup/filterbar.h"
#include "gui/lookup/rowfilter.h"
#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"
#include "support/windowhelpers.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

class TestRowFilter : public SandboxTest
{
    Q_OBJECT

    std::unique_ptr<Eve> window;

    QStringList visibleNames() const
    {
        QStringList names;
        for (int row = 0; row < modelOf(*window)->rowCount(); ++row)
            if (!window->tableView->isRowHidden(row))
                names << modelOf(*window)->index(row, EveModel::VariableColumn).data().toString();
        return names;
    }
    FilterBar *bar() const { return window->findChild<FilterBar *>(); }
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
        SandboxTest::init();
        Sandbox::setUserEnvironment({"PAGER=less", "EDITOR=vim", "VISUAL=vim"});
        window.reset(new Eve);
    }
    void cleanup()
    {
        waitForTheClearButton();
        window.reset();
        SandboxTest::cleanup();
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
        QTEST(rowMatches("PAGER", "/usr/bin/less", "Scrolls long texts", text), "matches");
    }

    // A new row that does not match stays visible, so that the user sees what was added.
    void hiddenRowsStayHiddenAfterAResortAReloadAndAnAdd()
    {
        bar()->field()->setText("vim");
        modelOf(*window)->sort(0, Qt::AscendingOrder);
        QCOMPARE(visibleNames(), QStringList({"VISUAL", "EDITOR"}));
        modelOf(*window)->reload();
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "VISUAL"}));

        modelOf(*window)->insertRows(modelOf(*window)->rowCount(), 1, {"NEWVAR", "x", "", "local"});
        modelOf(*window)->sort(0, Qt::DescendingOrder);
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "NEWVAR", "VISUAL"}));
        bar()->field()->setText("VIM");
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "VISUAL"}));
    }

    // Edit and Delete act on the current row, which must never be one the user cannot see.
    void commandsNeverActOnAHiddenRow()
    {
        window->tableView->selectRow(rowOf(*modelOf(*window), "PAGER"));
        bar()->field()->setText("vim");
        QCOMPARE(window->tableView->currentIndex().row(), rowOf(*modelOf(*window), "EDITOR"));

        window->actionEdit->setEnabled(true);
        bar()->field()->setText("no such text");
        QVERIFY(!window->tableView->currentIndex().isValid());
        QVERIFY(!window->actionEdit->isEnabled());
    }

    void ctrlFThenTypingFiltersAndEscapeClears()
    {
        window->show();
        QApplication::setActiveWindow(window.get());
        QVERIFY(QTest::qWaitForWindowActive(window.get()));

        QTest::keyClick(window->tableView, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "vim");
        waitForTheClearButton();
        QCOMPARE(visibleNames(), QStringList({"EDITOR", "VISUAL"}));
        QCOMPARE(bar()->countLabel()->text(), "2 of 7 variables");
        QVERIFY(bar()->countLabel()->isVisibleTo(window.get()));

        QTest::keyClick(bar()->field(), Qt::Key_Escape);
        QCOMPARE(visibleNames().size(), 7);
        QVERIFY(!bar()->countLabel()->isVisibleTo(window.get()));
        QVERIFY(window->tableView->hasFocus());
    }
};

ORV_SANDBOX_TEST_MAIN(TestRowFilter)
#include "tst_rowfilter.moc"
