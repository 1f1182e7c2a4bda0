#include "core/shell/exportmatcher.h"
#include "support/coresandboxtest.h"
#include "support/randomlines.h"

#include <QRegExp>

// The fast ways to read start-up files give what QRegExp gives, for random
// inputs from fixed start values.
class TestExportMatcher : public CoreSandboxTest
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
};

ORV_SANDBOX_CORE_TEST_MAIN(TestExportMatcher)
#include "tst_exportmatcher.moc"
