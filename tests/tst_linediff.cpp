#include "linediff.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

// The length of a longest common subsequence, by the textbook table.
int commonLines(const QByteArrayList &a, const QByteArrayList &b)
{
    QVector<QVector<int>> table(a.size() + 1, QVector<int>(b.size() + 1, 0));
    for (int i = a.size() - 1; i >= 0; --i) {
        for (int j = b.size() - 1; j >= 0; --j)
            table[i][j] = a.at(i) == b.at(j) ? table[i + 1][j + 1] + 1
                                             : qMax(table[i + 1][j], table[i][j + 1]);
    }
    return table[0][0];
}

QByteArray randomFile(QRandomGenerator &random, int lines)
{
    QByteArray bytes;
    for (int i = 0; i < lines; ++i)
        bytes += "line " + QByteArray::number(random.bounded(4)) + '\n';
    return bytes;
}

} // namespace

class TestLineDiff : public QObject
{
    Q_OBJECT

private slots:
    void unifiedDiff_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("diff");

        const QByteArray ten = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n";
        QTest::addRow("equal files give no diff") << ten << ten << QByteArray();
        QTest::addRow("one changed line has three lines of context")
            << ten << QByteArray(ten).replace("5\n", "five\n")
            << QByteArray("--- old\n+++ new\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+five\n 6\n 7\n 8\n");
        QTest::addRow("a line put first")
            << QByteArray("a\nb\n") << QByteArray("export X=1\na\nb\n")
            << QByteArray("--- old\n+++ new\n@@ -1,2 +1,3 @@\n+export X=1\n a\n b\n");
        QTest::addRow("a new file") << QByteArray() << QByteArray("export X=1\n")
                                    << QByteArray("--- old\n+++ new\n@@ -0,0 +1 @@\n+export X=1\n");
        QTest::addRow("a removed last line")
            << QByteArray("a\nb\n") << QByteArray("a\n")
            << QByteArray("--- old\n+++ new\n@@ -1,2 +1 @@\n a\n-b\n");
        QTest::addRow("a file without a final line end gets one")
            << QByteArray("a\nb") << QByteArray("a\nb\n")
            << QByteArray("--- old\n+++ new\n@@ -1,2 +1,2 @@\n a\n-b\n\\ No newline at end of "
                          "file\n+b\n");
        QByteArray twenty;
        for (int i = 1; i <= 20; ++i)
            twenty += QByteArray::number(i) + '\n';
        QTest::addRow("changes seven lines apart make two hunks")
            << twenty << QByteArray(twenty).replace("1\n2\n", "x\n2\n").replace("\n9\n", "\ny\n")
            << QByteArray("--- old\n+++ new\n@@ -1,4 +1,4 @@\n-1\n+x\n 2\n 3\n 4\n"
                          "@@ -6,7 +6,7 @@\n 6\n 7\n 8\n-9\n+y\n 10\n 11\n 12\n");
        QTest::addRow("changes six lines apart share a hunk")
            << ten << QByteArray("x\n2\n3\n4\n5\n6\n7\ny\n9\n10\n")
            << QByteArray("--- old\n+++ new\n@@ -1,10 +1,10 @@\n-1\n+x\n 2\n 3\n 4\n 5\n 6\n 7\n"
                          "-8\n+y\n 9\n 10\n");
    }
    void unifiedDiff()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, diff);

        QCOMPARE(LineDiff::unified(before, after, "old", "new"), diff);
    }

    // Applying the changes gives the new file, with no more changed lines than needed.
    void changesAreShortestEdits()
    {
        QRandomGenerator random(20261123);
        for (int round = 0; round < 300; ++round) {
            const QByteArrayList before =
                LineDiff::splitLines(randomFile(random, random.bounded(12)));
            const QByteArrayList after =
                LineDiff::splitLines(randomFile(random, random.bounded(12)));

            const QVector<LineDiff::Change> changes = LineDiff::changes(before, after);

            QByteArrayList applied;
            int next = 0;
            int changed = 0;
            for (const LineDiff::Change &change : changes) {
                QCOMPARE(change.oldStart - next, change.newStart - applied.size());
                applied += before.mid(next, change.oldStart - next);
                applied += after.mid(change.newStart, change.newCount);
                next = change.oldStart + change.oldCount;
                changed += change.oldCount + change.newCount;
            }
            applied += before.mid(next);
            QCOMPARE(applied, after);
            QCOMPARE(changed, before.size() + after.size() - 2 * commonLines(before, after));
        }
    }

    void manyDifferencesBecomeOneChange()
    {
        QByteArrayList before;
        QByteArrayList after;
        for (int i = 0; i < 3000; ++i) {
            before.append("old " + QByteArray::number(i) + '\n');
            after.append("new " + QByteArray::number(i) + '\n');
        }
        const QVector<LineDiff::Change> changes = LineDiff::changes(before, after);
        QCOMPARE(changes, (QVector<LineDiff::Change>{{0, 3000, 0, 3000}}));
    }
};

QTEST_APPLESS_MAIN(TestLineDiff)
#include "tst_linediff.moc"
