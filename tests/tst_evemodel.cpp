#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"

#include <QApplication>
#include <QMetaMethod>
#include <QRandomGenerator>
#include <QtTest>

namespace {

QStringList record(const EveModel &m, int row)
{
    QStringList out;
    for (int c = 0; c < EveModel::ColumnCount; ++c)
        out << m.data(m.index(row, c)).toString();
    return out;
}

QList<QStringList> rowsOf(const EveModel &m)
{
    QList<QStringList> out;
    for (int r = 0; r < m.rowCount(); ++r)
        out << record(m, r);
    return out;
}

// Replaces all rows by new ones made as the "new variable" command does.
void fill(EveModel &m, const QList<QStringList> &rows)
{
    while (m.rowCount() > 0)
        m.removeRows(0, 1);
    for (const QStringList &fields : rows)
        m.insertRows(m.rowCount(), 1, fields);
}

// Reference order: swap (j-1, j) when the upper text is less (0) or greater (1).
void bubbleSort(QList<QStringList> &rows, int column, int order)
{
    for (int n = rows.size() - 1, swapped = 1; n >= 1 && swapped; --n) {
        swapped = 0;
        for (int j = 1; j <= n; ++j) {
            const int c = rows[j - 1][column].compare(rows[j][column], Qt::CaseInsensitive);
            if ((order == 0 && c < 0) || (order == 1 && c > 0))
                rows.swapItemsAt(j - 1, j), swapped = 1;
        }
    }
}

// The model then has one row: HOME, a critical catalogue entry.
void homeOnly()
{
    Sandbox::setEnvironment({"HOME=" + Sandbox::home()});
}

const QString homeText = "The current user's home directory; the default for the cd built-in. The "
                         "value of this variable is also used by tilde expansion.";
} // namespace

class TestEveModel : public QObject
{
    Q_OBJECT

private slots:
    void countsFlagsAndHeaders()
    {
        Sandbox sandbox;
        homeOnly();
        EveModel model;
        QCOMPARE(model.columnCount(), 7);
        QCOMPARE(record(model, 0),
                 QStringList({"HOME", Sandbox::home(), "System", homeText, "local", "true", ""}));
        const QStringList labels{"Variable", "Value", "Origin", "Description", "5", "6", "7"};
        const auto base = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
        for (int c = 0; c < 7; ++c) {
            QCOMPARE(model.flags(model.index(0, c)),
                     c == 0 || c == 1 || c == 3 ? base | Qt::ItemIsEditable : base);
            QCOMPARE(model.headerData(c, Qt::Horizontal).toString(), labels[c]);
        }
        QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
        QVERIFY(!model.data(model.index(0, 0), Qt::ForegroundRole).isValid());
        QCOMPARE(model.rowCount(model.index(0, 0)), 0);
        model.removeRows(0, 1);
        QCOMPARE(model.rowCount() + model.columnCount(), 0);
        QCOMPARE(model.flags(model.index(0, 0)), Qt::NoItemFlags);
        for (int role : {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole, Qt::StatusTipRole})
            QVERIFY(!model.data(model.index(0, 0), role).isValid());
    }

