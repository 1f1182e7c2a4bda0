#include "core/shell/exportmatcher.h"
#include "gui/model/evemodel.h"
#include "support/randomlines.h"
#include "support/sandbox.h"
#include "support/tablehelpers.h"

#include <QRegExp>
#include <QtTest>

#include <algorithm>

// The fast ways to read start-up files and to sort the table give what the
// plain ways give, for random inputs from fixed start values.
class TestFastPaths : public QObject
{
    Q_OBJECT

    QRegExp exportPattern{QStringLiteral("\\bexport\\b\\s+\\b(\\w+)=(.+)\\b")};

    // "NAME=VALUE" of the line as QRegExp reads it, or a null string.
    QString byQRegExp(const QString &line)
    {
        return exportPattern.indexIn(line) < 0 ? QString()
                                               : exportPattern.cap(1) + '=' + exportPattern.cap(2);
    }

private slots:
    // A million lines in CI; bench_exportmatcher runs ten million more.
    void readsRandomLinesAsQRegExpDoes()
    {
        RandomLines lines(20240613);
        LineGrammar::ExportLineMatcher matcher;
        int matches = 0;
        for (int i = 0; i < 1000000; ++i) {
            const QString line = lines.exportLine();
            const QString expected = byQRegExp(line);
            const QString found =
                matcher.match(line) ? matcher.name() + '=' + matcher.value() : QString();
            QVERIFY2(found == expected,
                     qPrintable(line + " gives " + found + " (QRegExp: " + expected + ")"));
            matches += !expected.isNull();
        }
        // Both outcomes must be common, or the lines test little.
        QVERIFY2(matches > 250000 && matches < 750000, qPrintable(QString::number(matches)));
    }

    // Both scans of a file find what QRegExp finds in each of its lines: lines
    // end at "\n", are decoded from UTF-8 and lose their "\r" characters.
    void readsRandomFilesAsQRegExpDoes()
    {
        RandomLines lines(7321);
        for (int i = 0; i < 50000; ++i) {
            const QByteArray bytes = lines.fileBytes();
            QStringList expected;
            for (const QByteArray &line : bytes.split('\n')) {
                const QString found =
                    byQRegExp(QString::fromUtf8(line.constData(), line.size()).remove('\r'));
                if (!found.isNull())
                    expected << found;
            }
            QStringList exports;
            QStringList exportedNames;
            LineGrammar::forEachExport(bytes, [&](QStringView name, QStringView value) {
                exports << name.toString() + '=' + value.toString();
                exportedNames << name.toString();
            });
            QStringList names;
            LineGrammar::forEachExportedName(bytes, [&](std::string_view name) {
                names << QString::fromUtf8(name.data(), int(name.size()));
            });
            if (exports != expected || names != exportedNames)
                qWarning() << "file" << bytes;
            QCOMPARE(exports, expected);
            QCOMPARE(names, exportedNames);
        }
    }

    // As a stable sort by QString::compare with Qt::CaseInsensitive: ascending
    // puts Z before A, descending A before Z, equal texts keep their order.
    void sortsAsCaseInsensitiveCompare()
    {
        Sandbox sandbox;
        // Case pairs, ASCII between the cases, the Kelvin sign (k), a surrogate pair.
        const QStringList pieces{"a", "A", "k",      "K",      "z",      "Z",
                                 "_", "`", "\u00e9", "\u00c9", "\u212a", "\U0001D400"};
        QRandomGenerator random(4711);
        EveModel model;
        for (int i = 0; i < 1000; ++i) {
            QString text;
            for (int n = int(random.bounded(5)); n > 0; --n)
                text += pieces.at(int(random.bounded(pieces.size())));
            model.insertRows(model.rowCount(), 1, {text, "value"});
        }
        for (const int sign : {1, -1}) {
            QStringList names = namesOf(model);
            std::stable_sort(names.begin(), names.end(), [&](const QString &a, const QString &b) {
                return sign * QString::compare(a, b, Qt::CaseInsensitive) > 0;
            });
            model.sort(EveModel::VariableColumn,
                       sign > 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            QCOMPARE(namesOf(model), names);
        }
    }
};

ORV_SANDBOX_TEST_MAIN(TestFastPaths)
#include "tst_fastpaths.moc"
