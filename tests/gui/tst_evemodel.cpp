#include "gui/model/evemodel.h"
#include "support/sandboxtest.h"
#include "support/tablehelpers.h"

#include <QAbstractItemModelTester>

#include <algorithm>

// The session of every test: HOME, LOGNAME, SHELL and PATH, which the
// catalogue marks critical, and EDITOR, which it does not.
class TestEveModel : public SandboxTest
{
    Q_OBJECT

    QScopedPointer<EveModel> model;

    QModelIndex cell(const QString &name, int column) const
    {
        return model->index(rowOf(*model, name), column);
    }

private slots:
    void init()
    {
        SandboxTest::init();
        Sandbox::setUserEnvironment({"EDITOR=vim"});
        model.reset(new EveModel);
    }
    void cleanup()
    {
        model.reset();
        SandboxTest::cleanup();
    }

    void rowsCarryNoNumbers() { QVERIFY(!model->headerData(1, Qt::Vertical).isValid()); }

    // Name, value and origin, never the description. A long value is cut, unless
    // colons let the tool tip wrap it at " :".
    void toolTipShowsTheNameAndTheValue_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("shown");
        const QString fifty = QString(50, 'x');
        QTest::addRow("50 characters are shown whole") << fifty << fifty;
        QTest::addRow("51 characters get \"...\" all the same") << fifty + "y" << fifty + "y...";
        QTest::addRow("80 characters are cut after 51")
            << fifty + QString(30, 'y') << fifty + "y...";
        QTest::addRow("a long list of paths gets a space before each colon")
            << "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"
            << "/usr/local/sbin :/usr/local/bin :/usr/sbin :/usr/bin :/sbin :/bin";
        QTest::addRow("a percent sign stays as it is") << "%1 %2"
                                                       << "%1 %2";
    }
    void toolTipShowsTheNameAndTheValue()
    {
        QFETCH(QString, value);
        QFETCH(QString, shown);
        Sandbox::setUserEnvironment({"EDITOR=" + value});
        model.reset(new EveModel);
        QCOMPARE(model->data(cell("EDITOR", EveModel::DescriptionColumn), Qt::ToolTipRole),
                 "<table><tr><td><b>Variable</b>: EDITOR</td></tr><tr><td><b>Value</b>: " + shown +
                     "</td></tr><tr><td><b>Origin</b>: System</td></tr></table>");
        QCOMPARE(model->data(cell("EDITOR", 0), Qt::StatusTipRole), "EDITOR=" + value);
    }

    // Name, value and description are editable; disableDel() comes when at
    // most one row is left; an empty model has no columns, flags or data.
    void flagsAndSignalsFollowTheRowsLeft()
    {
        QList<int> editable;
        for (int column = 0; column < EveModel::ColumnCount; ++column) {
            if (model->flags(model->index(0, column)).testFlag(Qt::ItemIsEditable))
                editable << column;
        }
        QCOMPARE(editable, QList<int>({0, 1, 3}));
        QSignalSpy disableDel(model.data(), &EveModel::disableDel);
        const QModelIndex formerCell = model->index(0, 0);
        QList<int> counts;
        while (model->rowCount() > 0 && model->removeRows(0, 1))
            counts << disableDel.count();
        QCOMPARE(counts, QList<int>({0, 0, 0, 1, 2}));
        QCOMPARE(model->columnCount(), 0);
        QCOMPARE(model->flags(formerCell), Qt::NoItemFlags);
        QVERIFY(!model->data(formerCell).isValid());
    }

    // Only Yes lets the name or value of SHELL change; its description changes unasked.
    // The first change of a row keeps the text before it, whichever cell it was in.
    void cellEditOfCriticalVariableAsksFirst()
    {
        QSignalSpy changes(model.data(), &EveModel::dataChanged);
        answerer->addAnswer("Cancel");
        QVERIFY(!model->setData(cell("SHELL", EveModel::ValueColumn), "/bin/sh"));
        answerer->addAnswer("No");
        QVERIFY(!model->setData(cell("SHELL", EveModel::VariableColumn), "ZSH"));
        QVERIFY(model->setData(cell("SHELL", EveModel::DescriptionColumn), "mine"));
        answerer->addAnswer("Yes");
        QVERIFY(model->setData(cell("SHELL", EveModel::ValueColumn), "/bin/zsh"));
        QVERIFY(!model->setData(cell("SHELL", EveModel::ValueColumn), "/bin/ed", Qt::DisplayRole));
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes.at(1).mid(0, 2), QVariantList({cell("SHELL", 1), cell("SHELL", 1)}));
        QCOMPARE(answerer->seen.value(0).text, "Really change the value of system variable?");
        QCOMPARE(recordOf(*model, "SHELL"), QStringList({"SHELL", "/bin/zsh", "System", "mine",
                                                         "local", "true", "Your shell"}));
    }

    void insertAppendsOneRow()
    {
        QVERIFY(model->insertRows(0, 3));
        QVERIFY(model->insertRows(0, 1, {"S", "V", "D", "global"}));
        QCOMPARE(namesOf(*model).mid(5), QStringList({"__new__", "S"}));
        QCOMPARE(recordOf(*model, "__new__"),
                 QStringList({"__new__", "VALUE", "System", "", "", "", ""}));
        QCOMPARE(recordOf(*model, "S"), QStringList({"S", "V", "System", "D", "global", "", "V"}));
    }

    // Only a row described exactly as "System" is left out.
    void removedRowIsKeptForTheNextSave()
    {
        model->setData(cell("EDITOR", EveModel::DescriptionColumn), "system");
        model->setData(cell("PATH", EveModel::DescriptionColumn), "System");
        QSignalSpy layoutChanges(model.data(), &EveModel::layoutChanged);
        QVERIFY(model->removeRows(rowOf(*model, "EDITOR"), 1));
        QVERIFY(model->removeRows(rowOf(*model, "PATH"), 1));
        QCOMPARE(namesOf(*model), QStringList({"HOME", "LOGNAME", "SHELL"}));
        QCOMPARE(layoutChanges.count(), 2);
        QCOMPARE(model->deletedRows.size(), 1);
        QCOMPARE(model->deletedRows.value(0).value(0), "EDITOR");
    }

    // As a stable sort by QString::compare with Qt::CaseInsensitive: ascending
    // puts Z before A, descending A before Z, equal texts keep their order.
    void sortsAsCaseInsensitiveCompare()
    {
        // Case pairs, ASCII between the cases, the Kelvin sign (k), a surrogate pair.
        const QStringList pieces{"a", "A", "k",      "K",      "z",      "Z",
                                 "_", "`", "\u00e9", "\u00c9", "\u212a", "\U0001D400"};
        QRandomGenerator random(4711);
        for (int i = 0; i < 1000; ++i) {
            QString text;
            for (int n = int(random.bounded(5)); n > 0; --n)
                text += pieces.at(int(random.bounded(pieces.size())));
            model->insertRows(model->rowCount(), 1, {text, "value"});
        }
        for (const int sign : {1, -1}) {
            QStringList names = namesOf(*model);
            std::stable_sort(names.begin(), names.end(), [&](const QString &a, const QString &b) {
                return sign * QString::compare(a, b, Qt::CaseInsensitive) > 0;
            });
            model->sort(EveModel::VariableColumn,
                        sign > 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            QCOMPARE(namesOf(*model), names);
        }
    }

    // Qt's checker of item models watches the operations of the window and
    // fails the test at the first broken rule. It accepts the layoutChanged
    // that removeRows and sort send alone, and no columns without rows. It
    // rejects a plain insertRows(row) below rowCount(), which announces `row`
    // but appends ("Compared values are not the same ... c.next"); the
    // window only ever appends, at rowCount().
    void keepsTheRulesOfItemModelsThroughTheWindowsOperations()
    {
        QAbstractItemModelTester tester(model.data(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        answerer->addAnswer("Yes"); // SHELL is critical
        QVERIFY(model->setData(cell("SHELL", EveModel::ValueColumn), "/bin/zsh"));
        QVERIFY(model->setData(cell("EDITOR", 0), "EDITOR", "nano", "", "local", "", "nano",
                               Qt::EditRole));
        QVERIFY(model->insertRows(model->rowCount(), 1, {"NEW", "1", "", "local"}));
        model->sort(EveModel::VariableColumn, Qt::AscendingOrder);
        model->sort(EveModel::VariableColumn, Qt::DescendingOrder);
        QVERIFY(model->removeRows(rowOf(*model, "NEW"), 1));
        QVERIFY(model->reload());
        // Down to no rows and no columns, then a first row, as in an empty session.
        while (model->rowCount() > 0)
            QVERIFY(model->removeRows(0, 1));
        QVERIFY(model->insertRows(model->rowCount(), 1, {"NEW", "1", "", "local"}));
        QCOMPARE(model->columnCount(), int(EveModel::ColumnCount));
    }

    void catalogueDescribesEveryWellKnownVariable_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("vip");
        QTest::addColumn<QString>("description");
        QFile file(QFINDTESTDATA("catalogue.tsv"));
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        file.readLine(); // the heading
        while (!file.atEnd()) {
            const QStringList entry = QString::fromUtf8(file.readLine()).chopped(1).split('\t');
            QTest::addRow("%s is %s", qPrintable(entry[0]), qPrintable(entry[1]))
                << entry[0] << (entry[1] == "critical" ? "true" : "kept") << entry[2];
        }
        for (const QString name : {"EDITOR", "Path", "PATH "})
            QTest::addRow("\"%s\" is unknown", qPrintable(name)) << name << "kept" << QString();
    }
    // Loading hands each record to the catalogue; its Vip shows whether the
    // catalogue wrote one.
    void catalogueDescribesEveryWellKnownVariable()
    {
        QFETCH(QString, name);
        QStringList record{name, "value", "System", "", "local", "kept", ""};
        model->describeKnownVariable(record);
        QTEST(record.at(EveModel::DescriptionColumn), "description");
        QTEST(record.at(EveModel::VipColumn), "vip");
        QCOMPARE(record.mid(0, 3), QStringList({name, "value", "System"}));
    }
};

ORV_SANDBOX_TEST_MAIN(TestEveModel)
#include "tst_evemodel.moc"
