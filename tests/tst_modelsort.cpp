#include "evemodel.h"
#include "sandbox.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

// The model's sort must order rows exactly as a stable sort by
// QString::compare with Qt::CaseInsensitive does: ascending puts Z before A,
// descending A before Z, and texts that compare equal keep their order.
class TestModelSort : public QObject
{
    Q_OBJECT

    Sandbox *sandbox = nullptr;

    static QStringList names(const EveModel &model)
    {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names << model.index(row, EveModel::VariableColumn).data().toString();
        return names;
    }

    static QStringList sortedByQString(QStringList names, Qt::SortOrder order)
    {
        const int sign = order == Qt::AscendingOrder ? 1 : -1;
        std::stable_sort(names.begin(), names.end(), [sign](const QString &a, const QString &b) {
            return sign * QString::compare(a, b, Qt::CaseInsensitive) > 0;
        });
        return names;
    }

    static void addRows(EveModel &model, const QStringList &names)
    {
        for (const QString &name : names)
            model.insertRows(model.rowCount(), 1, {name, QStringLiteral("value")});
    }

private slots:
    void init() { sandbox = new Sandbox; }
    void cleanup() { delete sandbox; }

    void sortsAsCaseInsensitiveCompare_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addRow("texts that differ only in case keep their order")
            << QStringList{"home", "HOME", "Home", "alpha"};
        QTest::addRow("a text sorts after the texts it begins with")
            << QStringList{"PATHS", "PATH", "PAT", "path_x"};
        QTest::addRow("characters between the upper and the lower case letters")
            << QStringList{"a_b", "A_B", "a[b", "A^B", "a`b", "a~b", "a0b"};
        QTest::addRow("texts beyond ASCII among ASCII ones") << QStringList{
            "\u00e9t\u00e9", "ETE", "\u00c9T\u00c9", "ete", "zz", "\u0416", "\u0436"};
        QTest::addRow("the Kelvin sign folds to k") << QStringList{"\u212a", "k", "K", "j", "l"};
        QTest::addRow("empty texts") << QStringList{"", "b", "", "A"};
    }
    void sortsAsCaseInsensitiveCompare()
    {
        QFETCH(QStringList, texts);
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            EveModel model;
            addRows(model, texts);
            const QStringList expected = sortedByQString(names(model), order);
            model.sort(EveModel::VariableColumn, order);
            QCOMPARE(names(model), expected);
        }
    }

    void sortsRandomTextsAsCaseInsensitiveCompare()
    {
        static const QStringList pieces{
            "a",      "A",      "b",      "B",          "z",      "Z",      "_",
            "0",      "9",      "[",      "`",          "\u00e9", "\u00c9", "\u00df",
            "\u0416", "\u0436", "\u212a", "\U0001D400", "ab",     "AB",     ""};
        QRandomGenerator random(4711);
        for (int round = 0; round < 20; ++round) {
            QStringList texts;
            for (int i = 0; i < 300; ++i) {
                QString text;
                for (int n = int(random.bounded(5)); n > 0; --n)
                    text += pieces.at(int(random.bounded(pieces.size())));
                texts << text;
            }
            const Qt::SortOrder order = round % 2 ? Qt::AscendingOrder : Qt::DescendingOrder;
            EveModel model;
            addRows(model, texts);
            const QStringList expected = sortedByQString(names(model), order);
            model.sort(EveModel::VariableColumn, order);
            QCOMPARE(names(model), expected);
        }
    }
};

ORV_SANDBOX_TEST_MAIN(TestModelSort)
#include "tst_modelsort.moc"