    void texts_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("shown");
        const QString digits = QString("0123456789").repeated(8);
        const QString path = "/usr/local/bin:/usr/bin:/bin:/usr/local/sbin:/usr/sbin:/sbin";
        QTest::addRow("50") << digits.left(50) << digits.left(50);
        QTest::addRow("51 cut to itself") << digits.left(51) << digits.left(51) + "...";
        QTest::addRow("80") << digits << digits.left(51) + "...";
        QTest::addRow("60 with colons") << path << QString(path).replace(":", " :");
        QTest::addRow("percent markers") << QString("a%1b%2") << QString("a%1b%2");
        QTest::addRow("empty origin") << "v" << QString();
    }
    void texts()
    {
        Sandbox sandbox;
        QFETCH(QString, value);
        QFETCH(QString, shown);
        EveModel model;
        fill(model, {{"X", value, "Described"}});
        if (shown.isEmpty()) // Origin can only be emptied by a cell edit
            QVERIFY(model.setData(model.index(0, EveModel::OriginColumn), QString()));
        const QModelIndex index = model.index(0, 1);
        QCOMPARE(model.data(index).toString() + model.data(index, Qt::EditRole).toString(),
                 value + value);
        QCOMPARE(model.data(index, Qt::StatusTipRole).toString(), "X=" + value);
        QCOMPARE(model.data(index, Qt::ToolTipRole).toString(),
                 "<table><tr><td><b>Variable</b>: X</td></tr><tr><td><b>Value</b>: " +
                     (shown.isEmpty()
                          ? value + "</td></tr>"
                          : shown + "</td></tr><tr><td><b>Origin</b>: System</td></tr>") +
                     "</table>");
        fill(model, {{"EDITOR", ""}});
        QCOMPARE(model.data(model.index(0, 0), Qt::StatusTipRole).toString(), QString("EDITOR="));
    }

    void vipEdit_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("answer");
        QTest::addRow("value yes") << 1 << "Yes";
        QTest::addRow("value no") << 1 << "No";
        QTest::addRow("value cancel") << 1 << "Cancel";
        QTest::addRow("name yes") << 0 << "Yes";
        QTest::addRow("description asks nothing") << 3 << QString();
    }
    void vipEdit()
    {
        Sandbox sandbox;
        homeOnly();
        QFETCH(int, column);
        QFETCH(QString, answer);
        const bool accepted = answer.isEmpty() || answer == "Yes";
        EveModel model;
        QStringList expected = record(model, 0);
        if (accepted)
            expected[6] = expected[column], expected[column] = "new";
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        ModalAnswerer answerer({answer.isEmpty() ? "Cancel" : answer});
        QCOMPARE(model.setData(model.index(0, column), "new"), accepted);
        QCOMPARE(record(model, 0), expected);
        QCOMPARE(changed.count(), int(accepted));
        QCOMPARE(answerer.pending(), int(answer.isEmpty()));
        QCOMPARE(answerer.seen.size(), int(!answer.isEmpty()));
        if (answer.isEmpty())
            return;
        QCOMPARE(answerer.seen[0].className, QString("QMessageBox"));
        QCOMPARE(answerer.seen[0].title, QString("Request of confirmation"));
        QCOMPARE(answerer.seen[0].text, QString("Really change the value of system variable?"));
        QStringList buttons = answerer.seen[0].buttons; // in layout order
        buttons.sort();
        QCOMPARE(buttons, QStringList({"Cancel", "No", "Yes"}));
    }

    void edits()
    {
        Sandbox sandbox;
        homeOnly();
        EveModel model;
        model.insertRows(model.rowCount(), 1);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        ModalAnswerer answerer({"Cancel"}); // nothing below may ask
        QVERIFY(!model.setData(model.index(1, 1), "x", Qt::DisplayRole));
        QVERIFY(!model.setData(QModelIndex(), "x"));
        QVERIFY(model.setData(model.index(1, 1), "first"));
        QCOMPARE(record(model, 1),
                 QStringList({"__new__", "first", "System", "", "", "", "VALUE"}));
        QVERIFY(model.setData(model.index(1, 1), "second"));
        QVERIFY(model.setData(model.index(1, 3), "text"));
        QCOMPARE(record(model, 1)[6], QString("VALUE"));
        QVERIFY(model.setData(model.index(0, 1), "N", "V", "D", "global", "", "W", Qt::EditRole));
        QCOMPARE(record(model, 0),
                 QStringList({"N", "V", "System", "D", "global", "", Sandbox::home()}));
        QVERIFY(
            model.setData(model.index(0, 3), "M", "W", "E", "local", "true", "W", Qt::EditRole));
        QCOMPARE(record(model, 0),
                 QStringList({"M", "W", "System", "E", "local", "true", Sandbox::home()}));
        QVERIFY(!model.setData(QModelIndex(), "N", "V", "D", "", "", "", Qt::EditRole));
        QCOMPARE(answerer.seen.size(), 0);
        QCOMPARE(changed.count(), 5);
        const QVariantList cell{model.index(1, 1), model.index(1, 1),
                                QVariant::fromValue(QVector<int>())};
        QCOMPARE(changed[0], cell);
        const QVariantList whole{model.index(0, 0), model.index(0, 6),
                                 QVariant::fromValue(QVector<int>())};
        QCOMPARE(changed[3], whole);
    }

    void insertRows_data()
    {
        QTest::addColumn<QStringList>("fields"); // none: the plain overload
        QTest::addColumn<QStringList>("expected");
        QTest::addRow("plain") << QStringList()
                               << QStringList{"__new__", "VALUE", "System", "", "", "", ""};
        QTest::addRow("3 fields") << QStringList{"N", "V", "D"}
                                  << QStringList{"N", "V", "System", "D", "", "", "V"};
        QTest::addRow("4 fields") << QStringList{"N", "V", "D", "global"}
                                  << QStringList{"N", "V", "System", "D", "global", "", "V"};
        QTest::addRow("5 fields") << QStringList{"N", "V", "D", "global", "x"}
                                  << QString(6, ',').split(',');
    }
    void insertRows()
    {
        Sandbox sandbox;
        Sandbox::setUserEnvironment({"A=1", "B=2", "C=3", "D=4", "E=5", "F=6"});
        QFETCH(QStringList, fields);
        QFETCH(QStringList, expected);
        EveModel model;
        const QList<QStringList> before = rowsOf(model);
        QVERIFY(before.size() > 5); // so that row 5 lies inside the table
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QVERIFY(fields.isEmpty() ? model.insertRows(5, 3, QModelIndex())
                                 : model.insertRows(5, 3, fields));
        QCOMPARE(rowsOf(model), before + QList<QStringList>{expected});
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted[0], QVariantList({QModelIndex(), 5, 5}));
    }

    void removeRows_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<bool>("remembered");
        QTest::addRow("System") << "System" << false;
        QTest::addRow("empty") << "" << true;
        QTest::addRow("lower case") << "system" << true;
        QTest::addRow("other") << "Other" << true;
    }
    void removeRows()
    {
        Sandbox sandbox;
        QFETCH(QString, description);
        QFETCH(bool, remembered);
        EveModel model;
        fill(model, {{"A", "1"}, {"B", "2", description}, {"C", "3"}, {"D", "4"}});
        model.deletedRows.clear();
        const QStringList removed = record(model, 1);
        QSignalSpy disabled(&model, &EveModel::disableDel);
        int layouts = 0;
        connect(&model, &QAbstractItemModel::layoutChanged, [&] { ++layouts; });
        QVERIFY(model.removeRows(1, 1));
        QCOMPARE(model.deletedRows,
                 remembered ? QList<QStringList>{removed} : QList<QStringList>{});
        QCOMPARE(record(model, 1)[0], QString("C"));
        QList<int> counts; // after removals leaving 3, 2, 1 and 0 rows
        for (counts << disabled.count(); model.rowCount() > 0; counts << disabled.count())
            model.removeRows(0, 1);
        QCOMPARE(counts, QList<int>({0, 0, 1, 2}));
        QCOMPARE(layouts, 4);
    }

    void sort_data()
    {
        QTest::addColumn<QString>("names");
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("expected");
        QTest::addRow("ascending") << "beta Alpha gamma" << 0 << "gamma beta Alpha";
        QTest::addRow("descending") << "beta Alpha gamma" << 1 << "Alpha beta gamma";
        QTest::addRow("other order") << "beta Alpha gamma" << 2 << "beta Alpha gamma";
        for (int order : {0, 1}) {
            QTest::addRow("home HOME %d", order) << "home HOME" << order << "home HOME";
            QTest::addRow("HOME home %d", order) << "HOME home" << order << "HOME home";
        }
    }
    void sort()
    {
        Sandbox sandbox;
        QFETCH(QString, names);
        QFETCH(int, order);
        QFETCH(QString, expected);
        EveModel model;
        QList<QStringList> rows;
        for (const QString &name : names.split(' '))
            rows << QStringList{name, "v"};
        fill(model, rows);
        int layouts = 0; // "about to change" counts as -100
        connect(&model, &QAbstractItemModel::layoutChanged, [&] { ++layouts; });
        connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, [&] { layouts -= 100; });
        model.sort(0, Qt::SortOrder(order));
        QStringList sorted;
        for (const QStringList &row : rowsOf(model))
            sorted << row[0];
        QCOMPARE(sorted.join(' '), expected);
        QCOMPARE(layouts, 1);
    }

    void sortMatchesBubbleSort()
    {
        Sandbox sandbox;
        EveModel model;
        QRandomGenerator generator(20240611); // many ties and case-only differences
        auto word = [&] {
            QString w;
            for (int i = 1 + generator.bounded(3); i > 0; --i)
                w += QString("aAbB_c")[generator.bounded(6)];
            return w;
        };
        QList<QStringList> rows;
        for (int i = 0; i < 300; ++i)
            rows << QStringList{word(), word(), QString::number(i)};
        for (int column : {0, 1}) {
            for (int order : {0, 1}) {
                fill(model, rows);
                QList<QStringList> expected = rowsOf(model);
                bubbleSort(expected, column, order);
                model.sort(column, Qt::SortOrder(order));
                QCOMPARE(rowsOf(model), expected);
            }
        }
    }

    void metaObject()
    {
        const QMetaObject &meta = EveModel::staticMetaObject;
        QCOMPARE(meta.className(), "EveModel");
        const QMetaMethod signal = meta.method(meta.methodOffset());
        const QMetaMethod slot = meta.method(meta.methodOffset() + 1);
        QCOMPARE(signal.methodSignature(), QByteArray("disableDel()"));
        QCOMPARE(signal.methodType(), QMetaMethod::Signal);
        QCOMPARE(slot.methodSignature(), QByteArray("sort(int,Qt::SortOrder)"));
        QCOMPARE(slot.methodType(), QMetaMethod::Slot);
        QCOMPARE(slot.access(), QMetaMethod::Public);
    }

    void catalogue_data()
    {
        // name, Vip before, Description after ("old" when left alone), Vip after
        QTest::addColumn<QStringList>("entry");
        QTest::addRow("PATH") << QStringList{
            "PATH", "",
            "A colon-separated list of directories in which the shell looks for commands.", "true"};
        QTest::addRow("Path") << QStringList{"Path", "", "old", ""};
        QTest::addRow("path") << QStringList{"path", "", "old", ""};
        QTest::addRow("LANG") << QStringList{
            "LANG", "",
            "Used to determine the locale category for any category not specifically selected with "
            "a variable starting with LC_.",
            ""};
        QTest::addRow("PS1") << QStringList{"PS1", "", "The primary prompt string.", ""};
        QTest::addRow("PS1 marked") << QStringList{"PS1", "x", "The primary prompt string.", "x"};
        QTest::addRow("HOME marked") << QStringList{"HOME", "x", homeText, "true"};
        QTest::addRow("EDITOR") << QStringList{"EDITOR", "", "old", ""};
        QTest::addRow("DESKTOP_SESSION")
            << QStringList{"DESKTOP_SESSION", "",
                           "Stores the desktop name.. kde, gnome or something else.", "true"};
        QTest::addRow("COMP_CWORD") << QStringList{
            "COMP_CWORD", "",
            "An index into ${COMP_WORDS} of the word containing the current cursor position.",
            "true"};
        QTest::addRow("TERM") << QStringList{
            "TERM", "",
            "TERM: Determines method of screen clearing, cursor moving etc, use by many programs.",
            "true"};
    }
    void catalogue()
    {
        Sandbox sandbox;
        QFETCH(QStringList, entry);
        EveModel model;
        QStringList row{entry[0], "value", "System", "old", "local", entry[1], "prev"};
        model.describeKnownVariable(row);
        QCOMPARE(row,
                 QStringList({entry[0], "value", "System", entry[2], "local", entry[3], "prev"}));
    }
};

ORV_SANDBOX_TEST_MAIN(TestEveModel)
#include "tst_evemodel.moc"
