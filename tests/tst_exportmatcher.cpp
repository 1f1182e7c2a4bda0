#include "environmententry.h"
#include "exportmatcher.h"
#include "randomlines.h"

#include <QRegExp>
#include <QtTest>

// The read grammar and the split of environment entries find exactly what QRegExp
// finds with the patterns they stand for. Random inputs start from fixed values.
class TestExportMatcher : public QObject
{
    Q_OBJECT

    QRegExp exportPattern{QStringLiteral("\\bexport\\b\\s+\\b(\\w+)=(.+)\\b")};
    QRegExp environmentPattern{QStringLiteral("([a-zA-Z0-9_]+)=(.*)")};

    // "NAME=VALUE" of the line as QRegExp reads it, or a null string.
    QString byQRegExp(const QString &line)
    {
        return exportPattern.indexIn(line) < 0 ? QString()
                                               : exportPattern.cap(1) + '=' + exportPattern.cap(2);
    }

    // Both scans of a file must find what QRegExp finds in each of its lines:
    // lines end at "\n", are decoded from UTF-8 and lose their "\r" characters.
    void compareScansWithQRegExp(const QByteArray &bytes)
    {
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

    // [NAME, VALUE] of an environment entry as QRegExp gives them.
    QStringList splitByQRegExp(const QString &entry)
    {
        if (environmentPattern.indexIn(entry) < 0)
            return {QString(), QString()};
        return environmentPattern.capturedTexts().mid(1);
    }

private slots:
    void readsExportsAsQRegExpDoes_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addRow("a commented-out export counts") << QByteArray("# export EDITOR=vim");
        QTest::addRow("a combining mark after export") << QByteArray("export\u0301 A=1");
        QTest::addRow("no white space after export") << QByteArray("exportA=1");
        QTest::addRow("the value runs to the end of the line") << QByteArray("export A=1 B=2");
        QTest::addRow("a closing double quote") << QByteArray("export PATH=\"/usr/bin:$PATH\"");
        QTest::addRow("a second export after a failed one") << QByteArray("export =x; export B=2");
        QTest::addRow("Cyrillic letters") << QByteArray("export \u0418\u041c=\u0434a");
        QTest::addRow("a letter beyond the BMP") << QByteArray("export A=x\U0001D400");
        QTest::addRow("lines end at a line feed, with or without a carriage return")
            << QByteArray("export A=1\r\nexport B=2\nexport C=3");
        QTest::addRow("a carriage return inside a line")
            << QByteArray("exp\rort A=1\nexport B=x\ry\n");
        QTest::addRow("broken UTF-8") << QByteArray("\xff"
                                                    "export A=1\nexport \xc3 B=1\n");
        QTest::addRow("a NUL byte") << QByteArray("export A=b\0c\n", 13);
    }
    void readsExportsAsQRegExpDoes()
    {
        QFETCH(QByteArray, text);
        compareScansWithQRegExp(text);
    }

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
            if (found != expected)
                qWarning() << "line" << i << line;
            QCOMPARE(found, expected);
            matches += !expected.isNull();
        }
        // Both outcomes must be common, or the lines test little.
        QVERIFY2(matches > 250000 && matches < 750000, qPrintable(QString::number(matches)));
    }

    void readsRandomFilesAsQRegExpDoes()
    {
        RandomLines lines(7321);
        for (int i = 0; i < 50000 && !QTest::currentTestFailed(); ++i)
            compareScansWithQRegExp(lines.fileBytes());
    }

    void splitsEnvironmentEntriesAsQRegExpDoes()
    {
        RandomLines lines(99);
        for (int i = 0; i < 200000; ++i) {
            const QString entry = lines.exportLine();
            const QStringList pair = LineGrammar::nameAndValue(entry);
            const QStringList expected = splitByQRegExp(entry);
            if (pair != expected)
                qWarning() << "entry" << entry;
            QCOMPARE(pair, expected);
            // An empty value is a null string, as QRegExp gives it.
            QCOMPARE(pair.at(1).isNull(), expected.at(1).isNull());
        }
    }
};

QTEST_GUILESS_MAIN(TestExportMatcher)
#include "tst_exportmatcher.moc"
