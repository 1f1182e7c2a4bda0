#include "linediff.h"

#include <QRandomGenerator>
#include <QtTest>

class TestLineDiff : public QObject
{
    Q_OBJECT

private slots:
    void unifiedDiff_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("diff"); // without the "--- old\n+++ new\n" head

        QByteArray twenty;
        for (int i = 1; i <= 20; ++i)
            twenty += QByteArray::number(i) + '\n';
        const QByteArray ten = twenty.left(twenty.indexOf("11\n"));
        QTest::addRow("equal files give no diff") << ten << ten << QByteArray();
        QTest::addRow("one changed line has three lines of context")
            << ten << QByteArray(ten).replace("5\n", "five\n")
            << QByteArray("@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
        QTest::addRow("a new file") << QByteArray() << QByteArray("export X=1\n")
                                    << QByteArray("@@ -0,0 +1 @@\n+export X=1\n");
        QTest::addRow("a removed last line")
            << QByteArray("a\nb\n") << QByteArray("a\n") << QByteArray("@@ -1,2 +1 @@\n a\n-b\n");
        QTest::addRow("a file without a final line end gets one")
            << QByteArray("a\nb") << QByteArray("a\nb\n")
            << QByteArray("@@ -1,2 +1,2 @@\n a\n-b\n\\ No newline at end of file\n+b\n");
        QTest::addRow("changes seven lines apart make two hunks")
            << twenty << QByteArray(twenty).replace("1\n2\n", "x\n2\n").replace("\n9\n", "\ny\n")
            << QByteArray("@@ -1,4 +1,4 @@\n-1\n+x\n 2\n 3\n 4\n"
                          "@@ -6,7 +6,7 @@\n 6\n 7\n 8\n-9\n+y\n 10\n 11\n 12\n");
        QTest::addRow("changes six lines apart share a hunk")
            << ten << QByteArray(ten).replace("1\n2\n", "x\n2\n").replace("\n8\n", "\ny\n")
            << QByteArray("@@ -1,10 +1,10 @@\n-1\n+x\n 2\n 3\n 4\n 5\n 6\n 7\n-8\n+y\n 9\n 10\n");
    }
    void unifiedDiff()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, diff);
        QCOMPARE(LineDiff::unified(before, after, "old", "new"),
                 diff.isEmpty() ? diff : "--- old\n+++ new\n" + diff);
    }

    // Applying the changes gives the new file, with no more changed lines than
    // the longest common subsequence of the two leaves.
    void changesAreShortestEdits()
    {
        QRandomGenerator random(20261123);
        const auto randomLines = [&random] {
            QByteArrayList lines;
            for (int n = random.bounded(12); n > 0; --n)
                lines << "line " + QByteArray::number(random.bounded(4)) + '\n';
            return lines;
        };
        for (int round = 0; round < 300; ++round) {
            const QByteArrayList before = randomLines();
            const QByteArrayList after = randomLines();
            QVector<QVector<int>> common(before.size() + 1, QVector<int>(after.size() + 1, 0));
            for (int i = before.size() - 1; i >= 0; --i) {
                for (int j = after.size() - 1; j >= 0; --j)
                    common[i][j] = before.at(i) == after.at(j)
                                       ? common[i + 1][j + 1] + 1
                                       : qMax(common[i + 1][j], common[i][j + 1]);
            }

            QByteArrayList applied;
            int next = 0;
            int changed = 0;
            for (const LineDiff::Change &change : LineDiff::changes(before, after)) {
                QCOMPARE(change.oldStart - next, change.newStart - applied.size());
                applied += before.mid(next, change.oldStart - next);
                applied += after.mid(change.newStart, change.newCount);
                next = change.oldStart + change.oldCount;
                changed += change.oldCount + change.newCount;
            }
            applied += before.mid(next);
            QCOMPARE(applied, after);
            QCOMPARE(changed, before.size() + after.size() - 2 * common[0][0]);
        }
    }

    // Beyond a thousand differing lines the search would take too much memory.
    void manyDifferencesBecomeOneChange()
    {
        QByteArrayList before;
        QByteArrayList after;
        for (int i = 0; i < 3000; ++i) {
            before << "old " + QByteArray::number(i) + '\n';
            after << "new " + QByteArray::number(i) + '\n';
        }
        QCOMPARE(LineDiff::changes(before, after), (QVector<LineDiff::Change>{{0, 3000, 0, 3000}}));
    }
};

QTEST_APPLESS_MAIN(TestLineDiff)
#include "tst_linediff.moc"
