#include "evemodel.h"
#include "modalanswerer.h"
#include "sandbox.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QtTest>

using L = QStringList;

// Rows as "NAME|Value|Origin|Description|Scope|Vip|Previous" (edit texts), the home as "~".
static L rowsOf(const EveModel &m)
{
    QString out;
    for (int i = 0; i < m.rowCount() * EveModel::ColumnCount; ++i)
        out += m.index(i / 7, i % 7).data(Qt::EditRole).toString() + (i % 7 < 6 ? "|" : "\n");
    return out.replace(Sandbox::home(), "~").split('\n', Qt::SkipEmptyParts);
}

// Replaces the rows by new ones, "NAME|VALUE|DESCRIPTION", as the "new variable" command makes.
static void fill(EveModel &m, const L &rows)
{
    while (m.rowCount() > 0)
        m.removeRows(0, 1);
    for (const QString &fields : rows)
        m.insertRows(m.rowCount(), 1, fields.split('|'));
}

class TestEveModel : public QObject
{
    Q_OBJECT

private slots:
    void texts()
    {
        Sandbox sandbox;
        EveModel m;
        const QString x = QString(80, 'x');
        fill(m, {"EDITOR|", "X|" + x.left(50), "X|" + x.left(51), "X|" + x,
                 "X|" + x.left(19) + ":" + x.left(20) + ":" + x.left(19), "X|a%1b"});
        QVERIFY(m.setData(m.index(5, 2), QString())); // only an edit empties Origin
        QString texts; // headers ('*': editable), Value's text, status and tool tip per row
        for (int c = 0; c < m.columnCount(); ++c)
            texts += (c ? " " : "") + m.headerData(c, Qt::Horizontal).toString() +
                     (m.flags(m.index(0, c)) & Qt::ItemIsEditable ? "*" : "");
        for (int r = 0; r < 6; ++r)
            for (int role : {Qt::DisplayRole, Qt::StatusTipRole, Qt::ToolTipRole})
                texts += (role ? " " : "\n") + m.index(r, 1).data(role).toString();
        for (const QString &c : L{"PATH|", "Path|", "LANG|", "PS1|x", "HOME|x", "DESKTOP_SESSION|",
                                  "EDITOR|"}) { // the catalogue, with Vip before
            L row{c.section('|', 0, 0), "v", "System", "old", "local", c.section('|', 1), "p"};
            m.describeKnownVariable(row);
            row[3].replace(QRegExp("^(.{40}).{21,}"), "\\1..."); // long ones by their start
            texts += "\n" + row.join('|');
        }
        for (int n : {80, 51, 50, 20, 19}) // long values written as x<length>
            texts.replace(x.left(n), QString("x%1").arg(n));
        texts.replace("<tr><td><b>", "[").replace("</b>", "").replace("</td></tr>", "]");
        QCOMPARE(texts.split('\n'), QString(R"(Variable* Value* Origin Description* 5 6 7
 EDITOR= <table>[Variable: EDITOR][Origin: System]</table>
x50 X=x50 <table>[Variable: X][Value: x50][Origin: System]</table>
x51 X=x51 <table>[Variable: X][Value: x51...][Origin: System]</table>
x80 X=x80 <table>[Variable: X][Value: x51...][Origin: System]</table>
x19:x20:x19 X=x19:x20:x19 <table>[Variable: X][Value: x19 :x20 :x19][Origin: System]</table>
a%1b X=a%1b <table>[Variable: X][Value: a%1b]</table>
PATH|v|System|A colon-separated list of directories in...|local|true|p
Path|v|System|old|local||p
LANG|v|System|Used to determine the locale category fo...|local||p
PS1|v|System|The primary prompt string.|local|x|p
HOME|v|System|The current user's home directory; the d...|local|true|p
DESKTOP_SESSION|v|System|Stores the desktop name.. kde, gnome or something else.|local|true|p
EDITOR|v|System|old|local||p)")
                                        .split('\n'));
        QVERIFY(EveModel::staticMetaObject.indexOfSignal("disableDel()") >= 0);
        QVERIFY(EveModel::staticMetaObject.indexOfSlot("sort(int,Qt::SortOrder)") >= 0);
    }

