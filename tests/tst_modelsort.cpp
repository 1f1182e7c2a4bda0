#include "evemodel.h"
#include "sandbox.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

class TestModelSort : public QObject
{
    Q_OBJECT

private slots:
    // As a stable sort by QString::compare with Qt::CaseInsensitive: ascending
    // puts Z before A, descending A before Z, equal texts keep their order.
    void sortsAsCaseInsensitiveCompare()
    {
        Sandbox sandbox;
        // Case pairs, ASCII between the cases, the Kelvin sign (k), a surrogate pair.
        const QStringList pieces{"a",      "A",      "k",      "K",      "z",      "Z",
                                 "0",      "_",      "[",      "^",      "`",      "\u00e9",
                                 "\u00c9", "\u00df", "\u0416", "\u0436", "\u212a", "\U0001D400"};
        QRandomGenerator random(4711);
        for (int round = 0; round < 10; ++round) {
            EveModel model;
            for (int i = 0; i < 300; ++i) {
                QString text;
                for (int n = int(random.bounded(5)); n > 0; --n)
                    text += pieces.at(int(random.bounded(pieces.size())));
                model.insertRows(model.rowCount(), 1, {text, "value"});
            }
            const auto names = [&model] {
                QStringList names;
                for (int row = 0; row < model.rowCount(); ++row)
                    names << model.index(row, EveModel::VariableColumn).data().toString();
                return names;
            };
            const int sign = round % 2 ? 1 : -1;
            QStringList expected = names();
            std::stable_sort(expected.begin(), expected.end(),
                             [&](const QString &a, const QString &b) {
                                 return sign * QString::compare(a, b, Qt::CaseInsensitive) > 0;
                             });
            model.sort(EveModel::VariableColumn,
                       round % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
            QCOMPARE(names(), expected);
        }
    }
};

ORV_SANDBOX_TEST_MAIN(TestModelSort)
#include "tst_modelsort.moc"
