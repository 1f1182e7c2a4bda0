#include "evemodel.h"
#include "sandboxtest.h"
#include "tablehelpers.h"

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
    // Leaves only these variables, each with the value "v", in this order.
    void fillWith(const QStringList &names)
    {
        while (model->rowCount() > 0)
            model->removeRows(0, 1);
        for (const QString &name : names)
            model->insertRows(model->rowCount(), 1, {name, "v"});
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

    void headersNameColumnsButNotRows()
    {
        QStringList labels;
        for (int column = 0; column < EveModel::ColumnCount; ++column)
            labels << model->headerData(column, Qt::Horizontal).toString();
        QCOMPARE(labels,
                 QStringList({"Variable", "Value", "Origin", "Description", "5", "6", "7"}));
        QVERIFY2(!model->headerData(1, Qt::Vertical).isValid(), "rows carry no numbers");
    }

    void onlyNameValueAndDescriptionAreEditable()
    {
        QList<int> editable;
        for (int column = 0; column < EveModel::ColumnCount; ++column) {
            const Qt::ItemFlags flags = model->flags(model->index(0, column));
            QVERIFY(flags.testFlag(Qt::ItemIsSelectable) && flags.testFlag(Qt::ItemIsEnabled));
            if (flags.testFlag(Qt::ItemIsEditable))
                editable << column;
        }
        QCOMPARE(editable, QList<int>({0, 1, 3}));
    }

    void emptyModelHasNoColumnsFlagsOrData()
    {
        const QModelIndex formerCell = model->index(0, 0);
        fillWith({});
        QCOMPARE(model->columnCount(), 0);
        QCOMPARE(model->flags(formerCell), Qt::NoItemFlags);
        QVERIFY(!model->data(formerCell).isValid());
    }

    void statusTipIsTheAssignment()
    {
        model->insertRows(0, 1, {"EMPTY", ""});
        QCOMPARE(cell("EDITOR", 3).data(Qt::StatusTipRole).toString(), "EDITOR=vim");
        QCOMPARE(cell("EMPTY", 3).data(Qt::StatusTipRole).toString(), "EMPTY=");
    }

    void toolTipShowsNameValueAndOrigin_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("origin");
        QTest::addColumn<QString>("shownValue"); // empty: no line for the value
        const auto row = [](const char *name, const QString &value, const QString &origin,
                            const QString &shown) {
            QTest::newRow(name) << value << origin << shown;
        };
        const QString x(80, 'x'), paths = "/usr/local/bin:/usr/bin:/bin:/usr/local/games:/games";
        row("50 characters are shown whole", x.left(50), "/o", x.left(50));
        row("51 characters get dots", x.left(51), "/o", x.left(51) + "...");
        row("80 characters are cut after 51", x, "/o", x.left(51) + "...");
        row("a path list gets spaces before its colons", paths, "/o",
            QString(paths).replace(":", " :"));
        row("an empty value has no line", "", "/o", "");
        row("an empty origin has no line", "vim", "", "vim");
    }
    void toolTipShowsNameValueAndOrigin()
    {
        QFETCH(QString, value);
        QFETCH(QString, origin);
        QFETCH(QString, shownValue);
        model->insertRows(0, 1, {"X", value, "a description is never shown"});
        model->setData(cell("X", EveModel::OriginColumn), origin);
        const auto line = [](const QString &label, const QString &text) {
            return text.isEmpty() ? "" : "<tr><td><b>" + label + "</b>: " + text + "</td></tr>";
        };
        QCOMPARE(cell("X", 0).data(Qt::ToolTipRole).toString(),
                 "<table>" + line("Variable", "X") + line("Value", shownValue) +
                     line("Origin", origin) + "</table>");
    }

    void cellEditOfCriticalVariableAsksFirst_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("answer"); // empty: no question
        QTest::addColumn<bool>("changed");
        QTest::addRow("Yes changes the value") << 1 << "Yes" << true;
        QTest::addRow("Cancel keeps the value") << 1 << "Cancel" << false;
        QTest::addRow("No keeps the name") << 0 << "No" << false;
        QTest::addRow("the description changes unasked") << 3 << "" << true;
    }
    void cellEditOfCriticalVariableAsksFirst()
    {
        QFETCH(int, column);
        QFETCH(QString, answer);
        QFETCH(bool, changed);
        const QString before = cell("SHELL", column).data().toString();
        if (!answer.isEmpty())
            answerer->addAnswer(answer);
        QCOMPARE(model->setData(cell("SHELL", column), "/bin/zsh"), changed);
        QCOMPARE(answerer->pending(), 0);
        QCOMPARE(answerer->seen.size(), answer.isEmpty() ? 0 : 1);
        QCOMPARE(answerer->seen.value(0).text,
                 answer.isEmpty() ? "" : "Really change the value of system variable?");
        QCOMPARE(cell("SHELL", column).data().toString(), changed ? "/bin/zsh" : before);
        QCOMPARE(cellOf(*model, "SHELL", EveModel::PreviousColumn), changed ? before : "");
    }

    void previousValueKeepsTheTextBeforeTheFirstEdit()
    {
        QSignalSpy changes(model.data(), &EveModel::dataChanged);
        QVERIFY(model->setData(cell("EDITOR", 1), "emacs"));
        QVERIFY(model->setData(cell("EDITOR", 1), "nano"));
        QVERIFY(!model->setData(cell("EDITOR", 1), "ed", Qt::DisplayRole));
        QCOMPARE(recordOf(*model, "EDITOR").mid(1),
                 QStringList({"nano", "System", "", "local", "", "vim"}));
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes.at(1).mid(0, 2), QVariantList({cell("EDITOR", 1), cell("EDITOR", 1)}));
    }

    void recordUpdateReplacesFiveFieldsUnasked()
    {
        QSignalSpy changes(model.data(), &EveModel::dataChanged);
        const int row = rowOf(*model, "SHELL");
        model->setData(model->index(row, 2), "ZSH", "/bin/zsh", "d", "global", "", "",
                       Qt::EditRole);
        QCOMPARE(recordOf(*model, "ZSH"),
                 QStringList({"ZSH", "/bin/zsh", "System", "d", "global", "", "/bin/bash"}));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes.at(0).mid(0, 2),
                 QVariantList({model->index(row, 0), model->index(row, 6)}));
    }

    void insertAppendsOneRow()
    {
        fillWith({"A"});
        QVERIFY(model->insertRows(0, 3));
        QVERIFY(model->insertRows(0, 1, {"N", "V"}));
        QVERIFY(model->insertRows(0, 1, {"S", "V", "D", "global"}));
        QCOMPARE(namesOf(*model), QStringList({"A", "__new__", "N", "S"}));
        QCOMPARE(recordOf(*model, "__new__"),
                 QStringList({"__new__", "VALUE", "System", "", "", "", ""}));
        QCOMPARE(recordOf(*model, "N"), QStringList({"N", "V", "System", "", "", "", "V"}));
        QCOMPARE(recordOf(*model, "S"), QStringList({"S", "V", "System", "D", "global", "", "V"}));
    }

    void removedRowIsKeptForTheNextSave_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("kept");
        QTest::addRow("a row described as anything") << "mine" << true;
        QTest::addRow("a row without description") << "" << true;
        QTest::addRow("a row described as system") << "system" << true;
        QTest::addRow("a row described exactly as System") << "System" << false;
    }
    void removedRowIsKeptForTheNextSave()
    {
        QFETCH(QString, description);
        QFETCH(bool, kept);
        model->setData(cell("EDITOR", EveModel::DescriptionColumn), description);
        QSignalSpy layoutChanges(model.data(), &EveModel::layoutChanged);
        QVERIFY(model->removeRows(rowOf(*model, "EDITOR"), 1));
        QCOMPARE(rowOf(*model, "EDITOR"), -1);
        QCOMPARE(layoutChanges.count(), 1);
        QCOMPARE(model->deletedRows.size(), kept ? 1 : 0);
        QCOMPARE(model->deletedRows.value(0).value(0), kept ? "EDITOR" : "");
    }

    void disableDelComesWhenAtMostOneRowIsLeft()
    {
        fillWith({"A", "B", "C"});
        QSignalSpy disableDel(model.data(), &EveModel::disableDel);
        QList<int> counts;
        while (model->rowCount() > 0 && model->removeRows(0, 1))
            counts << disableDel.count();
        QCOMPARE(counts, QList<int>({0, 1, 2}));
    }

    void sortPutsZBeforeAWhenAscending_data()
    {
        QTest::addColumn<int>("order");
        QTest::addColumn<QStringList>("names");
        QTest::addRow("ascending, equal texts keep their order")
            << 0 << QStringList{"home", "HOME", "gamma", "beta", "Alpha"};
        QTest::addRow("descending, equal texts keep their order")
            << 1 << QStringList{"Alpha", "beta", "gamma", "home", "HOME"};
        QTest::addRow("another order moves nothing")
            << 2 << QStringList{"beta", "home", "Alpha", "HOME", "gamma"};
    }
    void sortPutsZBeforeAWhenAscending()
    {
        QFETCH(int, order);
        fillWith({"beta", "home", "Alpha", "HOME", "gamma"});
        QSignalSpy aboutToChange(model.data(), &EveModel::layoutAboutToBeChanged);
        QSignalSpy changed(model.data(), &EveModel::layoutChanged);
        model->sort(0, Qt::SortOrder(order));
        QTEST(namesOf(*model), "names");
        QCOMPARE(aboutToChange.count(), 0);
        QCOMPARE(changed.count(), 1);
    }

    void sortKeepsTheOrderOfEqualTextsInLongTables()
    {
        fillWith({});
        for (int row = 0; row < 40; ++row)
            model->insertRows(row, 1, {row % 2 ? "home" : "HOME", QString::number(row)});
        model->sort(0, Qt::AscendingOrder);
        for (int row = 0; row < 40; ++row)
            QCOMPARE(model->index(row, 1).data().toString(), QString::number(row));
    }
};

ORV_SANDBOX_TEST_MAIN(TestEveModel)
#include "tst_evemodel.moc"