    void rows()
    {
        Sandbox sandbox;
        EveModel m; // HOME, LOGNAME, SHELL and PATH, all Vip
        QSignalSpy changed(&m, &EveModel::dataChanged), disabled(&m, &EveModel::disableDel);
        ModalAnswerer answerer({"Yes", "No", "Cancel", "Yes", "Cancel"}); // the last one is spare
        QString results, counts, names; // results: of each edit, then dataChanged()s and boxes
        for (const QString &edit : L{"1a", "1b", "1c", "0n", "3d"}) // column and text
            results += QString::number(m.setData(m.index(1, edit.left(1).toInt()), edit.mid(1)));
        results += QString::number(m.setData(m.index(2, 2), "N", "V", "D", "global", "", "", 0));
        results += QString("%1%2").arg(changed.count()).arg(answerer.seen.size());
        QCOMPARE(L{results} + rowsOf(m).mid(1, 2), L({"10011144", "n|a|System|d|local|true|tester",
                                                      "N|V|System|D|global||/bin/bash"}));
        QCOMPARE(changed[3].mid(0, 2), QVariantList({m.index(2, 0), m.index(2, 6)}));
        const ModalAnswerer::Seen box = answerer.seen.value(0); // all alike
        QCOMPARE(box.title + ": " + box.text,
                 "Request of confirmation: Really change the value of system variable?");
        QCOMPARE(QSet<QString>(box.buttons.begin(), box.buttons.end()),
                 QSet<QString>({"Yes", "No", "Cancel"}));
        fill(m, {"A", "B|2|System", "C|3|", "D|4|system", "E", "F"});
        for (const QString &fields : L{"", "N|V|D", "N|V|D|g", "N|V|D|g|x"}) // "": no fields
            QVERIFY(fields.isEmpty() ? m.insertRows(5, 3) : m.insertRows(5, 3, fields.split('|')));
        QCOMPARE(rowsOf(m).mid(5), L({"F||System||||", "__new__|VALUE|System||||",
                                      "N|V|System|D|||V", "N|V|System|D|g||V", "||||||"}));
        m.deletedRows.clear();
        QVERIFY(m.removeRows(1, 1) && m.removeRows(1, 1) && m.removeRows(1, 1)); // B, C and D
        QCOMPARE(m.deletedRows, QList<L>({{"C", "3", "System", "", "", "", "3"},
                                          {"D", "4", "System", "system", "", "", "4"}}));
        const QModelIndex stale = m.index(0, 0);
        for (disabled.clear(); m.rowCount() > 0 && m.removeRows(0, 1);) // left, disableDel()s
            counts += QString(" %1:%2").arg(m.rowCount()).arg(disabled.count());
        QCOMPARE(counts, QString(" 6:0 5:0 4:0 3:0 2:0 1:1 0:2"));
        QCOMPARE(m.columnCount() + int(m.flags(stale)), 0);
        QVERIFY(!m.data(stale).isValid());
        fill(m, {"beta", "HOME|0", "Alpha", "home|1", "gamma", "HOME|2"});
        QSignalSpy about(&m, &EveModel::layoutAboutToBeChanged), done(&m, &EveModel::layoutChanged);
        for (int order : {2, 0, 1}) {
            m.sort(0, Qt::SortOrder(order));
            names += rowsOf(m).join(' ').remove(QRegExp("\\|System\\|[^ ]*")) + "\n";
        }
        QCOMPARE(names + QString("%1 %2").arg(about.count()).arg(done.count()), // no "about to"
                 QString("beta| HOME|0 Alpha| home|1 gamma| HOME|2\n"
                         "HOME|0 home|1 HOME|2 gamma| beta| Alpha|\n"
                         "Alpha| beta| gamma| HOME|0 home|1 HOME|2\n0 3"));
        QRandomGenerator random(20240611);
        const L words{"ab", "AB", "Ab", "aB", "ba", "BA", "a_", "A_"}; // ties, case only differs
        for (int key = 0; key < 4; ++key) { // column key / 2, order key % 2
            for (fill(m, {}); m.rowCount() < 300;)
                m.insertRows(0, 1, {words[random.bounded(8)], words[random.bounded(8)]});
            L expected = rowsOf(m); // by a plain bubble sort
            for (int n = expected.size() - 1, c = key / 2, s = key % 2 ? -1 : 1; n > 0; --n)
                for (int j = 1; j <= n; ++j)
                    if (0 > s * QString::compare(expected[j - 1].mid(3 * c, 2),
                                                 expected[j].mid(3 * c, 2), Qt::CaseInsensitive))
                        expected.swapItemsAt(j - 1, j);
            m.sort(key / 2, Qt::SortOrder(key % 2));
            QCOMPARE(rowsOf(m), expected);
        }
    }
};

ORV_SANDBOX_TEST_MAIN(TestEveModel)
#include "tst_evemodel.moc"
